#include "ReleaseRecords.h"
#include "TestSupport.h"
#include "release/ReleaseOutputs.h"
#include "release/ReleaseStep.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

// The full product after a release of two files, and the minimal one as it stands.
struct Case {
    const char* name;
    CompanyRecord company;
    ProgramRecord program;
};

std::vector<Case> cases() {
    QTemporaryDir dir;
    const ReleasePlan plan =
        planRelease(releaseProgram(),
                    {QStringLiteral("2.5.0"),
                     {distributionFile(dir.path(), QStringLiteral("harbour-setup.exe"), "abc"),
                      distributionFile(dir.path(), QStringLiteral("harbour-arm.exe"), "abcd")},
                     QDate(2026, 11, 24),
                     QStringLiteral("Notes open in tabs.")});
    return {{"full", releaseCompany(), plan.program},
            {"minimal", minimalCompany(), minimalProgram()}};
}

QString findingsText(const Output& o) {
    QStringList lines;
    for (const OutputFinding& f : o.findings)
        lines << QStringLiteral("%1 %2: %3")
                     .arg(f.severity == OutputFinding::Severity::Error ? u"error" : u"warning",
                          f.field, f.message);
    return lines.join(u'\n');
}

// Compares with a reviewed file under tests/data/release; BREVARO_UPDATE_GOLDEN=1 rewrites it.
void expectGolden(const QString& name, const QByteArray& bytes) {
    const QString path = QStringLiteral(BREVARO_TEST_DATA "/release/") + name;
    if (qEnvironmentVariableIsSet("BREVARO_UPDATE_GOLDEN")) {
        QDir().mkpath(QFileInfo(path).path());
        writeBytes(path, bytes);
    }
    EXPECT_EQ(bytes, readBytes(path)) << name.toStdString();
}

TEST(ReleaseOutputs, EveryFormatMatchesItsGoldenFiles) {
    for (const Case& c : cases())
        for (const Output& o : buildAllOutputs(c.company, c.program, QString()))
            for (const OutputFile& f : o.files)
                expectGolden(QLatin1String(c.name) + u'/' + f.fileName, f.bytes);
}

TEST(ReleaseOutputs, FindingsSayWhatIsMissing) {
    for (const Case& c : cases()) {
        const bool full = QLatin1String(c.name) == QLatin1String("full");
        for (OutputFormat format :
             {OutputFormat::AppStream, OutputFormat::Winget, OutputFormat::JsonLd}) {
            const Output o = buildOutput(format, c.company, c.program, QString());
            // A price or a category missing is a warning: JSON-LD is read without them.
            EXPECT_EQ(hasErrors(o.findings), !full && format != OutputFormat::JsonLd)
                << c.name << "\n"
                << findingsText(o).toStdString();
        }
    }
    // The minimal product: each output names the field an author fills in.
    const Case minimal = cases()[1];
    const QString appstream =
        findingsText(buildOutput(OutputFormat::AppStream, minimal.company, minimal.program, {}));
    EXPECT_TRUE(appstream.contains(u"error id: is required: fill in Application ID"))
        << appstream.toStdString();
    EXPECT_TRUE(appstream.contains(u"error summary")) << appstream.toStdString();
    const QString winget =
        findingsText(buildOutput(OutputFormat::Winget, minimal.company, minimal.program, {}));
    EXPECT_TRUE(winget.contains(u"error License")) << winget.toStdString();
    EXPECT_TRUE(winget.contains(u"error Installers")) << winget.toStdString();
}

// What appstreamcli says of a metainfo file; skipped where it is not installed.
TEST(ReleaseOutputs, AppStreamPassesTheValidator) {
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("appstreamcli"));
    if (tool.isEmpty())
        GTEST_SKIP() << "appstreamcli is not installed (Debian package appstream; ./dev test "
                        "installs it)";
    QTemporaryDir dir;
    for (const Case& c : cases()) {
        const Output o = buildOutput(OutputFormat::AppStream, c.company, c.program, QString());
        const QString path = dir.filePath(o.files.front().fileName);
        writeBytes(path, o.files.front().bytes);
        QProcess p;
        p.start(tool, {QStringLiteral("validate"), QStringLiteral("--no-net"), path});
        ASSERT_TRUE(p.waitForFinished(60000));
        const QString said = QString::fromUtf8(p.readAll());
        // Our check and the validator agree on whether the file is refused.
        EXPECT_EQ(p.exitCode() == 0, !hasErrors(o.findings)) << c.name << "\n"
                                                             << said.toStdString();
    }
}

TEST(ReleaseOutputs, JsonParsesAndNamesNothingMadeUp) {
    for (const Case& c : cases()) {
        const Output o = buildOutput(OutputFormat::JsonLd, c.company, c.program, QString());
        QJsonParseError error;
        const QJsonObject doc = QJsonDocument::fromJson(o.files.front().bytes, &error).object();
        ASSERT_EQ(error.error, QJsonParseError::NoError) << c.name;
        EXPECT_EQ(doc.value(QStringLiteral("@type")).toString(), u"SoftwareApplication");
        EXPECT_FALSE(doc.contains(QStringLiteral("aggregateRating")));
        EXPECT_FALSE(doc.contains(QStringLiteral("review")));
    }
    const Case full = cases()[0];
    const QJsonObject doc =
        QJsonDocument::fromJson(
            buildOutput(OutputFormat::JsonLd, full.company, full.program, {}).files.front().bytes)
            .object();
    EXPECT_EQ(doc.value(QStringLiteral("name")).toString(), u"Harbour Notes");
    EXPECT_EQ(doc.value(QStringLiteral("softwareVersion")).toString(), u"2.5.0");
    EXPECT_EQ(doc.value(QStringLiteral("datePublished")).toString(), u"2026-11-24");
    EXPECT_EQ(doc.value(QStringLiteral("downloadUrl")).toString(),
              u"https://dl.northwind.example/2.5.0/harbour-setup.exe");
    EXPECT_TRUE(doc.value(QStringLiteral("description")).toString().contains(u"caf\u00e9"));
    EXPECT_EQ(
        doc.value(QStringLiteral("publisher")).toObject().value(QStringLiteral("name")).toString(),
        u"Northwind & Sons");
}

// The YAML the manifests use: "Key: value" lines and "- item" lists, values double-quoted.
QMultiMap<QString, QString> yamlFields(const QByteArray& bytes) {
    QMultiMap<QString, QString> fields;
    static const QRegularExpression line(QStringLiteral("^(?:- |  )?([A-Za-z0-9]+):(?: (.*))?$"));
    QString list;
    for (const QString& l : QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts)) {
        if (l.startsWith(u'#'))
            continue;
        QString key, value;
        if (const auto m = line.match(l); m.hasMatch()) {
            key = m.captured(1);
            value = m.captured(2);
            if (!l.startsWith(u' ') && !l.startsWith(u'-'))
                list = key;
        } else if (l.startsWith(QLatin1String("- "))) {
            key = list;
            value = l.mid(2);
        }
        if (value.startsWith(u'"')) {
            EXPECT_TRUE(value.endsWith(u'"')) << l.toStdString();
            value = value.mid(1, value.size() - 2)
                        .replace(QStringLiteral("\\n"), QStringLiteral("\n"))
                        .replace(QStringLiteral("\\\""), QStringLiteral("\""))
                        .replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
        }
        if (!key.isEmpty() && !value.isEmpty())
            fields.insert(key, value);
    }
    return fields;
}

TEST(ReleaseOutputs, ManifestFieldsStayWithinTheirPublishedLimits) {
    const Case full = cases()[0];
    const Output o = buildOutput(OutputFormat::Winget, full.company, full.program, QString());
    ASSERT_EQ(o.files.size(), 3u);
    QMultiMap<QString, QString> all;
    for (const OutputFile& f : o.files)
        all.unite(yamlFields(f.bytes));
    // The limits of the manifest schema, version 1.6.0.
    const std::map<QString, std::pair<int, int>> limits = {
        {QStringLiteral("PackageIdentifier"), {1, 128}},
        {QStringLiteral("PackageVersion"), {1, 128}},
        {QStringLiteral("Publisher"), {2, 256}},
        {QStringLiteral("PackageName"), {2, 256}},
        {QStringLiteral("License"), {3, 512}},
        {QStringLiteral("ShortDescription"), {3, 256}},
        {QStringLiteral("Description"), {3, 10000}},
        {QStringLiteral("Tags"), {1, 40}},
        {QStringLiteral("InstallerUrl"), {1, 2048}},
        {QStringLiteral("ReleaseNotes"), {1, 10000}}};
    for (const auto& [key, range] : limits) {
        ASSERT_TRUE(all.contains(key)) << key.toStdString();
        for (const QString& v : all.values(key)) {
            EXPECT_GE(v.size(), range.first) << key.toStdString();
            EXPECT_LE(v.size(), range.second) << key.toStdString();
        }
    }
    EXPECT_LE(all.values(QStringLiteral("Tags")).size(), 16);
    EXPECT_EQ(all.values(QStringLiteral("Tags")).last(), u"notes"); // QMultiMap: newest first
    EXPECT_TRUE(all.values(QStringLiteral("Tags")).contains(u"sync-tool"));
    EXPECT_EQ(all.value(QStringLiteral("PackageIdentifier")), u"NorthwindSons.HarbourNotes");
    EXPECT_EQ(all.value(QStringLiteral("ReleaseNotes")), u"Notes open in tabs.");
    for (const QString& sha : all.values(QStringLiteral("InstallerSha256")))
        EXPECT_TRUE(QRegularExpression(QStringLiteral("^[A-F0-9]{64}$")).match(sha).hasMatch());
    const QStringList architectures = all.values(QStringLiteral("Architecture"));
    EXPECT_TRUE(architectures.contains(u"x64") && architectures.contains(u"arm64"));

    // Seventeen keywords, one too long: the check names both limits.
    ProgramRecord many = full.program;
    QStringList words;
    for (int i = 0; i < 17; ++i)
        words << QStringLiteral("word%1").arg(i);
    words << QString(41, u'w');
    many.setText(PF::Keywords, words.join(u','), 0);
    many.setLaterValue(QStringLiteral("Package_Identifier"), QStringLiteral("NoDots"));
    const QString found = findingsText(buildOutput(OutputFormat::Winget, full.company, many, {}));
    EXPECT_TRUE(found.contains(u"error Tags: takes at most 16 entries")) << found.toStdString();
    EXPECT_TRUE(found.contains(u"error Tags: takes at most 40 characters")) << found.toStdString();
    EXPECT_TRUE(found.contains(u"error PackageIdentifier: \"NoDots\"")) << found.toStdString();
}

TEST(ReleaseOutputs, WritesOnlyWhatChanged) {
    QTemporaryDir dir;
    const Case full = cases()[0];
    const auto outputs = buildAllOutputs(full.company, full.program, QString());
    std::vector<WrittenFile> first, second;
    QString error;
    ASSERT_TRUE(writeOutputFiles(dir.filePath(QStringLiteral("out")), outputs, &first, &error));
    ASSERT_EQ(first.size(), 8u);
    EXPECT_TRUE(std::all_of(first.begin(), first.end(), [](auto& w) { return w.changed; }));
    ASSERT_TRUE(writeOutputFiles(dir.filePath(QStringLiteral("out")), outputs, &second, &error));
    EXPECT_TRUE(std::none_of(second.begin(), second.end(), [](auto& w) { return w.changed; }));
    // A folder that cannot be made is said in words.
    writeBytes(dir.filePath(QStringLiteral("file")), "x");
    std::vector<WrittenFile> none;
    EXPECT_FALSE(
        writeOutputFiles(dir.filePath(QStringLiteral("file/out")), outputs, &none, &error));
    EXPECT_TRUE(error.contains(u"cannot be made")) << error.toStdString();
    // A folder in the way of one file: that one is named, the others are written and listed.
    const QString out = dir.filePath(QStringLiteral("blocked"));
    const QString blocked = QDir(out).filePath(outputs[2].files.front().fileName);
    ASSERT_TRUE(QDir().mkpath(blocked));
    std::vector<WrittenFile> some;
    EXPECT_FALSE(writeOutputFiles(out, outputs, &some, &error));
    EXPECT_TRUE(error.contains(outputs[2].files.front().fileName)) << error.toStdString();
    EXPECT_EQ(some.size(), 7u);
    for (const WrittenFile& w : some) {
        EXPECT_NE(w.path, QDir::toNativeSeparators(blocked));
        EXPECT_TRUE(QFileInfo(w.path).isFile()) << w.path.toStdString();
    }
}

} // namespace
