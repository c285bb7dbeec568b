// The PAD file reader: decoding by the declared encoding, then the importer's tag scan.
#include "FuzzSupport.h"
#include "pad/PadImporter.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    const QString text = readPadFileText(fuzz::inputFile("pad.xml", data, size));
    std::size_t seen = 0;
    const auto visit = [&](QStringView tag, QStringView value, int language) {
        seen += std::size_t(tag.size() + value.size() + language);
    };
    scanPadTags(text, visit);
    // The tag scan also meets bytes that were never decoded.
    scanPadTags(QString::fromLatin1(fuzz::bytesOf(data, size)), visit);
    return seen == std::size_t(-1);
}
