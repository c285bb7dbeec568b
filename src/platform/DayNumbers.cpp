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

QDate dateFromText(QStringView text) {
    if (text.size() != 10 || text[4] != u'-' || text[7] != u'-')
        return {};
    const auto digits = [&](int from, int count) {
        int value = 0;
        for (int i = from; i < from + count; ++i) {
            if (text[i] < u'0' || text[i] > u'9')
                return -1;
            value = value * 10 + (text[i].unicode() - u'0');
        }
        return value;
    };
    const int year = digits(0, 4), month = digits(5, 2), day = digits(8, 2);
    return year < 0 || month < 0 || day < 0 ? QDate() : QDate(year, month, day);
}

} // namespace brevaro
