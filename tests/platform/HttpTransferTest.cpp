#include "platform/HttpTransfer.h"
#include "LocalHttpServer.h"
#include "TestSupport.h"
#include "platform/Win1252.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

// Records the events of one transfer, in order, and the text received.
struct Recorder {
    QStringList events;
    QString text;
    explicit Recorder(HttpTransfer& http) {
        QObject::connect(&http, &HttpTransfer::connected,
                         [this](int s, const QString&) { events << u"connected %1"_s.arg(s); });
        QObject::connect(&http, &HttpTransfer::transferStarted,
                         [this](int) { events << u"started"_s; });
        QObject::connect(&http, &HttpTransfer::dataReceived,
                         [this](int, qint64, const QString& chunk) {
                             if (events.isEmpty() || events.back() != QLatin1String("data"))
                                 events << u"data"_s;
                             text += chunk;
                         });
        QObject::connect(&http, &HttpTransfer::transferEnded,
                         [this](int) { events << u"ended"_s; });
        QObject::connect(&http, &HttpTransfer::disconnected,
                         [this](int, const QString&) { events << u"disconnected"_s; });
    }
};

} // namespace

TEST(HttpTransfer, EventsInOrderTextDecodedAndLocalFileBytes) {
    LocalHttpServer server;
    server.route("/latin1", {200, "text/html; charset=ISO-8859-1", "caf\xE9 au lait", {}});
    server.route("/meta", {200, "text/html", "<html><meta charset=\"windows-1252\">\x80 euro", {}});
    server.route("/bom", {200, "text/plain", "\xEF\xBB\xBFna\xC3\xAFve", {}});
    server.route("/plain1252", {200, "text/plain", "na\xEFve", {}});
    server.route("/moved", {302, "text/plain", {}, "/latin1"});
    server.route("/data.txt", {200, "text/plain", "one\ntwo\nthree", {}});
    HttpTransfer http;
    Recorder r(http);
    const std::pair<const char*, QString> cases[] = {
        {"/latin1", u"caf\u00e9 au lait"_s},
        {"/meta", u"<html><meta charset=\"windows-1252\">\u20ac euro"_s},
        {"/bom", u"na\u00efve"_s},
        {"/plain1252", u"na\u00efve"_s},
        {"/moved", u"caf\u00e9 au lait"_s}};
    for (const auto& [path, text] : cases) {
        r.events.clear();
        r.text.clear();
        http.setUrl(server.url(path));
        http.fetch();
        EXPECT_EQ(r.events.join(u','), u"connected 200,started,data,ended,disconnected"_s) << path;
        EXPECT_EQ(r.text, text) << path;
        EXPECT_TRUE(http.succeeded());
    }

    // Into a local file, in a folder made for it, the body's bytes as sent.
    TempHome t;
    const QString target = t.file(u"share/data.txt"_s);
    http.setLocalFile(target);
    http.setUrl(server.url("/data.txt"));
    http.fetch();
    EXPECT_EQ(readBytes(target), QByteArray("one\ntwo\nthree"));
}

// Failures end cleanly: the fetch returns, disconnected is raised, no transfer-ended event,
// and a local file keeps what it held before.
TEST(HttpTransfer, FailuresEndCleanlyAndKeepOldFiles) {
    LocalHttpServer server;
    server.route("/stall", {200, "text/plain", {}, {}, true});
    server.route("/huge", {200, "application/octet-stream", {}, {}, false, 100LL * 1024 * 1024});
    server.route("/missing", {404, "text/plain", "gone", {}});
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost, 0);
    const QString refused = u"http://127.0.0.1:%1/x"_s.arg(closed.serverPort());
    closed.close();

    TempHome t;
    const QString target = t.file(u"kept.txt"_s);
    HttpTransfer http;
    http.setLimits(400, 1024 * 1024);
    Recorder r(http);
    for (const QString& url : {refused, server.url("/stall"), server.url("/huge"),
                               server.url("/missing"), u"not a url at all"_s, QString()}) {
        writeBytes(target, "old contents");
        r.events.clear();
        http.setLocalFile(target);
        http.setUrl(url);
        http.fetch();
        EXPECT_FALSE(http.succeeded()) << url.toStdString();
        EXPECT_FALSE(http.errorString().isEmpty());
        EXPECT_EQ(r.events.back(), u"disconnected"_s) << url.toStdString();
        EXPECT_FALSE(r.events.contains(u"ended"_s)) << url.toStdString();
        EXPECT_EQ(readBytes(target), QByteArray("old contents")) << url.toStdString();
    }
    // The large answer was cut at the limit, not read to its end.
    EXPECT_LT(server.bytesSent(), 100LL * 1024 * 1024);
    EXPECT_LE(r.text.size(), 1024 * 1024);
}

// A saved page: a byte-order mark or a declared charset wins; otherwise valid UTF-8 is read
// as UTF-8 and anything else as Windows-1252.
TEST(HttpTransfer, DecodePageChoosesTheCharset) {
    EXPECT_EQ(decodePage(QByteArray("\xEF\xBB\xBF"
                                    "caf\xC3\xA9")),
              u"caf\u00e9"_s);
    EXPECT_EQ(decodePage(QByteArray("<p>caf\xC3\xA9 \xE2\x82\xAC")), u"<p>caf\u00e9 \u20ac"_s);
    EXPECT_EQ(decodePage(QByteArray("<p>caf\xE9 \x80")), u"<p>caf\u00e9 \u20ac"_s);
    EXPECT_EQ(decodePage(QByteArray("<meta charset=\"iso-8859-1\">\xC3\xA9")),
              u"<meta charset=\"iso-8859-1\">\u00c3\u00a9"_s);
    EXPECT_EQ(decodePage(QByteArray("\xC3\xA9"), u"windows-1252"_s), u"\u00c3\u00a9"_s);
    EXPECT_EQ(decodePage(QByteArray()), QString());
}

namespace {

// How a page was always decoded: one pass of the decoder the rules name.
QString plainDecoding(const QByteArray& bytes, const QString& header) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes.mid(3));
    const QString charset = header.isEmpty() ? declaredCharset(bytes) : header;
    if (charset.isEmpty()) {
        QStringDecoder utf8(QStringDecoder::Utf8);
        const QString text = utf8.decode(bytes);
        return utf8.hasError() ? fromWin1252(bytes) : text;
    }
    if (charset.compare(QLatin1String("windows-1252"), Qt::CaseInsensitive) == 0)
        return fromWin1252(bytes);
    QStringDecoder d(charset.toLatin1().constData());
    return d.decode(bytes);
}

QString joinedParts(const QByteArray& bytes, const QString& header) {
    QString joined;
    int parts = 0;
    decodePageInParts(bytes, header, [&](QStringView part) {
        joined += part;
        ++parts;
    });
    if (!bytes.startsWith("\xEF\xBB\xBF")) {
        EXPECT_GE(parts, bytes.size() / (64 * 1024));
    }
    return joined;
}

} // namespace

// Pages of a few hundred kilobytes, decoded whole and a part at a time, agree with each other
// and with a single pass of the decoder: with characters of every length near the part
// boundaries, with malformed sequences (overlong, surrogate, beyond U+10FFFF, cut short at
// the end), with and without a byte-order mark or a declared charset.
TEST(HttpTransfer, DecodingInPartsGivesTheWholeText) {
    const QList<QByteArray> valid = {"a",
                                     " ",
                                     "\xC3\xA9",
                                     "\xE2\x82\xAC",
                                     "\xF0\x9F\x98\x80",
                                     "\xEF\xBF\xBE",
                                     "\xF4\x8F\xBF\xBF",
                                     "\r\n"};
    const QList<QByteArray> broken = {"\xED\xA0\x80", "\xC0\x80", "\xF4\x90\x80\x80", "\x80",
                                      "\xE2\x82"};
    quint32 seed = 5;
    auto next = [&seed] {
        seed = seed * 1103515245u + 12345u;
        return seed >> 16;
    };
    auto page = [&](bool withBroken) {
        QByteArray bytes;
        while (bytes.size() < 300 * 1024) {
            for (int i = int(next() % 4); i > 0; --i)
                bytes += 'x';
            bytes += withBroken && next() % 4 == 0 ? broken[int(next() % broken.size())]
                                                   : valid[int(next() % valid.size())];
        }
        return bytes;
    };
    const QByteArray good = page(false);
    const QByteArray bad = page(true);
    const QList<QPair<QByteArray, QString>> cases = {
        {good, {}},
        {good + "\xE2\x82", {}}, // cut short at the end only: still read as UTF-8
        {bad, {}},
        {"\xEF\xBB\xBF" + bad, {}},
        {"\xEF\xBB\xBF" + good, {}},
        {bad, u"windows-1252"_s},
        {good, u"iso-8859-1"_s},
        {bad, u"utf-8"_s},
        {"<meta charset=\"utf-16le\">" + good, {}},
        // A second mark where a part of 64 KiB would begin, and characters across that point.
        {"\xEF\xBB\xBF" + QByteArray(65535, 'a') + "\xEF\xBB\xBF" + "b", {}},
        {QByteArray(65536, 'a') + "\xEF\xBB\xBF" + "b", {}},
        {"\xEF\xBB\xBF" + QByteArray("\xE4\xB8\xAD").repeated(21846), {}},
        {QByteArray("\xE4\xB8\xAD").repeated(21846) + "\xE2\x82", {}},
    };
    for (const auto& [bytes, header] : cases) {
        const QString whole = decodePage(bytes, header);
        EXPECT_EQ(whole, plainDecoding(bytes, header)) << header.toStdString();
        EXPECT_EQ(joinedParts(bytes, header), whole) << header.toStdString();
    }
    EXPECT_EQ(decodePage(good), QString::fromUtf8(good));
    EXPECT_EQ(decodePage(bad), fromWin1252(bad));
}
