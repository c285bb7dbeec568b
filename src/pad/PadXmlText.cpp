#include "pad/PadXmlText.h"
#include "pad/PadCheck.h"

#include <QRegularExpression>

namespace brevaro {

namespace {

const QString kNamed[] = {QStringLiteral("amp"), QStringLiteral("lt"), QStringLiteral("gt"),
                          QStringLiteral("quot"), QStringLiteral("apos")};
const QChar kNamedChars[] = {u'&', u'<', u'>', u'"', u'\''};

// A reference starting at an "&": its length and the character it stands for (0 when the
// reference is well formed but names no character XML knows); length 0 when it is no
// reference at all.
struct Reference {
    qsizetype length = 0;
    char32_t character = 0;
    QString name;
};

Reference referenceAt(QStringView s, qsizetype at) {
    static const QRegularExpression ref(
        QStringLiteral("&(#[0-9]+|#x[0-9A-Fa-f]+|[A-Za-z_:][A-Za-z0-9_:.-]*);"));
    const auto m = ref.match(s, at, QRegularExpression::NormalMatch,
                             QRegularExpression::AnchorAtOffsetMatchOption);
    if (!m.hasMatch())
        return {};
    Reference r;
    r.length = m.capturedLength();
    r.name = m.captured(1);
    if (r.name.startsWith(u'#')) {
        bool ok = false;
        const uint code = r.name.startsWith(QLatin1String("#x")) ? r.name.mid(2).toUInt(&ok, 16)
                                                                 : r.name.mid(1).toUInt(&ok);
        const bool legal =
            ok && (code == 0x9 || code == 0xA || code == 0xD || (code >= 0x20 && code <= 0xD7FF) ||
                   (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF));
        r.character = legal ? code : 0;
        return r;
    }
    for (std::size_t i = 0; i < std::size(kNamed); ++i)
        if (r.name == kNamed[i])
            r.character = kNamedChars[i].unicode();
    return r;
}

bool illegalControl(QChar ch) {
    const char16_t u = ch.unicode();
    return (u < 0x20 && u != 0x9 && u != 0xA && u != 0xD) || u == 0xFFFE || u == 0xFFFF;
}

bool knownReferenceAt(QStringView s, qsizetype at) {
    const Reference r = referenceAt(s, at);
    return r.length > 0 && r.character != 0;
}

} // namespace

QString wellFormedXmlText(const QString& value) {
    if (!value.contains(u'&') && !value.contains(u'<') && !value.contains(u"]]>"))
        return value;
    QString out;
    out.reserve(value.size() + 16);
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar ch = value[i];
        if (ch == u'&' && !knownReferenceAt(value, i))
            out += QStringLiteral("&amp;");
        else if (ch == u'<')
            out += QStringLiteral("&lt;");
        else if (ch == u'>' && i >= 2 && value[i - 1] == u']' && value[i - 2] == u']')
            out += QStringLiteral("&gt;");
        else
            out += ch;
    }
    return out;
}

QString decodedXmlText(QStringView value) {
    if (!value.contains(u'&'))
        return value.toString();
    QString out;
    out.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == u'&') {
            const Reference r = referenceAt(value, i);
            // An "&amp;" before what would read as a reference once decoded ("&amp;lt;" is
            // the text "&lt;") stays, so that writing it again gives the same text.
            const bool keep = r.character == u'&' &&
                              knownReferenceAt(QString(u'&' + value.mid(i + r.length, 16)), 0);
            if (r.length > 0 && r.character != 0 && !keep) {
                out += QString::fromUcs4(&r.character, 1);
                i += r.length - 1;
                continue;
            }
            if (keep) {
                out += value.mid(i, r.length);
                i += r.length - 1;
                continue;
            }
        }
        out += value[i];
    }
    return out;
}

QString excerpt(const QString& value, qsizetype at) {
    constexpr qsizetype kMax = 60;
    QString flat = value;
    flat.replace(QStringLiteral("\r\n"), QStringLiteral(" "))
        .replace(u'\n', u' ')
        .replace(u'\r', u' ');
    if (flat.size() <= kMax)
        return flat;
    // A CR LF became one blank: the place moves back by one for each before it.
    at -= value.left(at).count(QStringLiteral("\r\n"));
    const qsizetype from = std::clamp<qsizetype>(at - kMax / 3, 0, flat.size() - kMax);
    return (from > 0 ? QStringLiteral("...") : QString()) + flat.mid(from, kMax) +
           (from + kMax < flat.size() ? QStringLiteral("...") : QString());
}

QString xmlParsedText(const QString& written) {
    QString out;
    out.reserve(written.size());
    for (qsizetype i = 0; i < written.size(); ++i) {
        const QChar ch = written[i];
        if (ch == u'\r') {
            out += u'\n';
            if (i + 1 < written.size() && written[i + 1] == u'\n')
                ++i;
            continue;
        }
        if (ch == u'&') {
            const Reference r = referenceAt(written, i);
            if (r.length > 0 && r.character != 0) {
                out += QString::fromUcs4(&r.character, 1);
                i += r.length - 1;
                continue;
            }
        }
        out += ch;
    }
    return out;
}

std::vector<PadFinding> xmlTextProblems(const PadWrittenValue& v) {
    // A bare "&", a "<" and "]]>" are escaped as they are written. What remains: a reference
    // XML does not know is written as text (so it shows as typed, not as its character), a tag
    // shows as text, and a control character cannot be written at all.
    enum Kind { UnknownRef, Tag, Control, KindCount };
    qsizetype first[KindCount] = {};
    int count[KindCount] = {};
    QString unknownName, firstTag;
    QChar control;
    const QString& s = v.value;
    static const QRegularExpression tag(QStringLiteral("</?[A-Za-z][^<>&]*>"));
    for (qsizetype i = 0; i < s.size(); ++i) {
        int kind = -1;
        const qsizetype start = i; // a reference or a tag is skipped whole
        const QChar ch = s[i];
        if (ch == u'&') {
            const Reference r = referenceAt(s, i);
            if (r.length > 0) {
                if (r.character == 0) {
                    kind = UnknownRef;
                    if (unknownName.isEmpty())
                        unknownName = s.mid(i, r.length);
                }
                i += r.length - 1;
            }
        } else if (ch == u'<') {
            // A whole tag counts once: its ">" is not looked at again.
            const auto m = tag.match(s, i, QRegularExpression::NormalMatch,
                                     QRegularExpression::AnchorAtOffsetMatchOption);
            if (m.hasMatch()) {
                kind = Tag;
                if (firstTag.isEmpty())
                    firstTag = m.captured(0);
                i += m.capturedLength() - 1;
            }
        } else if (illegalControl(ch)) {
            kind = Control;
            if (control.isNull())
                control = ch;
        }
        if (kind < 0)
            continue;
        if (count[kind]++ == 0)
            first[kind] = start;
    }
    std::vector<PadFinding> out;
    for (int kind = 0; kind < KindCount; ++kind) {
        if (count[kind] == 0)
            continue;
        const QString times =
            count[kind] > 1 ? QStringLiteral(" (%1 times)").arg(count[kind]) : QString();
        PadFinding f;
        f.severity = PadFinding::Severity::Warning;
        switch (kind) {
        case UnknownRef:
            f.message = QStringLiteral("\"%1\"%2 is not a reference XML knows (only &amp; &lt; "
                                       "&gt; &quot; &apos; and numbers like &#169;): readers "
                                       "show it as typed; type the character itself")
                            .arg(unknownName, times);
            break;
        case Tag:
            f.message = QStringLiteral("the tag \"%1\"%2 shows as text: directories take no "
                                       "HTML; remove it")
                            .arg(firstTag, times);
            break;
        case Control:
            f.severity = PadFinding::Severity::Error;
            f.message =
                QStringLiteral("the control character U+%1%2 is not allowed in XML; "
                               "remove it")
                    .arg(QString::number(control.unicode(), 16).toUpper().rightJustified(4, u'0'))
                    .arg(times);
            break;
        }
        f.element = v.element;
        f.value = excerpt(s, first[kind]);
        f.side = v.side;
        f.field = v.field;
        f.entry = v.entry;
        out.push_back(std::move(f));
    }
    return out;
}

} // namespace brevaro
