#include "CleanRecords.h"
#include "SpellingSupport.h"
#include "controls/FieldLabels.h"
#include "pad/PadSpelling.h"
#include "platform/HunspellChecker.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

using PF = ProgramField;

class SpellingCheck : public ::testing::Test {
protected:
    EnglishOnly dictionaries;
    TempHome t;
    HunspellChecker checker{{dictionaries.path()}, t.file(u"words.txt"_s)};
    CompanyRecord company = cleanCompany();
    ProgramRecord program = cleanProgram();

    std::vector<PadFinding> notes(PadVersion version = PadVersion::V1_15) {
        return withFieldLabels(spellingFindings(company, program, version, checker));
    }
    // The clean records with the one word the dictionary lacks taken as the author's own.
    void acceptKeywords() { ASSERT_TRUE(checker.addToPersonalList(u"outliner"_s)); }
};

} // namespace

// The clean records are spelt correctly but for "outliner", which the English dictionary
// lacks; once the author adds it to the personal list, nothing is noted in any version.
TEST_F(SpellingCheck, CorrectTextsGiveNothing) {
    const auto found = notes();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].element, u"Keywords"_s);
    EXPECT_EQ(found[0].value, u"outliner"_s);
    checker.addToPersonalList(u"outliner"_s);
    EXPECT_TRUE(notes().empty());
    EXPECT_TRUE(notes(PadVersion::V3_11).empty());
    EXPECT_TRUE(notes(PadVersion::V4_0).empty());
}

// One note per misspelt word of a value (a repeated word once), with the word, the field and
// the first suggestions; the licence and the change information are English texts.
TEST_F(SpellingCheck, OneNotePerMisspeltWord) {
    acceptKeywords();
    program.setText(PF::CharDesc250, u"Tidy Notes keeps your notse tidy and recieve backups. "
                                     "Your notse stay yours."_s);
    program.setText(PF::EULA, u"You may not sel copies."_s);
    program.setText(PF::ChangeInfo, u"Faster serch"_s);
    const auto found = notes();
    ASSERT_EQ(found.size(), 4u);
    for (const PadFinding& f : found)
        EXPECT_EQ(f.severity, PadFinding::Severity::Note);
    EXPECT_EQ(found[0].element, u"Program_Change_Info"_s);
    EXPECT_EQ(found[0].value, u"serch"_s);
    EXPECT_EQ(found[1].element, u"Char_Desc_250"_s);
    EXPECT_EQ(found[1].value, u"notse"_s);
    EXPECT_EQ(found[1].label, u"250 Char:"_s);
    EXPECT_EQ(found[1].place, u"Descriptions, English"_s);
    EXPECT_EQ(found[1].entry, 0);
    EXPECT_EQ(found[2].value, u"recieve"_s);
    EXPECT_TRUE(found[2].message.startsWith(
        u"\"recieve\" is not in the English dictionary; did you mean \"receive\""_s))
        << found[2].message.toStdString();
    EXPECT_EQ(found[3].element, u"EULA"_s);
    EXPECT_EQ(found[3].value, u"sel"_s);
    // An added word is no longer noted.
    checker.addToPersonalList(u"notse"_s);
    EXPECT_EQ(notes().size(), 3u);
}

// A language without a dictionary, or whose dictionary is not installed, is said once, as a
// note on its first text; an inactive language is not written and not checked.
TEST_F(SpellingCheck, LanguagesThatCannotBeCheckedAreSaidOnce) {
    acceptKeywords();
    for (int language : {3, 5, 6})
        for (PF field : {PF::CharDesc45, PF::CharDesc80, PF::Keywords})
            program.setText(field, u"Qwzx qwzy"_s, language);
    program.setNumber(PF::DescriptionActive, 1, 3);
    program.setNumber(PF::DescriptionActive, 1, 5);
    const auto found = notes();
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].place, u"Descriptions, German"_s);
    EXPECT_EQ(found[0].value, QString());
    EXPECT_TRUE(found[0].message.startsWith(
        u"German texts are not checked for spelling: no German dictionary is installed"_s))
        << found[0].message.toStdString();
    EXPECT_EQ(found[1].place, u"Descriptions, Japanese"_s);
    EXPECT_EQ(found[1].message,
              u"Japanese texts are not checked for spelling: there is no Japanese dictionary"_s);
}
