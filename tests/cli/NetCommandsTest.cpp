#include "CliTestSupport.h"
#include "LocalHttpServer.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

TEST(CliNet, KeywordsFromAServerAndAFile) {
    LocalHttpServer server;
    server.route(
        "/", {200, "text/html", "Tools tools TOOLS backup backup backup quick tail", {}, false, 0});
    TempHome t;
    const CliResult fetched = run(t, "keywords", server.url("/"));
    ASSERT_EQ(fetched.status, 0) << fetched.err.toStdString();
    EXPECT_EQ(
        fetched.out,
        QByteArray("Tools\t003\t1\nbackup\t003\t1\nquick\t001\t0\nkeywords: Tools, backup\n"));
    const QString page = t.file(u"page.html"_s);
    writeBytes(page, "<p>caf\xE9 caf\xE9 caf\xE9 x");
    const CliResult fromFile = run(t, "keywords", "--file", page);
    EXPECT_EQ(fromFile.out, QByteArray("caf\xC3\xA9\t002\t0\nkeywords: \n"));
    EXPECT_EQ(run(t, "keywords", "http://127.0.0.1:1/").status, 2);
    EXPECT_EQ(run(t, "keywords").status, 1);
}

TEST(CliNet, EncipheredSitesRoundTrip) {
    TempHome t;
    const CliResult enciphered =
        runCliIn(t, {u"encipher-sites"_s},
                 "Alpha Downloads|http://alpha.example/add\n\nBeta|http://b.example\n");
    ASSERT_EQ(enciphered.status, 0) << enciphered.err.toStdString();
    LocalHttpServer server;
    server.route("/list.txt", {200, "text/plain", enciphered.out, {}, false, 0});
    const CliResult sites = run(t, "sites", server.url("/list.txt"));
    ASSERT_EQ(sites.status, 0) << sites.err.toStdString();
    const QList<QByteArray> lines = sites.out.split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith("1\tQuorin Shareware Download Directory\t"));
    EXPECT_EQ(lines[1], QByteArray("2\tAlpha Downloads\thttp://alpha.example/add"));
    EXPECT_EQ(lines[2], QByteArray("3\tBeta\thttp://b.example"));
    EXPECT_EQ(runCliIn(t, {u"encipher-sites"_s}, "no separator here\n").status, 2);
}
