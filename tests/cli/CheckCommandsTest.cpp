#include "CleanRecords.h"
#include "CliTestSupport.h"
#include "pad/PadFieldRules.h"
#include "store/RecordStore.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

// A home holding the clean records as company 1, program 1, with the company name given.
void storeClean(const TempHome& t, const char16_t* companyName = u"Smith Software") {
    CompanyRecord company = cleanCompany();
    company.setText(CompanyField::CompanyName, QStringView(companyName));
    RecordStore store(t.home());
    store.writeCompany(1, company);
    store.writeProgram(1, 1, cleanProgram());
}

// Every file of the home with its bytes.
QMap<QString, QByteArray> homeFiles(const TempHome& t) {
    QMap<QString, QByteArray> files;
    for (QDirIterator it(t.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString path = it.next();
        if (!path.endsWith(QLatin1String(".lock")))
            files.insert(path, readBytes(path));
    }
    return files;
}

} // namespace

TEST(CliCheck, CleanRecordsPassWithNotesOnly) {
    TempHome t;
    storeClean(t);
    const auto before = homeFiles(t);
    const CliResult r = run(t, "check", "-c", "1", "-p", "Tidy Notes", "--no-spelling");
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QStringList lines = QString::fromUtf8(r.out).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(u"note\tProgram_Categories\tPossible Categories "
                                    "(Program Info, Misc Info) \"Text Editors\": "_s))
        << lines[0].toStdString();
    EXPECT_EQ(homeFiles(t), before) << "check writes nothing";
    // A record that is not there, and bad usage.
    EXPECT_EQ(run(t, "check", "-c", "2", "-p", "1").status, 2);
    EXPECT_EQ(run(t, "check", "-c", "1", "-p", "Nothing").status, 2);
    EXPECT_EQ(run(t, "check", "-c", "1").status, 1);
    EXPECT_EQ(run(t, "check", "-c", "1", "-p", "1", "extra").status, 1);
}

TEST(CliCheck, ErrorsGiveStatusThreeAndOneLineEach) {
    TempHome t;
    storeClean(t, u"Smith\x01Sons");
    const CliResult r = run(t, "check", "-c", "1", "-p", "1", "--no-spelling");
    EXPECT_EQ(r.status, 3);
    const QStringList lines = QString::fromUtf8(r.out).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].section(u'\t', 0, 1), u"error\tCompany_Name"_s);
    EXPECT_TRUE(lines[0].section(u'\t', 2).startsWith(
        u"Name (Company Info) \"Smith\x01Sons\": the control character U+0001"_s))
        << lines[0].toStdString();
    EXPECT_EQ(lines[0].count(u'\t'), 2);
    EXPECT_TRUE(lines[1].startsWith(u"note\t"_s));

    const CliResult json = run(t, "check", "-c", "1", "-p", "1", "--json", "--no-spelling");
    EXPECT_EQ(json.status, 3);
    const QJsonArray array = QJsonDocument::fromJson(json.out).array();
    ASSERT_EQ(array.size(), 2);
    const QJsonObject first = array[0].toObject();
    for (const auto& [key, value] : {std::pair{"severity", "error"},
                                     {"element", "Company_Name"},
                                     {"label", "Name"},
                                     {"value", "Smith\x01Sons"}})
        EXPECT_EQ(first[QLatin1String(key)].toString(), QLatin1String(value)) << key;
    EXPECT_TRUE(first[u"message"_s].toString().contains(u"U+0001"_s));
}

// --format chooses the version that pad writes and check checks; another text is a usage error.
TEST(CliCheck, FormatChoosesTheVersion) {
    TempHome t;
    storeClean(t);
    CompanyRecord company = cleanCompany();
    company.setText(CompanyField::CompanyWebSiteURL, u"https://www.smith.example");
    RecordStore(t.home()).writeCompany(1, company);
    const CliResult v311 = run(t, "check", "-c", "1", "-p", "1", "--format", "3.11");
    EXPECT_EQ(v311.status, 0);
    EXPECT_TRUE(v311.out.contains("warning\tCompany_WebSite_URL")) << v311.out.toStdString();
    EXPECT_FALSE(run(t, "check", "-c", "1", "-p", "1", "--format", "4.0")
                     .out.contains("Company_WebSite_URL"));
    EXPECT_TRUE(run(t, "pad", "-c", "1", "-p", "1", "--format", "4.0")
                    .out.contains("<MASTER_PAD_VERSION>4.0</MASTER_PAD_VERSION>"));
    for (const char* command : {"pad", "check"}) {
        const CliResult bad = run(t, command, "-c", "1", "-p", "1", "--format", "2.0");
        EXPECT_EQ(bad.status, 1);
        EXPECT_TRUE(bad.err.contains(u"--format takes 1.15, 3.11 or 4.0"_s)) << command;
    }
}

// pad --check writes nothing when the check finds errors, and otherwise the same bytes as pad.
TEST(CliCheck, PadWithCheckRefusesErrorsOnly) {
    TempHome t;
    storeClean(t);
    const CliResult plain = run(t, "pad", "-c", "1", "-p", "1");
    const CliResult checked = run(t, "pad", "-c", "1", "-p", "1", "--check");
    ASSERT_EQ(checked.status, 0) << checked.err.toStdString();
    EXPECT_EQ(checked.out, plain.out);

    storeClean(t, u"Smith\x01Sons");
    const QString file = t.file(u"out.xml"_s);
    const CliResult refused = run(t, "pad", "-c", "1", "-p", "1", "-o", file, "--check");
    EXPECT_EQ(refused.status, 3);
    EXPECT_TRUE(refused.err.startsWith(u"brevaro-cli: the PAD file was not written: "
                                       "1 error(s), the first in Company_Name"_s))
        << refused.err.toStdString();
    EXPECT_FALSE(QFileInfo::exists(file));
    EXPECT_FALSE(QFileInfo::exists(t.file(u"out.htm"_s)));
    EXPECT_EQ(run(t, "pad", "-c", "1", "-p", "1", "--check").out, QByteArray());
    EXPECT_EQ(run(t, "pad", "-c", "1", "-p", "1").status, 0);
}

// The published sample files after import are well-formed (a ">" in dnGrep's "System
// Requirements" is plain XML text) and get warnings and notes only, one line each.
TEST(CliCheck, SamplesAfterImport) {
    for (const char* name : {"dnGrep__dnGrep__pad.xml", "kalsky__FastWrite__pad.xml",
                             "sth__ups__PAD.xml", "t-d-k__LibreCrypt__PAD.xml"}) {
        SCOPED_TRACE(name);
        TempHome t;
        ASSERT_EQ(run(t, "import", QStringLiteral(BREVARO_SAMPLES "/") + word(name)).status, 0);
        const CliResult r = run(t, "check", "-c", "1", "-p", "1");
        EXPECT_EQ(r.status, 0) << r.out.toStdString();
        const QStringList lines = QString::fromUtf8(r.out).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_GT(lines.size(), 3);
        for (const QString& line : lines)
            EXPECT_EQ(line.count(u'\t'), 2) << line.toStdString();
        // The later versions: well-formed UTF-8; what Brevaro took from the published lists
        // matches their patterns, and every other value that breaks its pattern is named by
        // the check of that version.
        for (PadVersion v : {PadVersion::V3_11, PadVersion::V4_0}) {
            const CliResult later =
                run(t, "pad", "-c", "1", "-p", "1", "--format", padVersionText(v));
            ASSERT_EQ(later.status, 0) << later.err.toStdString();
            QSet<QString> named;
            const CliResult check =
                run(t, "check", "-c", "1", "-p", "1", "--format", padVersionText(v), "--json");
            for (const QJsonValue f : QJsonDocument::fromJson(check.out).array())
                named << f.toObject()[u"element"_s].toString();
            const QSet<QString> chosen = {u"Program_OS_Support"_s, u"Program_Language"_s,
                                          u"Program_Category_Class"_s};
            // Each element that holds a value, with its value.
            QXmlStreamReader reader(later.out);
            QList<std::pair<QString, QString>> leaves;
            QString name, text;
            bool leaf = false;
            while (!reader.atEnd()) {
                const auto token = reader.readNext();
                if (token == QXmlStreamReader::StartElement) {
                    name = reader.name().toString();
                    text.clear();
                    leaf = true;
                } else if (token == QXmlStreamReader::Characters) {
                    text += reader.text();
                } else if (token == QXmlStreamReader::EndElement) {
                    if (leaf)
                        leaves.append({name, text});
                    leaf = false;
                }
            }
            for (const auto& [element, value] : leaves) {
                const PadFieldRule* rule = padFieldRule(element, v);
                if (!rule || rule->accepts(value))
                    continue;
                if (chosen.contains(element)) {
                    EXPECT_TRUE(value.isEmpty())
                        << element.toStdString() << ": " << value.toStdString();
                }
                EXPECT_TRUE(named.contains(element))
                    << element.toStdString() << ": " << value.toStdString();
            }
            EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
            EXPECT_TRUE(later.out.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"));
        }
        // The 4.0 file imported again gives back every value: written once more, the same
        // bytes.
        const CliResult first = run(t, "pad", "-c", "1", "-p", "1", "--format", "4.0");
        const QString again = t.file(u"again.xml"_s);
        writeBytes(again, first.out);
        ASSERT_EQ(run(t, "import", again).status, 0);
        EXPECT_EQ(run(t, "pad", "-c", "1", "-p", "2", "--format", "4.0").out, first.out);
    }
}
