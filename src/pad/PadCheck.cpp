#include "pad/PadCheck.h"

#include "pad/PadFieldRules.h"
#include "pad/PadText.h"
#include "pad/PadTokens.h"
#include "pad/PadWrittenValues.h"
#include "records/ValueLists.h"

#include <QDate>
#include <QMap>
#include <QUrl>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

namespace brevaro {

namespace {

using Severity = PadFinding::Severity;
using PF = ProgramField;

PadFinding finding(Severity severity, const PadWrittenValue& v, const QString& message) {
    PadFinding f;
    f.severity = severity;
    f.element = v.element;
    f.value = excerpt(v.value);
    f.message = message;
    f.side = v.side;
    f.field = v.field;
    f.entry = v.entry;
    f.extra = v.extra;
    return f;
}

// Fields whose 1.15 values come from a list of their own, which may differ from the current
// rules' list: a value of the 1.15 list the rules no longer know is a note. Expire_Based_On
// is the one such element that no single field holds.
struct ListElement {
    RecordSide side;
    int field;
};
constexpr ListElement kListElements[] = {
    {RecordSide::Company, int(CompanyField::Country)},
    {RecordSide::Program, int(PF::CostOtherCode)},
    {RecordSide::Program, int(PF::ProgramType)},
    {RecordSide::Program, int(PF::ReleaseStatus)},
    {RecordSide::Program, int(PF::InstallSupport)},
    {RecordSide::Program, int(PF::OSSupported)},
    {RecordSide::Program, int(PF::LanguageSupported)},
    {RecordSide::Program, int(PF::SpecificCategory)},
};

bool isExpireBasedOn(const PadWrittenValue& v) {
    return v.side == RecordSide::Program && v.field == int(PF::ExpireBasedOn);
}

bool hasOldList(const PadWrittenValue& v) {
    return isExpireBasedOn(v) || std::any_of(std::begin(kListElements), std::end(kListElements),
                                             [&](const ListElement& l) {
                                                 return l.side == v.side && l.field == v.field;
                                             });
}

QStringList oldList(const PadWrittenValue& v) {
    if (isExpireBasedOn(v))
        return {QStringLiteral("Days"), QStringLiteral("Uses"), QStringLiteral("Either/Or"),
                QStringLiteral("Date")};
    return valueListOf(v.side, v.field)->items;
}

// The systems and languages are written as one comma-separated list.
bool severalItems(const PadWrittenValue& v) {
    return v.side == RecordSide::Program &&
           (v.field == int(PF::OSSupported) || v.field == int(PF::LanguageSupported));
}

QString quotedList(const QStringList& items) {
    return u'"' + items.join(QStringLiteral("\", \"")) + u'"';
}

void checkListValue(const PadWrittenValue& v, const QString& parsed, const PadFieldRule& rule,
                    std::vector<PadFinding>& out) {
    const QStringList items =
        severalItems(v) ? parsed.split(u',', Qt::SkipEmptyParts) : QStringList{parsed};
    QStringList older, unknown;
    const QStringList known = oldList(v);
    for (const QString& item : items) {
        if (rule.accepts(item))
            continue;
        (known.contains(item) ? older : unknown) << item;
    }
    if (!unknown.isEmpty())
        out.push_back(finding(
            Severity::Warning, v,
            quotedList(unknown) +
                (unknown.size() > 1 ? QStringLiteral(" are") : QStringLiteral(" is")) +
                QStringLiteral(" in neither the 1.15 list nor the current one; ") + rule.advice()));
    if (!older.isEmpty())
        out.push_back(finding(
            Severity::Note, v,
            quotedList(older) +
                (older.size() > 1
                     ? QStringLiteral(" are values of the PAD 1.15 list that Brevaro writes; "
                                      "the current rules (3.11) no longer list them. Directories "
                                      "that read 1.15 files take them; nothing to fix.")
                     : QStringLiteral(" is a value of the PAD 1.15 list that Brevaro writes; "
                                      "the current rules (3.11) no longer list it. Directories "
                                      "that read 1.15 files take it; nothing to fix."))));
}

bool isAddress(const PadWrittenValue& v) {
    return v.element.endsWith(QLatin1String("_URL")) || v.element.endsWith(QLatin1String("Page"));
}

// An address with a letter outside Latin-1: the published patterns let it pass, but many
// readers that fetch it do not; the percent-encoded form works everywhere.
bool checkAddressLetters(const PadWrittenValue& v, const QString& parsed,
                         std::vector<PadFinding>& out) {
    if (!isAddress(v))
        return false;
    for (QChar ch : parsed)
        if (ch.unicode() > 0xFF) {
            out.push_back(finding(Severity::Warning, v,
                                  QStringLiteral("holds \"%1\", a letter outside Latin-1, which "
                                                 "many readers cannot fetch; write the address "
                                                 "as %2")
                                      .arg(ch, QString::fromLatin1(QUrl(parsed).toEncoded()))));
            return true;
        }
    return false;
}

// A download address the published rule refuses for its extension, said in words.
bool explainDownloadExtension(const PadWrittenValue& v, const QString& parsed,
                              std::vector<PadFinding>& out) {
    static const QRegularExpression package(
        QStringLiteral("\\.(deb|rpm|AppImage|flatpak|snap|7z|xz|bz2|zst)$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto m = package.match(parsed);
    if (!v.element.contains(QLatin1String("Download_URL")) || !m.hasMatch())
        return false;
    out.push_back(finding(
        Severity::Warning, v,
        QStringLiteral("ends in .%1, which the published download rule refuses (it takes air apk "
                       "app bin com exe dmg hqx gz gzip jar msi rar sea sh sis sit sitx tar taz "
                       "tgx tgz uu z zip, in lower case); link a .tar.gz or .zip, or leave the "
                       "package to the page that lists it")
            .arg(m.captured(1))));
    return true;
}

void checkRule(const PadWrittenValue& v, PadVersion version, std::vector<PadFinding>& out) {
    const PadFieldRule* rule = padFieldRule(v.element, version);
    if (!rule)
        return;
    const QString parsed = xmlParsedText(v.value);
    if (parsed.isEmpty()) {
        if (rule->required)
            out.push_back(finding(Severity::Warning, v,
                                  QStringLiteral("is required by the published rules but empty; "
                                                 "it ") +
                                      rule->advice()));
        return;
    }
    if (version == PadVersion::V1_15 && hasOldList(v))
        return checkListValue(v, parsed, *rule, out);
    // (The later writers leave out trailing line breaks, which many readers keep as an
    // empty line: no written value has one.)
    const bool later = version != PadVersion::V1_15;
    if (later && checkAddressLetters(v, parsed, out))
        return;
    if (rule->accepts(parsed))
        return;
    if (later && explainDownloadExtension(v, parsed, out))
        return;
    // The published patterns are case-sensitive ("screen.GIF" fails).
    const QString hint = rule->accepts(parsed.toLower())
                             ? QStringLiteral(" (the rule takes lower-case letters only)")
                             : QString();
    out.push_back(finding(Severity::Warning, v, rule->advice() + hint));
}

const PadWrittenValue* find(const std::vector<PadWrittenValue>& values, const char* element) {
    for (const auto& v : values)
        if (v.element == QLatin1String(element))
            return &v;
    return nullptr;
}

bool isDigits(const QString& s) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]+$"));
    return digits.match(s).hasMatch();
}

// The file sizes as File Info computes them: KB and MB rounded half away from zero.
void checkSizes(const std::vector<PadWrittenValue>& values, std::vector<PadFinding>& out) {
    const PadWrittenValue* bytes = find(values, "File_Size_Bytes");
    const PadWrittenValue* kb = find(values, "File_Size_K");
    const PadWrittenValue* mb = find(values, "File_Size_MB");
    if (!bytes || !isDigits(bytes->value) || bytes->value.size() > 15)
        return;
    const qint64 n = bytes->value.toLongLong();
    const QString wantK = QString::number((2 * n + 1024) / 2048);
    const qint64 hundredths = (200 * n + 1048576) / 2097152;
    const QString wantM = QStringLiteral("%1.%2")
                              .arg(hundredths / 100)
                              .arg(hundredths % 100, 2, 10, QLatin1Char('0'));
    // Another tool's rounding (down rather than to the nearest) is accepted.
    auto check = [&](const PadWrittenValue* v, double exact, double slack, const QString& want,
                     const char* unit) {
        bool ok = false;
        const double given = v ? v->value.toDouble(&ok) : 0;
        if (!v || !ok || std::abs(given - exact) < slack)
            return;
        out.push_back(finding(Severity::Warning, *v,
                              QStringLiteral("does not agree with Size Bytes %1: that is %2 %3")
                                  .arg(bytes->value, want, QLatin1String(unit))));
    };
    check(kb, double(n) / 1024.0, 1.0, wantK, "KB");
    check(mb, double(n) / 1048576.0, 0.0100001, wantM, "MB");
}

// A month, day and year that each follow their rule but make no date of the calendar.
void checkDate(const std::vector<PadWrittenValue>& values, const char* month, const char* day,
               const char* year, std::vector<PadFinding>& out) {
    const PadWrittenValue* m = find(values, month);
    const PadWrittenValue* d = find(values, day);
    const PadWrittenValue* y = find(values, year);
    if (!m || !d || !y)
        return;
    for (const PadWrittenValue* part : {m, d, y})
        if (part->value.isEmpty() || !padFieldRule(part->element)->accepts(part->value))
            return;
    if (QDate(y->value.toInt(), m->value.toInt(), d->value.toInt()).isValid())
        return;
    PadFinding f = finding(Severity::Warning, *d,
                           QStringLiteral("is not a date of the calendar (read as "
                                          "month/day/year)"));
    f.value = QStringLiteral("%1/%2/%3").arg(m->value, d->value, y->value);
    out.push_back(std::move(f));
}

// An expiry needs its count, or its date.
void checkExpiry(const ProgramRecord& p, const std::vector<PadWrittenValue>& values,
                 std::vector<PadFinding>& out) {
    const PadWrittenValue* has = find(values, "Has_Expire_Info");
    if (!has || has->value != QLatin1String("Y"))
        return;
    if (p.number(PF::ExpireBasedOn, 3) != 0) {
        const bool complete = !p.text(PF::ExpireMonth).isEmpty() &&
                              !p.text(PF::ExpireDay).isEmpty() && !p.text(PF::ExpireYear).isEmpty();
        if (!complete)
            out.push_back(finding(Severity::Warning, *find(values, "Expire_Month"),
                                  QStringLiteral("the program expires on a date, but month, "
                                                 "day and year are not all chosen")));
        return;
    }
    const QString kind = expireBasedOnCaption(p);
    if (kind.isEmpty()) {
        out.push_back(finding(Severity::Warning, *has,
                              QStringLiteral("the program expires, but neither Days, Uses, "
                                             "Either/Or nor a date is chosen")));
        return;
    }
    const PadWrittenValue* count = find(values, "Expire_Count");
    if (count && count->value.isEmpty())
        out.push_back(finding(Severity::Warning, *count,
                              QStringLiteral("the program expires after a number of %1, but "
                                             "the number is empty")
                                  .arg(kind.toLower())));
}

// The five bytes Windows-1252 leaves undefined are written unchanged; many readers refuse them.
void checkCharacterSet(const PadWrittenValue& v, std::vector<PadFinding>& out) {
    for (qsizetype i = 0; i < v.value.size(); ++i) {
        const char16_t u = v.value[i].unicode();
        if (u == 0x81 || u == 0x8D || u == 0x8F || u == 0x90 || u == 0x9D) {
            PadFinding f = finding(Severity::Warning, v,
                                   QStringLiteral("holds byte 0x%1, which has no character in "
                                                  "Windows-1252 and which many readers refuse; "
                                                  "remove it")
                                       .arg(QString::number(u, 16).toUpper()));
            f.value = excerpt(v.value, i);
            out.push_back(std::move(f));
            return;
        }
    }
}

// The 1.15 systems that a later list has no token of their own for, and the catch-all they are
// written as; and the Windows versions that no list names.
void checkSystems(const ProgramRecord& program, const std::vector<PadWrittenValue>& values,
                  std::vector<PadFinding>& out) {
    const PadWrittenValue* systems = find(values, "Program_OS_Support");
    if (!systems)
        return;
    QMap<QString, QStringList> approximated;
    const QStringList& items = operatingSystemList();
    for (int i = 0; i < items.size(); ++i)
        for (const OsMapping& m : osMappings())
            if (program.number(PF::OSSupported, i) != 0 && !m.exact &&
                items[i].trimmed() == QLatin1String(m.from))
                approximated[QLatin1String(m.to)] << QLatin1String(m.from);
    for (auto it = approximated.cbegin(); it != approximated.cend(); ++it)
        out.push_back(
            finding(Severity::Note, *systems,
                    QStringLiteral("%1 %2 no token in the published list and %3 "
                                   "written as \"%4\"")
                        .arg(quotedList(it.value()),
                             it.value().size() > 1 ? QStringLiteral("have") : QStringLiteral("has"),
                             it.value().size() > 1 ? QStringLiteral("are") : QStringLiteral("is"),
                             it.key())));
    if (systems->value.split(u',').contains(QStringLiteral("WinOther")))
        out.push_back(finding(Severity::Note, *systems,
                              QStringLiteral("the published lists have no token for Windows 10 "
                                             "or 11: \"WinOther\" is the published choice for "
                                             "them; tokens such as \"Win11 x64\" are refused by "
                                             "strict checks")));
}

// A document error that no value explains (a safety net for the writer's own texts).
void checkDocument(const CompanyRecord& company, const ProgramRecord& program, PadVersion version,
                   std::vector<PadFinding>& out) {
    QXmlStreamReader reader(CreatePADText(company, program, version));
    while (!reader.atEnd())
        reader.readNext();
    if (!reader.hasError())
        return;
    PadFinding f;
    f.severity = Severity::Error;
    f.message = QStringLiteral("the PAD file would not be well-formed XML (line %1: %2)")
                    .arg(reader.lineNumber())
                    .arg(reader.errorString());
    out.push_back(std::move(f));
}

} // namespace

std::vector<PadFinding> checkPad(const CompanyRecord& company, const ProgramRecord& program,
                                 PadVersion version) {
    const std::vector<PadWrittenValue> values = padWrittenValues(company, program, version);
    std::vector<PadFinding> found;
    bool valueErrors = false;
    for (const auto& v : values) {
        auto errors = xmlTextProblems(v);
        valueErrors = valueErrors || !errors.empty();
        found.insert(found.end(), errors.begin(), errors.end());
        if (version == PadVersion::V1_15)
            checkCharacterSet(v, found);
        // A value that breaks the XML is not held against the rules as well.
        if (errors.empty())
            checkRule(v, version, found);
    }
    if (!valueErrors)
        checkDocument(company, program, version, found);
    if (version != PadVersion::V1_15)
        checkSystems(program, values, found);
    checkSizes(values, found);
    checkDate(values, "Program_Release_Month", "Program_Release_Day", "Program_Release_Year",
              found);
    checkDate(values, "Expire_Month", "Expire_Day", "Expire_Year", found);
    checkExpiry(program, values, found);
    if (const PadWrittenValue* categories = find(values, "Program_Categories");
        categories && version == PadVersion::V1_15)
        found.push_back(
            finding(Severity::Note, *categories,
                    QStringLiteral("PAD 1.15 writes Possible Categories as Program_Categories; the "
                                   "current rules ask for Program_Category_Class from their own "
                                   "\"Main::Sub\" list, which a 1.15 file does not carry")));
    std::stable_sort(found.begin(), found.end(), [](const PadFinding& a, const PadFinding& b) {
        return a.severity < b.severity;
    });
    return found;
}

QString severityName(PadFinding::Severity severity) {
    switch (severity) {
    case Severity::Error:
        return QStringLiteral("error");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Note:
        return QStringLiteral("note");
    }
    return QString();
}

bool hasErrors(const std::vector<PadFinding>& findings) {
    return std::any_of(findings.begin(), findings.end(),
                       [](const PadFinding& f) { return f.severity == Severity::Error; });
}

} // namespace brevaro
