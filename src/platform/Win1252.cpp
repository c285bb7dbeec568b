#include "platform/Win1252.h"

#include <array>

namespace brevaro {
namespace {

// Unicode values of the bytes 0x80 to 0x9F; the rest of the set equals Latin-1.
constexpr std::array<char16_t, 32> kHighTable = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

char16_t* fromWin1252To(const char* data, qsizetype size, char16_t* out) {
    for (qsizetype i = 0; i < size; ++i) {
        const auto b = static_cast<unsigned char>(data[i]);
        *out++ = (b >= 0x80 && b < 0xA0) ? kHighTable[b - 0x80] : char16_t(b);
    }
    return out;
}

QString fromWin1252(const char* data, qsizetype size) {
    QString out(size, Qt::Uninitialized);
    fromWin1252To(data, size, reinterpret_cast<char16_t*>(out.data()));
    return out;
}

char toWin1252Char(QChar c) {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF))
        return static_cast<char>(u);
    for (std::size_t i = 0; i < kHighTable.size(); ++i)
        if (kHighTable[i] == u)
            return static_cast<char>(0x80 + i);
    return '?';
}

QByteArray toWin1252(QStringView text) {
    QByteArray out(text.size(), Qt::Uninitialized);
    char* end = out.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        // A character outside the basic plane (a surrogate pair) is one character: one '?'.
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        *end++ = toWin1252Char(text[i]);
    }
    out.truncate(end - out.constData());
    return out;
}

} // namespace brevaro
