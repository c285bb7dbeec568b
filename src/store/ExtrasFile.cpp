#include "store/ExtrasFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <algorithm>

namespace brevaro {

namespace {

constexpr auto kFormat = "brevaro extra fields 1";

QJsonObject mapToJson(const FixedRecord::Extras& values) {
    QJsonObject o;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        o.insert(it.key(), it.value());
    return o;
}

// The text values of o; anything else is named in *problems.
FixedRecord::Extras mapFromJson(const QJsonObject& o, const QString& where, QStringList* problems) {
    FixedRecord::Extras values;
    for (auto it = o.constBegin(); it != o.constEnd(); ++it) {
        if (!it.value().isString() || it.value().toString().size() > ExtrasFile::kMaxValueLength ||
            it.key().isEmpty()) {
            *problems << QStringLiteral("%1: the value of \"%2\" is not a text it can keep")
                             .arg(where, it.key());
            continue;
        }
        if (!it.value().toString().isEmpty())
            values.insert(it.key(), it.value().toString());
    }
    return values;
}

} // namespace

QByteArray ExtrasFile::toBytes() const {
    QJsonArray list;
    for (const ExtrasEntry& e : entries) {
        QJsonObject o{{QStringLiteral("number"), e.number}, {QStringLiteral("name"), e.name}};
        if (!e.later.isEmpty())
            o.insert(QStringLiteral("later"), mapToJson(e.later));
        if (!e.whole.isEmpty())
            o.insert(QStringLiteral("whole"), mapToJson(e.whole));
        list.append(o);
    }
    const QJsonObject root{{QStringLiteral("format"), QLatin1String(kFormat)},
                           {QStringLiteral("records"), recordCount},
                           {QStringLiteral("entries"), list}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

ExtrasFile ExtrasFile::parse(const QByteArray& bytes, QStringList* problems) {
    ExtrasFile file;
    QJsonParseError error;
    const QJsonDocument doc =
        bytes.size() > kMaxBytes ? QJsonDocument() : QJsonDocument::fromJson(bytes, &error);
    const QJsonObject root = doc.object();
    if (!doc.isObject() ||
        root.value(QStringLiteral("format")).toString() != QLatin1String(kFormat)) {
        *problems << QStringLiteral("it is not a file of extra fields that this program wrote");
        return file;
    }
    file.recordCount = std::max(0, root.value(QStringLiteral("records")).toInt());
    QSet<int> numbers;
    const QJsonArray list = root.value(QStringLiteral("entries")).toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        const QJsonObject o = list.at(i).toObject();
        const QString where = QStringLiteral("entry %1").arg(i + 1);
        const QJsonValue number = o.value(QStringLiteral("number"));
        ExtrasEntry e;
        e.number = number.toInt();
        e.name = o.value(QStringLiteral("name")).toString();
        if (!number.isDouble() || e.number < 1 || e.number != number.toDouble() ||
            numbers.contains(e.number) || e.name.size() > kMaxValueLength) {
            *problems << QStringLiteral("%1 does not name a record; it was left out").arg(where);
            continue;
        }
        numbers.insert(e.number);
        e.later = mapFromJson(o.value(QStringLiteral("later")).toObject(), where, problems);
        e.whole = mapFromJson(o.value(QStringLiteral("whole")).toObject(), where, problems);
        if (!e.later.isEmpty() || !e.whole.isEmpty())
            file.entries.push_back(std::move(e));
    }
    std::sort(file.entries.begin(), file.entries.end(),
              [](const ExtrasEntry& a, const ExtrasEntry& b) { return a.number < b.number; });
    return file;
}

std::vector<ExtrasEntry> ExtrasFile::matchRecords(const QStringList& names) {
    std::vector<ExtrasEntry> kept;
    std::vector<ExtrasEntry> unmatched;
    QSet<int> taken;
    auto byNumber = [&](const ExtrasEntry& e) {
        return e.number <= names.size() && names.at(e.number - 1) == e.name;
    };
    for (ExtrasEntry& e : entries)
        if (byNumber(e))
            taken.insert(e.number);
    for (ExtrasEntry& e : entries) {
        if (!byNumber(e)) {
            const int first = int(names.indexOf(e.name));
            const bool unique = first >= 0 && names.indexOf(e.name, first + 1) < 0;
            if (!unique || taken.contains(first + 1)) {
                unmatched.push_back(std::move(e));
                continue;
            }
            e.number = first + 1;
            taken.insert(e.number);
        }
        kept.push_back(std::move(e));
    }
    std::sort(kept.begin(), kept.end(),
              [](const ExtrasEntry& a, const ExtrasEntry& b) { return a.number < b.number; });
    entries = std::move(kept);
    recordCount = int(names.size());
    return unmatched;
}

const ExtrasEntry* ExtrasFile::entry(int n) const {
    const auto it = std::find_if(entries.begin(), entries.end(),
                                 [n](const ExtrasEntry& e) { return e.number == n; });
    return it == entries.end() ? nullptr : &*it;
}

void ExtrasFile::setEntry(int n, const QString& name, const FixedRecord& record) {
    const auto it = std::find_if(entries.begin(), entries.end(),
                                 [n](const ExtrasEntry& e) { return e.number >= n; });
    const bool present = it != entries.end() && it->number == n;
    if (!record.hasExtras()) {
        if (present)
            entries.erase(it);
        return;
    }
    ExtrasEntry e{n, name, record.laterValues(), record.wholeTexts()};
    if (present)
        *it = std::move(e);
    else
        entries.insert(it, std::move(e));
}

void ExtrasFile::removeRecord(int n) {
    std::erase_if(entries, [n](const ExtrasEntry& e) { return e.number == n; });
    for (ExtrasEntry& e : entries)
        if (e.number > n)
            --e.number;
    recordCount = std::max(0, recordCount - 1);
}

} // namespace brevaro
