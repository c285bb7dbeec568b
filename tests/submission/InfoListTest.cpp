#include "FullRecords.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "submission/SubmissionInfo.h"
#include "submission/SubmissionSession.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

const InfoEntry& byLabel(const std::vector<InfoEntry>& list, const char* label) {
    for (const InfoEntry& e : list)
        if (e.label == QLatin1String(label))
            return e;
    static const InfoEntry none;
    ADD_FAILURE() << "no entry " << label;
    return none;
}

QString numberOf(const std::vector<InfoEntry>& list, const char* label) {
    return byLabel(list, label).number;
}

} // namespace

// Running numbers; groups of a heading, field rows and a closing separator; every field row of
// full records shows a value of its own, none read twice.
TEST(InfoList, EveryHeadingRowAndSeparatorInOrder) {
    const auto list = FillInfoList(fullCompany(), fullProgram());
    QStringList values;
    int groupRows = -1;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const InfoEntry& e = list[i];
        SCOPED_TRACE(e.label.toStdString());
        EXPECT_EQ(e.number, QString::number(i + 1));
        const bool heading = e.label.startsWith(u'>'), separator = e.label == u"-";
        EXPECT_EQ(e.isField(), !heading && !separator);
        EXPECT_EQ(e.value.isEmpty(), !e.isField());
        if (heading) {
            EXPECT_EQ(groupRows, -1) << "heading inside a group";
            groupRows = 0;
        } else if (separator) {
            EXPECT_GT(groupRows, 0) << "an empty group";
            groupRows = -1;
        } else {
            EXPECT_GE(groupRows, 0) << "a row outside a group";
            EXPECT_FALSE(values.contains(e.value));
            values << e.value;
            ++groupRows;
        }
    }
    EXPECT_EQ(groupRows, -1) << "the last group has no separator";
    // Labels as the list shows them, with the record field each one reads; descriptions are the
    // first (English) language's; dates joined from their three fields; line breaks stay.
    const std::pair<const char*, QString> rows[] = {
        {"Company Name", u"CompanyName"_s},
        {"Adress 2", u"Address2"_s},
        {"Homepage URL", u"CompanyWebSiteURL"_s},
        {"Phone Fax", u"FaxPhone"_s},
        {"Possible Categories", u"CategoryClass"_s},
        {"Third Download URL", u"AdditionalDownloadURL1"_s},
        {"sTPA_LicenseType", u"TrialLicenseType"_s},
        {"sASP_MemberNo", u"ASPMemberNumber"_s},
        {"Keywords", u"Keywords0"_s},
        {"2000 char", u"CharDesc20000"_s},
        {"Release Date", u"07/04/2008"_s},
        {"Expire Date", u"12/31/2010"_s},
        {"EULA", u"EULA first line\r\nsecond line & <more>"_s}};
    for (const auto& [label, value] : rows)
        EXPECT_EQ(byLabel(list, label).value, value) << label;
}

TEST(InfoList, TrimmingEmptyValuesAndPartialDates) {
    CompanyRecord company;
    ProgramRecord program;
    company.setText(CompanyField::CompanyName, u"  Acme Tools  ");
    company.setText(CompanyField::Country, u"   ");
    program.setText(ProgramField::ReleaseMonth, u"7");
    program.setText(ProgramField::ReleaseDay, u"04");
    program.setText(ProgramField::ReleaseYear, u"2008");
    program.setText(ProgramField::Keywords, u"second language", 1);
    program.setText(ProgramField::ChangeInfo, u"\tfixed a crash ");
    const auto list = FillInfoList(company, program);
    EXPECT_EQ(byLabel(list, "Company Name").value, u"Acme Tools"_s);
    EXPECT_EQ(byLabel(list, "Country").value, QString());
    // The two-character month stands as it is, blank included.
    EXPECT_EQ(byLabel(list, "Release Date").value, u"7 /04/2008"_s);
    // An empty date keeps its slashes and the blanks between them.
    EXPECT_EQ(byLabel(list, "Expire Date").value, u"/  /"_s);
    EXPECT_EQ(byLabel(list, "Keywords").value, QString());
    // Only blanks are trimmed, never tabs.
    EXPECT_EQ(byLabel(list, "Recent Changes").value, u"\tfixed a crash"_s);
    EXPECT_EQ(list.size(), 96u) << "empty values are listed too";
    // The label's preview cuts after 36 characters.
    const QString exact(36, u'x');
    EXPECT_EQ(infoPreview(exact), exact);
    EXPECT_EQ(infoPreview(exact + u'y'), exact + u" ..."_s);
}

TEST(InfoList, PickingDoubleClickingAndCopying) {
    const CompanyRecord company = fullCompany();
    ProgramRecord program = fullProgram();
    const QString long80 = u"A very long description that is longer than the label shows"_s;
    program.setText(ProgramField::CharDesc80, long80);
    program.setText(ProgramField::ProgramType, u"");
    ScriptedPrompts prompts;
    prompts.clipboard = u"earlier"_s;
    SubmissionSession s(company, program, prompts);
    s.load();
    const auto& list = s.lstInfo();
    auto shown = [&] {
        return QString(s.lblInfo.text + (s.lblInfo.red ? u"|red"_s : QString()) +
                       (s.lblInfo.bold ? u"|bold"_s : QString()));
    };
    EXPECT_EQ(shown(), u"Doubleclick in list to copy to Clipboard"_s);

    s.clickEntry(numberOf(list, "80 char"));
    EXPECT_EQ(shown(), u"A very long description that is long ..."_s);
    EXPECT_EQ(prompts.clipboard, u"earlier"_s) << "a click copies nothing";
    for (const char* nonField : {"> AUTHOR <", "-"}) {
        s.clickEntry(numberOf(list, nonField));
        EXPECT_EQ(shown(), u"|red|bold"_s);
        s.doubleClickEntry(numberOf(list, nonField));
        EXPECT_EQ(shown(), u"Select Valid Field|red|bold"_s);
    }
    EXPECT_EQ(prompts.beeps, 2);
    EXPECT_EQ(prompts.clipboard, u"earlier"_s);

    s.doubleClickEntry(numberOf(list, "80 char"));
    EXPECT_EQ(prompts.clipboard, long80);
    EXPECT_EQ(shown(), u"A very long description that is long ..."_s);
    s.doubleClickEntry(numberOf(list, "Release Date"));
    EXPECT_EQ(prompts.clipboard, u"07/04/2008"_s);
    EXPECT_EQ(prompts.beeps, 2);

    // An empty field: nothing is copied, "Empty" and a beep; an unknown number changes nothing.
    s.doubleClickEntry(numberOf(list, "Type"));
    s.doubleClickEntry(u"999"_s);
    EXPECT_EQ(shown(), u"Empty"_s);
    EXPECT_EQ(prompts.beeps, 3);
    EXPECT_EQ(prompts.clipboard, u"07/04/2008"_s);

    // Copying trims blanks only; nothing but blanks is empty.
    s.CopyToClipboard(u"  two\r\nlines \t "_s);
    EXPECT_EQ(prompts.clipboard, u"two\r\nlines \t"_s);
    s.CopyToClipboard(u"    "_s);
    EXPECT_EQ(prompts.beeps, 4);
    EXPECT_EQ(prompts.clipboard, u"two\r\nlines \t"_s);
}
