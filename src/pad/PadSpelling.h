#pragma once

#include "pad/PadCheck.h"
#include "pad/PadVersion.h"
#include "platform/SpellingWords.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace brevaro {

class AppHome;

// The language a text of the records is written in, for spelling.
struct SpellingLanguage {
    QString name;       // "German"
    QString dictionary; // "de_DE"; empty for a language no dictionary exists for
};

// The language a field's text is checked in: the description language for the descriptions
// and keywords, English for the licence and permission texts, the change information and the
// system requirements; nothing for names, addresses, numbers and choices from lists.
std::optional<SpellingLanguage> spellingLanguage(RecordSide side, int field, int entry = 0);

// The author's own words: a file in the home's data folder, so they travel with the records.
QString personalWordListFile(const AppHome& home);
// The checker of a home: the system's dictionaries and the home's personal word list.
std::unique_ptr<SpellChecker> homeSpellChecker(const AppHome& home);

// The spelling notes of the texts Create PAD would write in a version: one note per misspelt
// word of a value (the word and the first suggestions), and one per language whose texts
// cannot be checked. Notes only: spelling never makes a file fail.
std::vector<PadFinding> spellingFindings(const CompanyRecord& company, const ProgramRecord& program,
                                         PadVersion version, SpellChecker& checker);

} // namespace brevaro
