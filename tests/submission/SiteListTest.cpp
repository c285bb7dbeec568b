#include "submission/SiteList.h"
#include "LocalHttpServer.h"
#include "TestSupport.h"
#include "platform/HttpTransfer.h"
#include "submission/SiteCipher.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

QByteArray line(const char* name, const char* url, const char* rest = "") {
    return (encipherField(QString::fromUtf8(name), siteListKey()) + u'|' +
            encipherField(QString::fromUtf8(url), siteListKey()) + QString::fromUtf8(rest))
        .toLatin1();
}

QStringList rows(const SiteList& list) {
    QStringList out;
    for (const auto& s : list.sites())
        out << s.number + u'\t' + s.name + u'\t' + s.url;
    return out;
}

} // namespace

TEST(SiteCipher, RoundTripAndGarbage) {
    const QString plain = u"Caf\u00e9 Downloads|http://x.example/submit?a=1"_s;
    const QString hex = encipherField(plain, siteListKey());
    EXPECT_EQ(hex, hex.toUpper());
    EXPECT_EQ(hex.size(), plain.size() * 2);
    EXPECT_EQ(DxXCrypted(hex, siteListKey(), 0), plain);
    // Each byte is XORed with the key's byte: 'A' (0x41) ^ 'q' (0x71) = 0x30.
    EXPECT_EQ(encipherField(u"A"_s, siteListKey()), u"30"_s);
    for (auto bad : {u"3", u"ZZ", u"3g", u"30 "})
        EXPECT_EQ(DxXCrypted(QString::fromUtf16(bad), siteListKey(), 0), QString());
}

TEST(SiteList, SkipsJunkWithoutUsingNumbers) {
    TempHome t;
    qputenv("BREVARO_SERVER", "http://www.quorin.example");
    const QString file = t.file(u"swd.dta"_s);
    writeBytes(file, line("Alpha Downloads", "http://alpha.example/add") + "\r\n" +
                         line("OnlyName", "").left(16) + "\r\n" +   // one field
                         "ZZZZ|" + line("x", "y").mid(3) + "\r\n" + // name not hex
                         line("mirror of quorin.example", "http://q") +
                         "\r\n" + // the maker's domain
                         line("Beta Files", "http://beta.example/", "|extra|fields") + "\r\n\r\n");
    HttpTransfer http;
    SiteList list(file, http);
    list.LoadList();
    EXPECT_EQ(rows(list), (QStringList{u"1\tQuorin Shareware Download "
                                       "Directory\thttp://www.quorin.example/unsignedpadfile.php"_s,
                                       u"2\tAlpha Downloads\thttp://alpha.example/add"_s,
                                       u"3\tBeta Files\thttp://beta.example/"_s}));
    EXPECT_EQ(list.lblNo, u" 3"_s);
    list.sortByColumn(1);
    EXPECT_EQ(list.sites().front().name, u"Quorin Shareware Download Directory"_s);
    EXPECT_EQ(list.sites().back().name, u"Alpha Downloads"_s);
    list.sortByColumn(2);
    EXPECT_EQ(list.sites().front().name, u"Alpha Downloads"_s);

    writeBytes(file, "");
    list.LoadList();
    EXPECT_EQ(list.sites().size(), 1u);
    EXPECT_EQ(list.lblNo, u" 1"_s);
    qunsetenv("BREVARO_SERVER");
}

TEST(SiteList, DownloadWithEitherLineEnd) {
    const QByteArray one = line("One", "http://1"), two = line("Two", "http://2");
    LocalHttpServer server;
    server.route("/lf", {200, "text/plain", one + "\n" + two + "\n", {}});
    server.route("/crlf", {200, "text/plain", one + "\r\n" + two, {}});
    TempHome t;
    const QString file = t.file(u"swd.dta"_s);
    HttpTransfer http;
    SiteList list(file, http);
    int afterwards = 0;
    list.afterDownload = [&] {
        ++afterwards;
    };
    list.Download(server.url("/lf"));
    EXPECT_EQ(list.sites().size(), 3u);
    EXPECT_EQ(readBytes(file), one + "\r\n" + two + "\r\n\r\n");
    list.Download(server.url("/crlf"));
    EXPECT_EQ(list.sites().size(), 3u);
    EXPECT_EQ(readBytes(file), one + "\r\r\n" + two + "\r\n");
    EXPECT_EQ(list.status, u"Disconnected, Download Done ..."_s);
    // A failed download keeps the old file and its list.
    list.Download(u"http://127.0.0.1:1/none"_s);
    EXPECT_EQ(list.sites().size(), 3u);
    EXPECT_EQ(afterwards, 3);
}
