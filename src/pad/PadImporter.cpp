#include "pad/PadImporter.h"

#include "AppVersion.h"
#include "pad/PadImportTarget.h"
#include "pad/PadLayout.h"
#include "pad/PadText.h"
#include "pad/PadTokens.h"
#include "pad/PadXmlText.h"
#include "platform/Prompts.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "platform/Win1252.h"
#include "records/ValueLists.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

namespace brevaro {

namespace {

QStringView trimmed(QStringView s) {
    qsizetype b = 0, e = s.size();
    while (b < e && s[b] == u' ')
        ++b;
    while (e > b && s[e - 1] == u' ')
        --e;
    return s.sliced(b, e - b);
}

// A left-out part as the report quotes it: its first 40 characters.
QString excerptOf(const QString& text) {
    const QString flat = QString(text).replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    return flat.size() > 40 ? flat.left(40) + QStringLiteral("...") : flat;
}

QString decodePad(const QByteArray& bytes) {
    static const QRegularExpression declared(
        QStringLiteral("encoding\\s*=\\s*[\"']([A-Za-z0-9_.:-]+)[\"']"));
    const qsizetype end = bytes.indexOf("?>");
    const QString head =
        QString::fromLatin1(bytes.left(end < 0 ? 256 : std::min<qsizetype>(end, 1024)));
    const QString name = declared.match(head).captured(1).toLower();
    if (name == QLatin1String("utf-8") || name == QLatin1String("utf8"))
        return QString::fromUtf8(bytes);
    if (name == QLatin1String("iso-8859-1") || name == QLatin1String("latin1") ||
        name == QLatin1String("iso8859-1"))
        return QString::fromLatin1(bytes);
    return fromWin1252(bytes);
}

struct Target {
    RecordSide side = RecordSide::None;
    int field = -1;
    PadImport action = PadImport::None;
};

// Every element the importer knows, from the two records' field tables.
const QHash<QString, Target>& dispatchTable() {
    static const QHash<QString, Target> table = [] {
        QHash<QString, Target> t;
        for (const RecordLayout* layout : {&companyLayout(), &programLayout()})
            for (int f = 0; f < static_cast<int>(layout->fields.size()); ++f) {
                const RecordField& field = layout->field(f);
                if (field.padElement && field.import != PadImport::None)
                    t.insert(u'<' + QLatin1String(field.padElement) + u'>',
                             Target{layout->side, f, field.import});
            }
        return t;
    }();
    return table;
}

// What the 1.15 record cannot keep of a value: the characters Windows-1252 has no place for,
// the part beyond the field's width, the list items the 1.15 list does not have.
void reportLoss(const Target& t, QStringView tag, const QString& value, int language,
                const QString& stored, QStringList& notKept) {
    const RecordField& field = layoutOf(t.side).field(t.field);
    QString element = tag.mid(1, tag.size() - 2).toString();
    if (t.action == PadImport::Description)
        element += QStringLiteral(" (%1)").arg(trimBlanks(languageList().value(language)));
    if (t.action == PadImport::FlagList) {
        const QStringList& items = flagListItems(static_cast<ProgramField>(t.field));
        QStringList dropped;
        const QStringList given = value.split(u',', Qt::SkipEmptyParts);
        for (const QString& token : given) {
            const bool named = t.field == int(ProgramField::OSSupported) &&
                               !systemOf115(token.trimmed()).isEmpty();
            const bool kept =
                named || std::any_of(items.begin(), items.end(), [&](const QString& item) {
                    return token.contains(trimBlanks(item));
                });
            if (!kept && !token.trimmed().isEmpty())
                dropped << token.trimmed();
        }
        if (!dropped.isEmpty())
            notKept << QStringLiteral("%1: %2 of %3 have no place in the PAD 1.15 list and were "
                                      "left out: %4")
                           .arg(element)
                           .arg(dropped.size())
                           .arg(given.size())
                           .arg(dropped.join(QStringLiteral(", ")));
        return;
    }
    if (!field.isText())
        return;
    const QString kept = stored.left(field.width);
    const qsizetype lost = std::count_if(
        kept.begin(), kept.end(), [](QChar c) { return c != u'?' && toWin1252Char(c) == '?'; });
    if (lost > 0)
        notKept << QStringLiteral("%1: %2 character(s) that Windows-1252 cannot hold became \"?\"")
                       .arg(element)
                       .arg(lost);
    if (stored.size() > field.width)
        notKept << QStringLiteral("%1: cut from %2 to %3 characters, the most a PAD 1.15 record "
                                  "holds: \"%4\" was left out")
                       .arg(element)
                       .arg(stored.size())
                       .arg(field.width)
                       .arg(excerptOf(stored.mid(field.width)));
}

void dispatch(PadImportTarget& to, const Target& t, const QString& value, int language) {
    switch (t.action) {
    case PadImport::None:
        return;
    case PadImport::Text:
        return to.setFieldText(t.side, t.field, 0, value);
    case PadImport::CompanyName:
        return to.importCompany(value);
    case PadImport::ProgramName:
        return to.importProgram(value);
    case PadImport::FlagList: {
        const QStringList& items = flagListItems(static_cast<ProgramField>(t.field));
        // A later version's token that names a 1.15 system exactly marks that system too.
        QStringList named;
        if (t.field == int(ProgramField::OSSupported))
            for (const QString& token : value.split(u','))
                named << systemOf115(token.trimmed());
        for (int i = 0; i < items.size(); ++i)
            to.setFieldFlag(t.side, t.field, i,
                            findFrom(1, value, trimBlanks(items[i])) > 0 ||
                                named.contains(trimBlanks(items[i])));
        return;
    }
    case PadImport::CheckExact:
        return to.setFieldFlag(t.side, t.field, 0, value == QLatin1String("Y"));
    case PadImport::CheckAnyCase:
        return to.setFieldFlag(t.side, t.field, 0, value.toUpper() == QLatin1String("Y"));
    case PadImport::ExpireOption: {
        static const QStringList bases = {QStringLiteral("Days"), QStringLiteral("Uses"),
                                          QStringLiteral("Either/Or"), QStringLiteral("Date")};
        const int option = static_cast<int>(bases.indexOf(value));
        if (option >= 0)
            to.setFieldFlag(t.side, t.field, option, true);
        return;
    }
    case PadImport::Description:
        to.setFieldText(t.side, t.field, language, value);
        if (!trimBlanks(value).isEmpty())
            to.setFieldFlag(RecordSide::Program, static_cast<int>(ProgramField::DescriptionActive),
                            language, true);
        return;
    case PadImport::Append:
        return to.setFieldText(t.side, t.field, 0,
                               to.fieldText(t.side, t.field, 0) + value + QStringLiteral("\r\n"));
    }
}

} // namespace

QString readPadFileText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return trimBlanks(linesWithCrLf(decodePad(file.readAll())));
}

void scanPadTags(
    QStringView t,
    const std::function<void(QStringView tag, QStringView value, int language)>& visit) {
    const QStringList& languages = languageList();
    const qsizetype n = t.size();
    // The next "</" only moves forward as the scan does, so it is searched for once per
    // occurrence rather than once per tag: the scan stays linear.
    qsizetype closeFrom = -1, close = -1;
    qsizetype closeEndFor = -1, closeEnd = -1;
    int language = 0;
    qsizetype p = 0;
    while (p < n) {
        const qsizetype a = t.indexOf(u'<', p);
        if (a < 0)
            break;
        const qsizetype b = t.indexOf(u'>', a);
        if (b < 0)
            break;
        const QStringView inner = trimmed(t.sliced(a + 1, b - a - 1));
        if (closeFrom < 0 || (close >= 0 && close < a)) {
            close = t.indexOf(u"</", a);
            closeFrom = a;
        }
        QStringView tag, value;
        if (close > b) {
            if (closeEndFor != close) {
                closeEnd = t.indexOf(u'>', close);
                closeEndFor = close;
            }
            if (closeEnd >= 0 && trimmed(t.sliced(close + 2, closeEnd - close - 2)) == inner) {
                tag = trimmed(t.sliced(a, b - a + 1));
                value = trimmed(t.sliced(b + 1, close - b - 1));
            }
        }
        if (tag.contains(u"/>"))
            tag = value = QStringView();
        if (inner.size() <= 18) // the longest language name
            for (int i = 0; i < languages.size(); ++i)
                if (inner == languages[i])
                    language = i;
        // After the descriptions, a Keywords element is another block's (a 4.0 press release).
        if (inner == u"/Program_Descriptions")
            language = -1;
        if (!tag.isEmpty())
            visit(tag, value, language);
        p = b;
    }
}

bool ReadPADFile(PadImportTarget& target, Prompts& prompts, const QString& text,
                 QStringList* notKept) {
    if (!trimBlanks(text).left(5).toLower().startsWith(QLatin1String("<?xml"))) {
        prompts.beep();
        prompts.message(QStringLiteral("Invalid PAD XML File"),
                        QStringLiteral("Invalid PAD XML File\r\nMust start with: <?xml"));
        return false;
    }
    const auto& table = dispatchTable();
    // A file that names no company or no program must not write its values over the company
    // or program the window happens to show: it gets one of its own, named after the author.
    bool companyNamed = false, programNamed = false;
    QString first, last;
    scanPadTags(text, [&](QStringView tag, QStringView value, int) {
        if (tag == u"<Company_Name>" && !value.isEmpty())
            companyNamed = true;
        else if (tag == u"<Program_Name>" && !value.isEmpty())
            programNamed = true;
        else if (tag == u"<Author_First_Name>")
            first = decodedXmlText(value);
        else if (tag == u"<Author_Last_Name>")
            last = decodedXmlText(value);
    });
    if (!companyNamed) {
        const QString author = trimBlanks(QString(first + u' ' + last));
        target.importCompany(author.isEmpty() ? QStringLiteral("Imported company") : author);
    }
    bool programMade = programNamed;
    scanPadTags(text, [&](QStringView tag, QStringView value, int language) {
        const auto found = table.constFind(tag.toString());
        if (found == table.constEnd())
            return;
        const bool names =
            found->action == PadImport::CompanyName || found->action == PadImport::ProgramName;
        if (names && value.isEmpty())
            return; // an empty name would blank the shown record's name
        if (!programMade && found->side == RecordSide::Program &&
            found->action != PadImport::ProgramName) {
            target.importProgram(QStringLiteral("Unnamed program"));
            programMade = true;
        }
        if (found->action == PadImport::Description && language < 0)
            return;
        const QString decoded = decodedXmlText(value);
        // An appended text is measured whole, as the record keeps it.
        const QString stored =
            found->action == PadImport::Append
                ? target.fieldText(found->side, found->field, 0) + decoded + QStringLiteral("\r\n")
                : decoded;
        dispatch(target, *found, decoded, language);
        if (notKept)
            reportLoss(*found, tag, decoded, language, stored, *notKept);
    });
    return true;
}

} // namespace brevaro
