#include "store/SaveIntent.h"

#include <QRegularExpression>

namespace brevaro {

bool SaveIntent::isRecordFileName(const QString& name) {
    static const QRegularExpression pattern(
        QStringLiteral("^(company|[1-9][0-9]{0,8})\\.(dta|extra\\.json)$"));
    return pattern.match(name).hasMatch();
}

QByteArray SaveIntent::toBytes() const {
    QString text = QStringLiteral("save\n");
    for (const QString& name : written)
        text += QStringLiteral("write ") + name + u'\n';
    for (const QString& name : removed)
        text += QStringLiteral("remove ") + name + u'\n';
    return text.toUtf8();
}

std::optional<SaveIntent> SaveIntent::parse(const QByteArray& bytes, QString* error) {
    if (bytes.size() > kMaxBytes) {
        *error = QStringLiteral("it is far too long");
        return std::nullopt;
    }
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
    if (lines.isEmpty() || lines.front() != QLatin1String("save")) {
        *error = QStringLiteral("it does not start with \"save\"");
        return std::nullopt;
    }
    SaveIntent intent;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QString& line = lines[i];
        const qsizetype blank = line.indexOf(u' ');
        const QString verb = line.left(blank);
        const QString name = blank < 0 ? QString() : line.mid(blank + 1);
        const bool known = verb == QLatin1String("write") || verb == QLatin1String("remove");
        if (!known || !isRecordFileName(name) || intent.written.contains(name) ||
            intent.removed.contains(name)) {
            *error = QStringLiteral("line %1 is not a step of a save").arg(i + 1);
            return std::nullopt;
        }
        (verb == QLatin1String("write") ? intent.written : intent.removed) << name;
    }
    return intent;
}

} // namespace brevaro
