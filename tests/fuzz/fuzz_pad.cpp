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

// What a reader sees of a written value; traps when the value is not well-formed XML text.
QString readerSees(const QString& written) {
    QXmlStreamReader reader(QStringLiteral("<a>") + written + QStringLiteral("</a>"));
    reader.readNextStartElement();
    const QString text = reader.readElementText();
    if (reader.hasError())
        __builtin_trap();
    return text;
}

// A written value is well-formed XML text (XML has no way to hold a control character or a
// lone surrogate); writing it again changes nothing, and reading it back and writing it again
// shows a reader the same text.
void checkWritten(const QString& value) {
    using brevaro::decodedXmlText;
    using brevaro::wellFormedXmlText;
    const QString written = wellFormedXmlText(value);
    if (wellFormedXmlText(written) != written)
        __builtin_trap();
    if (hasIllegalControl(value))
        return;
    if (readerSees(wellFormedXmlText(decodedXmlText(written))) != readerSees(written))
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
