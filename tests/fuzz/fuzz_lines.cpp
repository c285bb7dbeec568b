// The text-file line reader: any line ends (CR LF, LF, lone CR) become CR LF.
#include "FuzzSupport.h"
#include "platform/TextFiles.h"
#include "platform/Win1252.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace brevaro;
    const QString lines = readTextLines(fuzz::inputFile("text.txt", data, size));
    // Every CR is followed by LF, and every LF preceded by CR; the text ends with CR LF.
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i] == u'\r' && (i + 1 >= lines.size() || lines[i + 1] != u'\n'))
            __builtin_trap();
        if (lines[i] == u'\n' && (i == 0 || lines[i - 1] != u'\r'))
            __builtin_trap();
    }
    if (size > 0 && !lines.endsWith(QStringLiteral("\r\n")))
        __builtin_trap();
    // Decoding and encoding give back the bytes.
    const QByteArray bytes = fuzz::bytesOf(data, size);
    if (toWin1252(fromWin1252(bytes)) != bytes)
        __builtin_trap();
    return 0;
}
