#include "pad/PadSpelling.h"

#include "pad/PadWrittenValues.h"
#include "platform/HunspellChecker.h"
#include "store/AppHome.h"

#include <QDir>
#include <QSet>

namespace brevaro {

namespace {

using PF = ProgramField;

// The description languages in the order of the records' entries.
const SpellingLanguage& descriptionLanguage(int entry) {
    static const SpellingLanguage languages[] = {
        {QStringLiteral("English"), QStringLiteral("en_US")},
        {QStringLiteral("Spanish"), QStringLiteral("es_ES")},
        {QStringLiteral("French"), QStringLiteral("fr_FR")},
        {QStringLiteral("German"), QStringLiteral("de_DE")},
        {QStringLiteral("Italian"), QStringLiteral("it_IT")},
        {QStringLiteral("Japanese"), QString()},
        {QStringLiteral("Chinese"), QString()},
        {QStringLiteral("Chinese"), QString()},
        {QStringLiteral("Russian"), QStringLiteral("ru_RU")},
    };
    return languages[entry >= 0 && entry < 9 ? entry : 0];
}

// How many suggestions a note names.
constexpr int kNoteSuggestions = 3;

QString quotedWords(const QStringList& words) {
    QStringList quoted;
    for (const QString& w : words)
        quoted << u'"' + w + u'"';
    if (quoted.size() < 2)
        return quoted.value(0);
    return quoted.mid(0, quoted.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" or ") +
           quoted.constLast();
}

PadFinding note(const PadWrittenValue& v, const QString& value, const QString& message) {
    PadFinding f;
    f.severity = PadFinding::Severity::Note;
    f.element = v.element;
    f.value = value;
    f.message = message;
    f.side = v.side;
    f.field = v.field;
    f.entry = v.entry;
    return f;
}

} // namespace

std::optional<SpellingLanguage> spellingLanguage(RecordSide side, int field, int entry) {
    if (side != RecordSide::Program)
        return std::nullopt;
    switch (PF(field)) {
    case PF::Keywords:
    case PF::CharDesc45:
    case PF::CharDesc80:
    case PF::CharDesc250:
    case PF::CharDesc450:
    case PF::CharDesc2000:
        return descriptionLanguage(entry);
    case PF::DistributionPermissions:
    case PF::EULA:
    case PF::ChangeInfo:
    case PF::SystemRequirements:
        return descriptionLanguage(0);
    default:
        return std::nullopt;
    }
}

QString personalWordListFile(const AppHome& home) {
    return QDir::toNativeSeparators(home.dataFolder() + QStringLiteral("/spelling-words.txt"));
}

std::unique_ptr<SpellChecker> homeSpellChecker(const AppHome& home) {
    return std::make_unique<HunspellChecker>(HunspellChecker::dictionaryFolders(),
                                             personalWordListFile(home));
}

std::vector<PadFinding> spellingFindings(const CompanyRecord& company, const ProgramRecord& program,
                                         PadVersion version, SpellChecker& checker) {
    std::vector<PadFinding> notes;
    QSet<QString> unchecked;
    for (const PadWrittenValue& v : padWrittenValues(company, program, version)) {
        const auto language = spellingLanguage(v.side, v.field, v.entry);
        if (!language)
            continue;
        const QString text = xmlParsedText(v.value);
        if (text.isEmpty())
            continue;
        if (language->dictionary.isEmpty() || !checker.hasDictionary(language->dictionary)) {
            if (unchecked.contains(language->name))
                continue;
            unchecked.insert(language->name);
            notes.push_back(
                note(v, QString(),
                     language->dictionary.isEmpty()
                         ? QStringLiteral("%1 texts are not checked for spelling: there is no %1 "
                                          "dictionary")
                               .arg(language->name)
                         : QStringLiteral("%1 texts are not checked for spelling: no %1 dictionary "
                                          "is installed; %2")
                               .arg(language->name, checker.howToInstall(language->dictionary))));
            continue;
        }
        QSet<QString> seen;
        for (const WordSpan& w : misspeltWords(checker, language->dictionary, text)) {
            const QString word = text.mid(w.start, w.length);
            if (seen.contains(word))
                continue;
            seen.insert(word);
            const QStringList proposals =
                checker.suggestions(language->dictionary, word, kNoteSuggestions);
            notes.push_back(note(
                v, word,
                QStringLiteral("\"%1\" is not in the %2 dictionary; %3")
                    .arg(word, language->name,
                         proposals.isEmpty()
                             ? QStringLiteral("it has no suggestion")
                             : QStringLiteral("did you mean %1?").arg(quotedWords(proposals)))));
        }
    }
    return notes;
}

} // namespace brevaro
