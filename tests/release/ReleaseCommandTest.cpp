#include "../cli/CliTestSupport.h"
#include "LocalHttpServer.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

// Every file of a home and its bytes.
std::map<QString, QByteArray> snapshot(const QString& root) {
    std::map<QString, QByteArray> files;
    QDirIterator it(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!path.endsWith(QLatin1String(".lock")))
            files[QDir(root).relativeFilePath(path)] = readBytes(path);
    }
    return files;
}

class ReleaseCommand : public ::testing::Test {
protected:
    void SetUp() override {
        run(t, "new-company", "Northwind");
        run(t, "new-program", "-c", "1", "Harbour Notes");
        ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "ProgramVersion=2.4.1", "ReleaseMonth=11",
                      "ReleaseDay=02", "ReleaseYear=2026", "CharDesc45[0]=Notes that follow you",
                      "CharDesc250[0]=Harbour Notes keeps notes, journals and lists.",
                      "Application_Identifier=example.northwind.HarbourNotes", "SPDX_License=MIT",
                      "Download_URL_Pattern=https://dl.northwind.example/{version}/{file}",
                      "ApplicationXMLFileURL=https://www.northwind.example/harbour.xml")
                      .status,
                  0);
        dist = t.file(QStringLiteral("harbour-2.5.0.exe"));
        writeBytes(dist, QByteArray(5000, 'h'));
    }
    CliResult release(const QStringList& more = {}) {
        return runCliIn(t, QStringList{QStringLiteral("release"), QStringLiteral("-c"),
                                       QStringLiteral("1"), QStringLiteral("-p"),
                                       QStringLiteral("1"), QStringLiteral("--version"),
                                       QStringLiteral("2.5.0"), QStringLiteral("--file"), dist,
                                       QStringLiteral("--date"), QStringLiteral("2026-11-24")} +
                               more);
    }
    QJsonObject program() {
        return QJsonDocument::fromJson(run(t, "show", "-c", "1", "-p", "1", "--json").out)
            .object()
            .value(QStringLiteral("program"))
            .toObject();
    }
    TempHome t;
    QString dist;
};

TEST_F(ReleaseCommand, DryRunShowsTheChangesAndTouchesNothing) {
    const auto before = snapshot(t.path());
    const CliResult r = release({QStringLiteral("--dry-run")});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    const QString out = QString::fromUtf8(r.out);
    EXPECT_TRUE(out.contains(u"  ProgramVersion: 2.4.1 -> 2.5.0\n")) << out.toStdString();
    EXPECT_TRUE(out.contains(u"  PrimaryDownloadURL: (empty) -> "
                             u"https://dl.northwind.example/2.5.0/harbour-2.5.0.exe\n"));
    EXPECT_TRUE(out.contains(u"  FileSizeBytes: (empty) -> 5000\n"));
    EXPECT_TRUE(out.contains(u"would write: harbour.xml\n"));
    EXPECT_EQ(snapshot(t.path()), before);
}

TEST_F(ReleaseCommand, SavesOnceAndTheSecondRunChangesNothing) {
    const CliResult first = release({QStringLiteral("--changes"), QStringLiteral("Tabs.")});
    EXPECT_EQ(first.status, 0) << first.err.toStdString() << first.out.toStdString();
    const QJsonObject p = program();
    EXPECT_EQ(p.value(QStringLiteral("ProgramVersion")).toString(), u"2.5.0");
    EXPECT_EQ(p.value(QStringLiteral("ReleaseDay")).toString(), u"24");
    EXPECT_EQ(p.value(QStringLiteral("ChangeInfo")).toString(), u"Tabs.");
    EXPECT_EQ(p.value(QStringLiteral("Download_SHA256_1")).toString().size(), 64);
    EXPECT_EQ(p.value(QStringLiteral("Release_History")).toString(),
              u"2.5.0 2026-11-24\n2.4.1 2026-11-02");
    const QString folder = t.file(QStringLiteral("pad/Northwind"));
    EXPECT_TRUE(
        QFileInfo::exists(folder + QStringLiteral("/example.northwind.HarbourNotes.metainfo.xml")));
    // The PAD file is the one brevaro-cli pad writes for the saved records.
    ASSERT_EQ(run(t, "pad", "-c", "1", "-p", "1", "-o", t.file(QStringLiteral("own.xml"))).status,
              0);
    EXPECT_EQ(readBytes(folder + QStringLiteral("/harbour.xml")),
              readBytes(t.file(QStringLiteral("own.xml"))));
    EXPECT_EQ(readBytes(folder + QStringLiteral("/harbour.htm")),
              readBytes(t.file(QStringLiteral("own.htm"))));

    const auto before = snapshot(t.path());
    const CliResult second = release({QStringLiteral("--changes"), QStringLiteral("Tabs.")});
    EXPECT_EQ(second.status, 0);
    EXPECT_TRUE(second.out.startsWith("Harbour Notes 2.5.0: nothing changes\n"))
        << second.out.toStdString();
    EXPECT_FALSE(second.out.contains("written: "));
    EXPECT_EQ(snapshot(t.path()), before);
}

TEST_F(ReleaseCommand, ExitStatusSaysWhatWentWrong) {
    EXPECT_EQ(release({QStringLiteral("--date"), QStringLiteral("24.11.2026")}).status, 2);
    EXPECT_EQ(runCliIn(t, {QStringLiteral("release"), QStringLiteral("-c"), QStringLiteral("1"),
                           QStringLiteral("-p"), QStringLiteral("1"), QStringLiteral("--version"),
                           QStringLiteral("2.5.0"), QStringLiteral("--file"),
                           t.file(QStringLiteral("none.exe"))})
                  .status,
              2);
    EXPECT_EQ(runCliIn(t, {QStringLiteral("release"), QStringLiteral("-c"), QStringLiteral("1"),
                           QStringLiteral("-p"), QStringLiteral("1"), QStringLiteral("--version"),
                           QStringLiteral("2.5.0")})
                  .status,
              1);
    EXPECT_EQ(release({QStringLiteral("-p"), QStringLiteral("9")}).status, 2);
    // An output its ecosystem would refuse: written, and the step fails.
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "Application_Identifier=no-dots").status, 0);
    const CliResult refused = release({QStringLiteral("--out"), t.file(QStringLiteral("out"))});
    EXPECT_EQ(refused.status, 3);
    EXPECT_TRUE(refused.out.contains("error: AppStream metainfo: id: \"no-dots\""))
        << refused.out.toStdString();
    EXPECT_TRUE(QFileInfo::exists(t.file(QStringLiteral("out/harbour.jsonld"))));
}

TEST_F(ReleaseCommand, VerifiedAddressesDecideTheExitStatus) {
    LocalHttpServer server;
    const QString pattern = server.url("/") + QStringLiteral("{version}/{file}");
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", QStringLiteral("Download_URL_Pattern=") + pattern,
                  QStringLiteral("ApplicationXMLFileURL=") + server.url("/harbour.xml"))
                  .status,
              0);
    LocalHttpServer::Response file;
    file.body = QByteArray(5000, 'h');
    server.route("/2.5.0/harbour-2.5.0.exe", file);
    // The PAD file online is still the one of the last release.
    file.body = "<?xml version=\"1.0\"?><XML_DIZ_INFO />";
    server.route("/harbour.xml", file);
    const CliResult r = release({QStringLiteral("--verify-urls")});
    EXPECT_EQ(r.status, 3);
    const QString out = QString::fromUtf8(r.out);
    EXPECT_TRUE(out.contains(QStringLiteral("matches: ") + server.url("/2.5.0/harbour-2.5.0.exe")))
        << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("differs (size): ") + server.url("/harbour.xml")))
        << out.toStdString();
    // Once the new PAD file is uploaded, every address matches.
    file.body = readBytes(t.file(QStringLiteral("pad/Northwind/harbour.xml")));
    server.route("/harbour.xml", file);
    EXPECT_EQ(release({QStringLiteral("--verify-urls")}).status, 0);
}

TEST_F(ReleaseCommand, ExportWritesOneFormat) {
    const CliResult json = run(t, "export", "--format", "jsonld", "-c", "1", "-p", "1");
    EXPECT_EQ(json.status, 0) << json.err.toStdString();
    EXPECT_TRUE(QJsonDocument::fromJson(json.out).isObject());
    const CliResult winget = run(t, "export", "--format", "winget", "-c", "1", "-p", "1", "-o",
                                 t.file(QStringLiteral("winget")));
    EXPECT_EQ(winget.status, 3); // no installer with a SHA-256 before a release
    EXPECT_TRUE(winget.err.contains(u"Installers")) << winget.err.toStdString();
    EXPECT_EQ(QDir(t.file(QStringLiteral("winget"))).entryList(QDir::Files).size(), 3);
    EXPECT_EQ(run(t, "export", "--format", "pad", "-c", "1", "-p", "1").status, 1);
}

} // namespace
