#include "FullRecords.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "submission/SubmissionInfo.h"
#include "submission/SubmissionSession.h"

#include <gtest/gtest.h>

using namespace brevaro;
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

TEST(InfoList, EveryHeadingRowAndSeparatorInOrder) {
    const auto list = FillInfoList(fullCompany(), fullProgram());
    // 16 groups of 64 rows in all, each with a heading and a closing separator.
    ASSERT_EQ(list.size(), 16u + 64u + 16u);
    QStringList headings;
    int groupRows = -1;
    QList<int> rowsPerGroup;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const InfoEntry& e = list[i];
        EXPECT_EQ(e.number, QString::number(i + 1));
        if (e.label.startsWith(u'>')) {
            headings << e.label;
            EXPECT_TRUE(e.value.isEmpty()) << e.label.toStdString();
            EXPECT_FALSE(e.isField());
            EXPECT_EQ(groupRows, -1) << "heading inside a group";
            groupRows = 0;
        } else if (e.label == u"-") {
            EXPECT_TRUE(e.value.isEmpty());
            EXPECT_FALSE(e.isField());
            rowsPerGroup << groupRows;
            groupRows = -1;
        } else {
            EXPECT_TRUE(e.isField());
            EXPECT_FALSE(e.value.isEmpty()) << e.label.toStdString();
            ++groupRows;
        }
    }
    EXPECT_EQ(groupRows, -1) << "the last group has no separator";
    EXPECT_EQ(headings.first(), QStringLiteral("> COMPANY INFO <"));
    EXPECT_EQ(headings.last(), QStringLiteral("> TPA <"));
    EXPECT_EQ(headings.size(), 16);
    EXPECT_EQ(rowsPerGroup, (QList<int>{8, 3, 3, 3, 4, 9, 7, 3, 4, 6, 5, 4, 1, 1, 1, 2}));
    // Labels as the list shows them, with the record field each one reads.
    EXPECT_EQ(list[1].label, QStringLiteral("Company Name"));
    EXPECT_EQ(list[1].value, QStringLiteral("CompanyName"));
    EXPECT_EQ(byLabel(list, "Adress 2").value, QStringLiteral("Address2"));
    EXPECT_EQ(byLabel(list, "Homepage URL").value, QStringLiteral("CompanyWebSiteURL"));
    EXPECT_EQ(byLabel(list, "Phone Fax").value, QStringLiteral("FaxPhone"));
    EXPECT_EQ(byLabel(list, "Possible Categories").value, QStringLiteral("CategoryClass"));
    EXPECT_EQ(byLabel(list, "Third Download URL").value, QStringLiteral("AdditionalDownloadURL1"));
    EXPECT_EQ(byLabel(list, "sTPA_LicenseType").value, QStringLiteral("TrialLicenseType"));
    EXPECT_EQ(byLabel(list, "sASP_MemberNo").value, QStringLiteral("ASPMemberNumber"));
    // Descriptions are the first (English) language's.
    EXPECT_EQ(byLabel(list, "Keywords").value, QStringLiteral("Keywords0"));
    EXPECT_EQ(byLabel(list, "2000 char").value, QStringLiteral("CharDesc20000"));
    // Dates joined from their three fields; line breaks inside a value stay.
    EXPECT_EQ(byLabel(list, "Release Date").value, QStringLiteral("07/04/2008"));
    EXPECT_EQ(byLabel(list, "Expire Date").value, QStringLiteral("12/31/2010"));
    EXPECT_EQ(byLabel(list, "EULA").value,
              QStringLiteral("EULA first line\r\nsecond line & <more>"));
    EXPECT_EQ(numberOf(list, "> PROGRAM INFO <").toInt() + 3,
              numberOf(list, "Release Date").toInt());
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
    EXPECT_EQ(byLabel(list, "Company Name").value, QStringLiteral("Acme Tools"));
    EXPECT_EQ(byLabel(list, "Country").value, QString());
    // The two-character month stands as it is, blank included.
    EXPECT_EQ(byLabel(list, "Release Date").value, QStringLiteral("7 /04/2008"));
    // An empty date keeps its slashes and the blanks between them.
    EXPECT_EQ(byLabel(list, "Expire Date").value, QStringLiteral("/  /"));
    EXPECT_EQ(byLabel(list, "Keywords").value, QString());
    // Only blanks are trimmed, never tabs.
    EXPECT_EQ(byLabel(list, "Recent Changes").value, QStringLiteral("\tfixed a crash"));
    EXPECT_EQ(list.size(), 96u);
}

TEST(InfoList, PreviewCutsAfter36Characters) {
    const QString exact(36, u'x');
    EXPECT_EQ(infoPreview(exact), exact);
    EXPECT_EQ(infoPreview(exact + u'y'), exact + QStringLiteral(" ..."));
    EXPECT_EQ(infoPreview(QString()), QString());
}

TEST(InfoList, PickingAndDoubleClickingEntries) {
    const CompanyRecord company = fullCompany();
    ProgramRecord program = fullProgram();
    program.setText(ProgramField::CharDesc80,
                    u"A very long description that is longer than the label shows");
    program.setText(ProgramField::ProgramType, u"");
    ScriptedPrompts prompts;
    prompts.clipboard = QStringLiteral("earlier");
    SubmissionSession s(company, program, prompts);
    s.load();
    const auto& list = s.lstInfo();
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("Doubleclick in list to copy to Clipboard"));

    s.clickEntry(numberOf(list, "80 char"));
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("A very long description that is long ..."));
    EXPECT_FALSE(s.lblInfo.red);
    EXPECT_FALSE(s.lblInfo.bold);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("earlier")) << "a click copies nothing";

    for (const char* nonField : {"> AUTHOR <", "-"}) {
        s.clickEntry(numberOf(list, nonField));
        EXPECT_EQ(s.lblInfo.text, QString());
        EXPECT_TRUE(s.lblInfo.red);
        EXPECT_TRUE(s.lblInfo.bold);
        s.doubleClickEntry(numberOf(list, nonField));
        EXPECT_EQ(s.lblInfo.text, QStringLiteral("Select Valid Field"));
        EXPECT_TRUE(s.lblInfo.red);
        EXPECT_TRUE(s.lblInfo.bold);
    }
    EXPECT_EQ(prompts.beeps, 2);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("earlier"));

    s.doubleClickEntry(numberOf(list, "80 char"));
    EXPECT_EQ(prompts.clipboard,
              QStringLiteral("A very long description that is longer than the label shows"));
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("A very long description that is long ..."));
    EXPECT_FALSE(s.lblInfo.red);
    EXPECT_FALSE(s.lblInfo.bold);
    s.doubleClickEntry(numberOf(list, "Release Date"));
    EXPECT_EQ(prompts.clipboard, QStringLiteral("07/04/2008"));
    EXPECT_EQ(prompts.beeps, 2);

    // An empty field: nothing is copied, "Empty" and a beep.
    s.doubleClickEntry(numberOf(list, "Type"));
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("Empty"));
    EXPECT_FALSE(s.lblInfo.red);
    EXPECT_EQ(prompts.beeps, 3);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("07/04/2008"));

    // The running number finds the entry; an unknown one changes nothing.
    s.doubleClickEntry(QStringLiteral("999"));
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("Empty"));
    EXPECT_EQ(prompts.beeps, 3);
}

TEST(InfoList, CopyToClipboardTrimsBlanksOnly) {
    const CompanyRecord company;
    const ProgramRecord program;
    ScriptedPrompts prompts;
    SubmissionSession s(company, program, prompts);
    s.CopyToClipboard(QStringLiteral("  two\r\nlines \t "));
    EXPECT_EQ(prompts.clipboard, QStringLiteral("two\r\nlines \t"));
    EXPECT_EQ(prompts.beeps, 0);
    s.CopyToClipboard(QStringLiteral("    "));
    EXPECT_EQ(s.lblInfo.text, QStringLiteral("Empty"));
    EXPECT_EQ(prompts.beeps, 1);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("two\r\nlines \t"));
}
