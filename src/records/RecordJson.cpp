#include "records/RecordJson.h"

#include <limits>

#include "records/ExtraFields.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace brevaro {

QJsonObject recordToJson(const FixedRecord& record) {
    QJsonObject object;
    const auto& fields = record.layout().fields;
    for (int i = 0; i < static_cast<int>(fields.size()); ++i) {
        const RecordField& f = fields[static_cast<std::size_t>(i)];
        auto value = [&](int entry) -> QJsonValue {
            return f.isText() ? QJsonValue(record.wholeText(i, entry))
                              : QJsonValue(record.number(i, entry));
        };
        if (f.count == 1) {
            object.insert(QLatin1String(f.name), value(0));
        } else {
            QJsonArray array;
            for (int e = 0; e < f.count; ++e)
                array.append(value(e));
            object.insert(QLatin1String(f.name), array);
        }
    }
    for (const ExtraField& e : extraFields())
        if (e.side == record.layout().side)
            object.insert(QLatin1String(e.name), record.laterValue(QLatin1String(e.name)));
    return object;
}

namespace {

// Why value does not fit the extra field, or an empty string.
QString extraValueProblem(const ExtraField& e, const QString& value) {
    if (value.size() > e.maxLength)
        return QStringLiteral("%1 holds at most %2 characters")
            .arg(QLatin1String(e.name))
            .arg(e.maxLength);
    if (value.isEmpty())
        return QString();
    if (e.kind == ExtraKind::Address && !value.startsWith(QLatin1String("http://")) &&
        !value.startsWith(QLatin1String("https://")))
        return QStringLiteral("%1 takes an address that starts with http:// or https://")
            .arg(QLatin1String(e.name));
    const QStringList choices = extraFieldChoices(e);
    const QStringList given =
        e.kind == ExtraKind::TokenList ? value.split(u',') : QStringList{value};
    for (const QString& token : given)
        if (!choices.isEmpty() && !choices.contains(token.trimmed()))
            return QStringLiteral("\"%1\" is not one of the values of %2")
                .arg(token.trimmed(), QLatin1String(e.name));
    if ((e.kind == ExtraKind::Text || e.kind == ExtraKind::Choice ||
         e.kind == ExtraKind::Address) &&
        value.contains(u'\n'))
        return QStringLiteral("%1 takes one line").arg(QLatin1String(e.name));
    return QString();
}

} // namespace

bool FieldAssignment::parse(const QString& text, FieldAssignment* out) {
    static const QRegularExpression pattern(
        QStringLiteral("^([A-Za-z0-9_]+)(?:\\[(\\d+)\\])?=(.*)$"),
        QRegularExpression::DotMatchesEverythingOption);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    out->name = match.captured(1);
    out->index = -1;
    if (match.hasCaptured(2) && !match.captured(2).isEmpty()) {
        // An index too large for an int is out of every range, never wrapped.
        bool ok = false;
        out->index = match.captured(2).toInt(&ok);
        if (!ok)
            out->index = std::numeric_limits<int>::max();
    }
    out->value = match.captured(3);
    return true;
}

bool applyAssignment(FixedRecord& record, const FieldAssignment& a, QString* message) {
    const int field = record.layout().indexOf(a.name);
    if (const ExtraField* e = extraField(a.name);
        field < 0 && e && e->side == record.layout().side && a.index < 0) {
        QStringList tokens = a.value.split(u',');
        for (QString& t : tokens)
            t = t.trimmed();
        const QString value = e->kind == ExtraKind::TokenList ? tokens.join(u',') : a.value;
        *message = extraValueProblem(*e, value);
        if (!message->isEmpty())
            return false;
        record.setLaterValue(a.name, value);
        return true;
    }
    if (field < 0) {
        *message = QStringLiteral("there is no field %1").arg(a.name);
        return false;
    }
    const RecordField& f = record.layout().fields[static_cast<std::size_t>(field)];
    if (f.count > 1 && a.index < 0) {
        *message = QStringLiteral("%1 has %2 entries: write %1[i]=VALUE with i from 0 to %3")
                       .arg(a.name)
                       .arg(f.count)
                       .arg(f.count - 1);
        return false;
    }
    const int index = f.count > 1 ? a.index : 0;
    if (index >= f.count || (f.count == 1 && a.index > 0)) {
        *message = QStringLiteral("%1 has no entry %2").arg(a.name).arg(a.index);
        return false;
    }
    if (f.isText()) {
        record.setText(field, a.value, index);
        return true;
    }
    bool ok = false;
    const int number = a.value.trimmed().toInt(&ok);
    const int limit = f.type == FieldType::Int16 ? 32767 : 2147483647;
    if (!ok || number > limit || number < -limit - 1) {
        *message = QStringLiteral("%1 takes a whole number, not \"%2\"").arg(a.name, a.value);
        return false;
    }
    record.setNumber(field, number, index);
    return true;
}

} // namespace brevaro
