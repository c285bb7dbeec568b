// A fetched page: decoded by its declared or detected encoding, then its words counted. The
// page is also decoded a part at a time and counted in parts cut where the input says, and a
// short page counted a piece at a time with CountWord: every way must give the same list.
#include "FuzzSupport.h"
#include "keywords/KeywordList.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"

#include <cstdlib>

namespace {

QStringList listed(const brevaro::KeywordList& list) {
    QStringList out;
    for (const auto& e : list.entries())
        out << e.word + u'=' + QString::number(e.count);
    return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    static HttpTransfer* http = [] {
        fuzz::scratch();
        return new HttpTransfer;
    }();
    const QByteArray bytes = fuzz::bytesOf(data, size);
    // The first line, when short, stands for an HTTP header's charset.
    const qsizetype end = bytes.indexOf('\n');
    const QString header = end > 0 && end < 40 ? QString::fromLatin1(bytes.left(end)) : QString();
    declaredCharset(bytes);
    KeywordSuggester suggester(*http);
    const QString page = decodePage(bytes, header);
    suggester.checkPage(page);

    QString joined;
    decodePageInParts(bytes, header, [&](QStringView part) { joined += part; });
    KeywordList inParts;
    KeywordCounting counting(inParts, std::size_t(joined.size()));
    // Parts of 1 to 16 characters, the lengths taken from the input's bytes in turn.
    for (qsizetype at = 0, i = 0; at < joined.size(); ++i) {
        const qsizetype n =
            std::min<qsizetype>(1 + (data[std::size_t(i) % size] & 15), joined.size() - at);
        counting.add(QStringView(joined).sliced(at, n));
        at += n;
    }
    counting.finish();
    if (joined != page || listed(inParts) != listed(suggester.list()))
        std::abort();
    const QStringList pieces = page.split(u' ');
    if (pieces.size() <= 300) {
        KeywordList oneByOne;
        for (qsizetype i = 0; i + 1 < pieces.size(); ++i)
            oneByOne.CountWord(pieces[i]);
        oneByOne.sortByColumn(1);
        if (listed(oneByOne) != listed(suggester.list()))
            std::abort();
    }
    return 0;
}
