#include "pad/PadImporter.h"

#include "AppVersion.h"
#include "pad/PadImportTarget.h"
#include "pad/PadLaterLayout.h"
#include "pad/PadLayout.h"
#include "pad/PadText.h"
#include "pad/PadTokens.h"
#include "pad/PadXmlText.h"
#include "platform/Prompts.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "platform/Win1252.h"
#include "records/ExtraFields.h"
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

// Whether the 3.11 and 4.0 documents write a record field.
bool writtenByLaterVersions(RecordSide side, int field) {
    if (side == RecordSide::Program &&
        std::find(descriptionFields().begin(), descriptionFields().end(),
                  static_cast<ProgramField>(field)) != descriptionFields().end())
        return true;
    for (const LaterPadRow& row : laterPadRows())
        if (row.side == side && row.field == field && row.kind != LaterRowKind::Descriptions)
            return true;
    return side == RecordSide::Program && field == int(ProgramField::ExpireOtherInfo);
}

// What the 1.15 record cannot keep of a value: the characters Windows-1252 has no place for,
// the part beyond the field's width, the list items the 1.15 list does not have.
void reportLoss(const Target& t, QStringView tag, const QString& value, int language,
                const QString& stored, bool listsKept, QStringList& notKept) {
    const RecordField& field = layoutOf(t.side).field(t.field);
    QString element = tag.mid(1, tag.size() - 2).toString();
    if (t.action == PadImport::Description)
        element += QStringLiteral(" (%1)").arg(trimBlanks(languageList().value(language)));
    if (t.action == PadImport::FlagList) {
        const QStringList& items = flagListItems(static_cast<ProgramField>(t.field));
        const QStringList& later = t.field == int(ProgramField::OSSupported)
                                       ? publishedList(PublishedList::Systems40)
                                       : publishedList(PublishedList::Languages);
        QStringList keptLater, dropped;
        const QStringList given = value.split(u',', Qt::SkipEmptyParts);
        for (const QString& token : given) {
            const bool named = t.field == int(ProgramField::OSSupported) &&
                               !systemOf115(token.trimmed()).isEmpty();
            const bool kept =
                named || std::any_of(items.begin(), items.end(), [&](const QString& item) {
                    return token.contains(trimBlanks(item));
                });
            if (kept || token.trimmed().isEmpty())
                continue;
            (listsKept && later.contains(token.trimmed()) ? keptLater : dropped) << token.trimmed();
        }
        if (!keptLater.isEmpty())
            notKept << QStringLiteral("%1: %2 of %3 have no place in the PAD 1.15 list and are "
                                      "kept for PAD 3.11 and 4.0 only: %4")
                           .arg(element)
                           .arg(keptLater.size())
                           .arg(given.size())
                           .arg(keptLater.join(QStringLiteral(", ")));
        if (!dropped.isEmpty())
            notKept << QStringLiteral("%1: %2 of %3 have no place in %4 and were left out: %5")
                           .arg(element)
                           .arg(dropped.size())
                           .arg(given.size())
                           .arg(listsKept
                                    ? QStringLiteral("the PAD 1.15 list nor in the later ones")
                                    : QStringLiteral("the PAD 1.15 list"))
                           .arg(dropped.join(QStringLiteral(", ")));
        return;
    }
    if (!field.isText())
        return;
    const QString kept = stored.left(field.width);
    const qsizetype lost = std::count_if(
        kept.begin(), kept.end(), [](QChar c) { return c != u'?' && toWin1252Char(c) == '?'; });
    // The whole text is kept beside the record: the window has it, and the later versions
    // write it where they have the element; a 1.15 file has what the record holds.
    const QString whole = writtenByLaterVersions(t.side, t.field)
                              ? QStringLiteral("PAD 3.11 and 4.0 files hold the whole text")
                              : QStringLiteral("the whole text is kept with the program");
    if (lost > 0)
        notKept << QStringLiteral("%1: %2 character(s) that Windows-1252 cannot hold are \"?\" in "
                                  "PAD 1.15 files; %3")
                       .arg(element)
                       .arg(lost)
                       .arg(whole);
    if (stored.size() > field.width)
        notKept << QStringLiteral("%1: %2 characters, of which a PAD 1.15 file holds the first %3 "
                                  "(\"%4\" is left out there); %5")
                       .arg(element)
                       .arg(stored.size())
                       .arg(field.width)
                       .arg(excerptOf(stored.mid(field.width)), whole);
}

// The elements of the later versions that go to extra fields, by opening tag: the tags of the
// later layout's extra rows, and its systems, languages and class.
struct ExtraTarget {
    RecordSide side = RecordSide::None;
    QString name;
    bool listed = false; // a token list that the 1.15 record also takes, in its own way
};

const QHash<QString, ExtraTarget>& extraTargets() {
    static const QHash<QString, ExtraTarget> table = [] {
        QHash<QString, ExtraTarget> t;
        for (const LaterPadRow& row : laterPadRows()) {
            const QString tag = u'<' + QLatin1String(elementOf(row)) + u'>';
            if (row.kind == LaterRowKind::Extra)
                t.insert(tag, {row.side, QLatin1String(row.extra), false});
            else if (row.kind == LaterRowKind::OsTokens || row.kind == LaterRowKind::Languages ||
                     row.kind == LaterRowKind::CategoryClass)
                t.insert(tag, {RecordSide::Program, QLatin1String(elementOf(row)),
                               row.kind != LaterRowKind::CategoryClass});
        }
        return t;
    }();
    return table;
}

// Tokens of a published list, in the list's order, joined by commas.
QString inListOrder(QStringList tokens, const QStringList& list) {
    std::sort(tokens.begin(), tokens.end(), [&](const QString& a, const QString& b) {
        return list.indexOf(a) < list.indexOf(b);
    });
    return tokens.join(u',');
}

// The 1.15 list items a list element marks: those its text names, and for the systems those
// a later token names exactly.
QList<bool> markedItems(ProgramField f, const QString& value) {
    const QStringList& items = flagListItems(f);
    QStringList named;
    if (f == ProgramField::OSSupported)
        for (const QString& token : value.split(u','))
            named << systemOf115(token.trimmed());
    QList<bool> marks;
    for (const QString& item : items)
        marks << (findFrom(1, value, trimBlanks(item)) > 0 || named.contains(trimBlanks(item)));
    return marks;
}

// The later tokens of a list element of a version 1 file that names more than the 1.15 list
// holds: the tokens of the 1.15 items it marks, and those of the later list it names. Empty
// when the 1.15 list holds everything, so that the later versions follow the 1.15 list.
QString laterTokensOfOldList(ProgramField f, const QString& value) {
    ProgramRecord marked;
    const QList<bool> marks = markedItems(f, value);
    for (int i = 0; i < marks.size(); ++i)
        marked.setNumber(f, marks[i] ? -1 : 0, i);
    QStringList tokens = f == ProgramField::OSSupported ? laterOsTokens(marked, PadVersion::V4_0)
                                                        : laterLanguageTokens(marked);
    const QStringList& list = f == ProgramField::OSSupported
                                  ? publishedList(PublishedList::Systems40)
                                  : publishedList(PublishedList::Languages);
    bool more = false;
    for (const QString& token : value.split(u',')) {
        const QString t = token.trimmed();
        if (list.contains(t) && !tokens.contains(t)) {
            tokens << t;
            more = true;
        }
    }
    if (!more)
        return QString();
    return inListOrder(tokens, list);
}

// The later tokens of a list element of a later file: those of the later list, and for a
// value that is a 1.15 item (an older later version's name) that item's token; in the later
// list's order.
QString laterTokensOfLaterList(ProgramField f, const QString& value) {
    const bool systems = f == ProgramField::OSSupported;
    const QStringList& list =
        systems ? publishedList(PublishedList::Systems40) : publishedList(PublishedList::Languages);
    QStringList tokens;
    for (const QString& token : value.split(u',')) {
        QString t = token.trimmed();
        if (!list.contains(t) && systems)
            for (const OsMapping& m : osMappings())
                if (t == QLatin1String(m.from))
                    t = QLatin1String(m.to);
        if (list.contains(t) && !tokens.contains(t))
            tokens << t;
    }
    return inListOrder(tokens, list);
}

// Keeps in value only what the published list of an extra field has (a field without a list
// keeps everything); returns what it left out, joined by ", ".
QString keepListed(const QString& name, QString& value) {
    const ExtraField* field = extraField(name);
    const QStringList choices = field ? extraFieldChoices(*field) : QStringList();
    if (choices.isEmpty())
        return QString();
    QStringList kept, dropped;
    const QStringList given = field->kind == ExtraKind::TokenList
                                  ? value.split(u',', Qt::SkipEmptyParts)
                                  : QStringList{value};
    for (const QString& token : given) {
        const QString t = token.trimmed();
        if (t.isEmpty())
            continue;
        (choices.contains(t) && !kept.contains(t) ? kept : dropped) << t;
    }
    value = kept.join(u',');
    return dropped.join(QStringLiteral(", "));
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
        const QList<bool> marks = markedItems(static_cast<ProgramField>(t.field), value);
        for (int i = 0; i < marks.size(); ++i)
            to.setFieldFlag(t.side, t.field, i, marks[i]);
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
    const auto& extras = extraTargets();
    // A file that names no company or no program must not write its values over the company
    // or program the window happens to show: it gets one of its own, named after the author.
    bool companyNamed = false, programNamed = false;
    QString first, last;
    bool later = false; // a file of version 2 or later: its lists hold the later tokens
    scanPadTags(text, [&](QStringView tag, QStringView value, int) {
        if (tag == u"<MASTER_PAD_VERSION>")
            later = !trimmed(value).startsWith(u"1.");
        else if (tag == u"<Company_Name>" && !value.isEmpty())
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
        const QString tagText = tag.toString();
        const auto extra = extras.constFind(tagText);
        const bool pressKeywords = tag == u"<Keywords>" && language < 0;
        bool listsKept = false;
        // A value with a tag in it is a block the scan took for an element (an empty press
        // release block, say): no extra field takes it.
        if (extra != extras.constEnd() && (tag != u"<Keywords>" || pressKeywords) &&
            !value.contains(u'<')) {
            if (!programMade && extra->side == RecordSide::Program) {
                target.importProgram(QStringLiteral("Unnamed program"));
                programMade = true;
            }
            QString kept = decodedXmlText(value);
            QString dropped;
            const ProgramField listField = extra->name == QLatin1String("Program_OS_Support")
                                               ? ProgramField::OSSupported
                                               : ProgramField::LanguageSupported;
            if (extra->listed)
                kept = later ? laterTokensOfLaterList(listField, kept)
                             : laterTokensOfOldList(listField, kept);
            else
                dropped = keepListed(extra->name, kept);
            listsKept = extra->listed && !kept.isEmpty();
            if (!extra->listed || !kept.isEmpty())
                target.setExtraValue(extra->side, extra->name, kept);
            // What the lists drop is said with the 1.15 list's report below.
            if (notKept && !dropped.isEmpty() && !extra->listed)
                notKept->append(QStringLiteral("%1: not in the published list of PAD 4.0, so left "
                                               "out of the later versions: %2")
                                    .arg(tagText.mid(1, tagText.size() - 2), dropped));
        }
        const auto found = table.constFind(tagText);
        if (found == table.constEnd() || pressKeywords)
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
            reportLoss(*found, tag, decoded, language, stored, listsKept, *notKept);
    });
    return true;
}

} // namespace brevaro
