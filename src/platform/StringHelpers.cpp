#include "platform/StringHelpers.h"

namespace brevaro {

QString trimBlanks(QStringView text) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ')
        ++begin;
    while (end > begin && text[end - 1] == u' ')
        --end;
    return text.sliced(begin, end - begin).toString();
}

QStringList splitFields(const QString& text, QStringView separator) {
    return text.split(separator.toString(), Qt::KeepEmptyParts);
}

qsizetype findFrom(qsizetype start, QStringView text, QStringView pattern) {
    if (pattern.isEmpty())
        return 0;
    const qsizetype from = std::max<qsizetype>(start, 1) - 1;
    if (from >= text.size())
        return 0;
    const qsizetype at = text.indexOf(pattern, from);
    return at < 0 ? 0 : at + 1;
}

QString removeAll(QString text, QStringView pattern) {
    if (!pattern.isEmpty())
        text.remove(pattern.toString());
    return text;
}

QString escapeControls(QStringView text) {
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u'\\')
            out += QStringLiteral("\\\\");
        else if (u == u'\t')
            out += QStringLiteral("\\t");
        else if (u == u'\n')
            out += QStringLiteral("\\n");
        else if (u == u'\r')
            out += QStringLiteral("\\r");
        else if (u < 0x20 || (u >= 0x7F && u < 0xA0))
            out += QStringLiteral("\\x%1").arg(int(u), 2, 16, QLatin1Char('0'));
        else
            out += c;
    }
    return out;
}

} // namespace brevaro
