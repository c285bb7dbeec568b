#pragma once

#include <QString>
#include <QStringList>

namespace brevaro {

// Removes leading and trailing blanks (U+0020 only; tabs and line breaks stay).
QString trimBlanks(QStringView text);

// Splits text at every occurrence of separator; n separators give n + 1 fields.
QStringList splitFields(const QString& text, QStringView separator);

// 1-based position of the first occurrence of pattern at or after position start, 0 when
// there is none (or the pattern is empty).
qsizetype findFrom(qsizetype start, QStringView text, QStringView pattern);

// text with every occurrence of pattern removed.
QString removeAll(QString text, QStringView pattern);

// text for a line of terminal output: control characters (C0, DEL, C1) are written as \t, \n,
// \r or \xHH, and a backslash as \\, so that a name can neither break a line or a column nor
// send a terminal escape.
QString escapeControls(QStringView text);

} // namespace brevaro
