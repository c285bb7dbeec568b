#pragma once

#include "records/RecordField.h"

#include <QStringList>
#include <QStringView>
#include <span>

namespace brevaro {

// The fields that PAD 1.15 records have no place for: what PAD 4.0 adds (the social and store
// pages of a company, and of a program its category class, system and language tokens, pages,
// videos, press release and news feed) and what publishing to stores needs. They are kept
// beside the records (FixedRecord::laterValues) by these names, which are the elements' own
// except where an element name is taken (the press release's and the news feed's Keywords).
enum class ExtraKind {
    Text,      // one line of text
    LongText,  // text that may hold line breaks
    Address,   // an http or https address
    Choice,    // one value of the field's list
    TokenList, // values of the field's list, separated by commas
};

// What a field is about, which decides where the window shows it.
enum class ExtraGroup {
    CompanyPages, // the company's pages elsewhere
    Publishing,   // the program's PAD version, class, systems and languages of the later PADs
    ProgramPages, // the program's pages and videos, and what stores know it by
    Release,      // what a release computes (hashes, history): its dialog shows them
    PressRelease,
    NewsFeed,
};

struct ExtraField {
    const char* name;
    RecordSide side;
    ExtraKind kind;
    int maxLength;
    const char* caption;
    // The element a PAD 4.0 file writes it to; nullptr when no PAD version has one.
    const char* padElement = nullptr;
    ExtraGroup group = ExtraGroup::Publishing;
    const char* tip = "";
};

// The published value lists of PAD 3.11 and 4.0, built in from src/pad/lists.
enum class PublishedList { Categories, Languages, Systems311, Systems40 };
const QStringList& publishedList(PublishedList list);

std::span<const ExtraField> extraFields();
// The field called name (case as written), or nullptr.
const ExtraField* extraField(QStringView name);
// The values a Choice or TokenList field takes, in the list's order; empty for other kinds.
QStringList extraFieldChoices(const ExtraField& field);

} // namespace brevaro
