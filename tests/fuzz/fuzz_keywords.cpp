// A fetched page: decoded by its declared or detected encoding, then its words counted.
#include "FuzzSupport.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"

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
    suggester.checkPage(decodePage(bytes, header));
    return suggester.keywords.isNull() && size > std::size_t(1) << 30;
}
