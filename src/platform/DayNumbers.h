#pragma once

#include <QDate>
#include <QString>

namespace brevaro {

// Whole days since 1970-01-01; only differences and comparisons of these are meaningful.
qint64 dayNumber(const QDate& date);
// The day number of a date text in yyyy-MM-dd or MM/dd/yyyy form; 0 for anything else.
qint64 dayNumber(const QString& text);
// The date text form written by the program.
QString dateText(const QDate& date);
// A date in exactly the form dateText writes; an invalid date for anything else. Much quicker
// than a parse by format, for texts that hold many dates.
QDate dateFromText(QStringView text);

} // namespace brevaro
