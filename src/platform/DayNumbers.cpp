#include "platform/DayNumbers.h"

#include "platform/StringHelpers.h"

namespace brevaro {

namespace {
constexpr qint64 kEpochJulianDay = 2440588; // 1970-01-01
}

qint64 dayNumber(const QDate& date) {
    return date.isValid() ? date.toJulianDay() - kEpochJulianDay : 0;
}

qint64 dayNumber(const QString& text) {
    const QString t = trimBlanks(text);
    QDate date = QDate::fromString(t, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        date = QDate::fromString(t, QStringLiteral("MM/dd/yyyy"));
    return dayNumber(date);
}

QString dateText(const QDate& date) {
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

} // namespace brevaro
