#pragma once

#include <QByteArray>
#include <QString>

namespace brevaro {

// Windows-1252 is the character set of every file we read or write. The five bytes the set
// leaves undefined map to the C1 characters of the same value and back, so no byte is lost.
QString fromWin1252(const char* data, qsizetype size);
// The same into out, which has room for size characters; returns the end of what was written.
char16_t* fromWin1252To(const char* data, qsizetype size, char16_t* out);
inline QString fromWin1252(const QByteArray& bytes) {
    return fromWin1252(bytes.constData(), bytes.size());
}

// A character the set cannot hold becomes '?'.
QByteArray toWin1252(QStringView text);
char toWin1252Char(QChar c);

} // namespace brevaro
