// The PAD file reader: decoding by the declared encoding, then the importer's tag scan; and the
// rule every writer puts values through, on every value read.
#include "FuzzSupport.h"
#include "pad/PadImporter.h"
#include "pad/PadXmlText.h"

#include <QXmlStreamReader>

namespace {

bool hasIllegalControl(const QString& s) {
    for (QChar c : s) {
        const char16_t u = c.unicode();
        if ((u < 0x20 && u != 0x9 && u != 0xA && u != 0xD) || u == 0xFFFE || u == 0xFFFF ||
            c.isSurrogate())
            return true;
    }
    return false;
}

// A written value is well-formed XML text (XML has no way to hold a control character or a
// lone surrogate), and writing it again changes nothing.
void checkWritten(const QString& value) {
    const QString written = brevaro::wellFormedXmlText(value);
    if (brevaro::wellFormedXmlText(written) != written)
        __builtin_trap();
    if (hasIllegalControl(value))
        return;
    QXmlStreamReader reader(QStringLiteral("<a>") + written + QStringLiteral("</a>"));
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    const QString text = readPadFileText(fuzz::inputFile("pad.xml", data, size));
    std::size_t seen = 0;
    const auto visit = [&](QStringView tag, QStringView value, int language) {
        seen += std::size_t(tag.size() + value.size() + language);
        checkWritten(decodedXmlText(value));
    };
    scanPadTags(text, visit);
    // The tag scan also meets bytes that were never decoded.
    scanPadTags(QString::fromLatin1(fuzz::bytesOf(data, size)), visit);
    checkWritten(text);
    return seen == std::size_t(-1);
}
