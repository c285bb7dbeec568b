#include "pad/PadCheck.h"
#include "CleanRecords.h"
#include "TestSupport.h"
#include "controls/FieldLabels.h"
#include "pad/PadFieldRules.h"
#include "pad/PadText.h"

#include <QXmlStreamReader>
#include <functional>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

using CF = CompanyField;
using PF = ProgramField;
using Severity = PadFinding::Severity;
using Change = std::function<void(CompanyRecord&, ProgramRecord&)>;

std::vector<PadFinding> notNotes(const std::vector<PadFinding>& all) {
    std::vector<PadFinding> out;
    for (const auto& f : all)
        if (f.severity != Severity::Note)
            out.push_back(f);
    return out;
}

QString describe(const std::vector<PadFinding>& findings) {
    QString text;
    for (const auto& f : findings)
        text += severityName(f.severity) + u' ' + f.element + u": "_s + f.message + u'\n';
    return text;
}

Change company(CF field, const char16_t* value) {
    return [=](CompanyRecord& c, ProgramRecord&) {
        c.setText(field, QStringView(value));
    };
}
Change program(PF field, const char16_t* value, int entry = 0) {
    return [=](CompanyRecord&, ProgramRecord& p) {
        p.setText(field, QStringView(value), entry);
    };
}
Change flag(PF field, int entry, int value) {
    return [=](CompanyRecord&, ProgramRecord& p) {
        p.setNumber(field, value, entry);
    };
}
template <typename... Changes> Change all(Changes... changes) {
    return [=](CompanyRecord& c, ProgramRecord& p) {
        (changes(c, p), ...);
    };
}

// One value and what the check must say about it; an empty element: nothing but notes.
struct Case {
    const char* name;
    Change change;
    Severity severity;
    const char* element;
    const char* says;
};

const Case kCases[] = {
    // Well-formedness.
    {"ampersand", company(CF::CompanyName, u"Smith & Sons"), Severity::Note, "", ""},
    {"escaped ampersand", company(CF::CompanyName, u"Smith &amp; Sons"), Severity::Note, "", ""},
    {"character references", program(PF::CharDesc80, u"&#169; &#xA9; &#xD7FF; &#xE000; &#x10FFFF;"),
     Severity::Note, "", ""},
    {"reference to character zero", program(PF::CharDesc80, u"a &#0; b"), Severity::Warning,
     "Char_Desc_80", "\"&#0;\" is not a reference"},
    {"reference to a surrogate", program(PF::CharDesc80, u"a &#xD800; b"), Severity::Warning,
     "Char_Desc_80", "\"&#xD800;\" is not a reference"},
    {"reference beyond Unicode", program(PF::CharDesc80, u"a &#x110000; b"), Severity::Warning,
     "Char_Desc_80", "\"&#x110000;\" is not a reference"},
    {"reference to a control character", program(PF::CharDesc80, u"a &#31; b"), Severity::Warning,
     "Char_Desc_80", "\"&#31;\" is not a reference"},
    {"ampersand without a name", program(PF::Keywords, u"notes, &;, tidy"), Severity::Note, "", ""},
    {"unknown entity", program(PF::CharDesc250, u"Tidy&nbsp;Notes"), Severity::Warning,
     "Char_Desc_250", "\"&nbsp;\" is not a reference XML knows"},
    {"html tag", program(PF::CharDesc80, u"A <b>bold note keeper"), Severity::Warning,
     "Char_Desc_80", "the tag \"<b>\""},
    {"balanced html tags", program(PF::CharDesc250, u"A <b>bold</b> note keeper"),
     Severity::Warning, "Char_Desc_250", "the tag \"<b>\""},
    {"less than", program(PF::SystemRequirements, u"RAM < 64 MB"), Severity::Warning,
     "Program_System_Requirements", "without <"},
    {"greater than", program(PF::SystemRequirements, u">750MHz CPU, 64 MB"), Severity::Note, "",
     ""},
    {"end of a character data section", program(PF::SystemRequirements, u"a[[b]]>c"),
     Severity::Note, "", ""},
    {"control character", program(PF::Keywords, u"notes\x01tidy"), Severity::Error, "Keywords",
     "U+0001"},
    {"second language", all(flag(PF::DescriptionActive, 1, 1), program(PF::CharDesc45, u"<i>", 1)),
     Severity::Warning, "Char_Desc_45", "<i>"},
    {"inactive language is not written", program(PF::CharDesc45, u"<i>", 1), Severity::Note, "",
     ""},
    {"extension text", all(flag(PF::ASPActivated, 0, 1), program(PF::ASPMemberNumber, u"A&#0;B")),
     Severity::Warning, "ASP_Member_Number", "&#0;"},
    {"extension not active", program(PF::ASPMemberNumber, u"A&#0;B"), Severity::Note, "", ""},
    // Published rules.
    {"e-mail without @", company(CF::AuthorEmail, u"anna.smith.example"), Severity::Warning,
     "Author_Email", "e-mail address"},
    {"e-mail too short", company(CF::SupportEmail, u"a@b.cd"), Severity::Warning, "Support_Email",
     "e-mail address"},
    {"phone in words", company(CF::SalesPhone, u"call us"), Severity::Warning, "Sales_Phone",
     "phone number"},
    {"version with a blank", program(PF::ProgramVersion, u"2.1 beta"), Severity::Warning,
     "Program_Version", "letters, digits and ._- only"},
    {"company name with a tab", company(CF::CompanyName, u"Smith\tSoftware"), Severity::Warning,
     "Company_Name", "without < and tabs"},
    {"screenshot not an image", program(PF::ApplicationScreenshotURL, u"http://s.example/shot.bmp"),
     Severity::Warning, "Application_Screenshot_URL", ".gif, .jpg or .png"},
    {"screenshot over https", program(PF::ApplicationScreenshotURL, u"https://s.example/shot.png"),
     Severity::Warning, "Application_Screenshot_URL", "http://"},
    {"screenshot in capitals", program(PF::ApplicationIconURL, u"http://s.example/ICON.GIF"),
     Severity::Warning, "Application_Icon_URL", "lower-case"},
    {"order page over https", program(PF::ApplicationOrderURL, u"https://s.example/buy"),
     Severity::Note, "", ""},
    {"company site over https", company(CF::CompanyWebSiteURL, u"https://www.smith.example"),
     Severity::Warning, "Company_WebSite_URL", "http://"},
    {"download is a web page", program(PF::PrimaryDownloadURL, u"http://s.example/download/"),
     Severity::Warning, "Primary_Download_URL", "not a web page"},
    {"download over ftp", program(PF::SecondaryDownloadURL, u"ftp://s.example/tidy.exe"),
     Severity::Note, "", ""},
    {"pad address not xml", program(PF::ApplicationXMLFileURL, u"http://s.example/pad.txt"),
     Severity::Warning, "Application_XML_File_URL", ".xml"},
    {"price with a comma", program(PF::CostDollars, u"19,95"), Severity::Warning,
     "Program_Cost_Dollars", "decimals"},
    {"month without zero", program(PF::ReleaseMonth, u"7"), Severity::Warning,
     "Program_Release_Month", "two digits from 01 to 12"},
    {"line break in a one-line text", program(PF::CharDesc450, u"Tidy.\r\nNotes."),
     Severity::Warning, "Char_Desc_450", "one line"},
    {"escaped text is checked as read", company(CF::CompanyName, u"&#65;"), Severity::Warning,
     "Company_Name", "2 to 40"},
    // Sizes.
    {"kilobytes disagree", program(PF::FileSizeK, u"1235"), Severity::Warning, "File_Size_K",
     "that is 1206 KB"},
    {"megabytes disagree", program(PF::FileSizeMB, u"1.23"), Severity::Warning, "File_Size_MB",
     "that is 1.18 MB"},
    {"kilobytes rounded down", program(PF::FileSizeK, u"1205"), Severity::Note, "", ""},
    {"megabytes rounded down", program(PF::FileSizeMB, u"1.17"), Severity::Note, "", ""},
    // Dates and expiry.
    {"no such release date", program(PF::ReleaseMonth, u"02"), Severity::Warning,
     "Program_Release_Day", "02/30/2008"},
    {"expiry of no kind", flag(PF::HasExpireInfo, 0, 1), Severity::Warning, "Has_Expire_Info",
     "neither Days, Uses"},
    {"expiry without count", all(flag(PF::HasExpireInfo, 0, 1), flag(PF::ExpireBasedOn, 0, 1)),
     Severity::Warning, "Expire_Count", "number of days"},
    {"expiry without date", all(flag(PF::HasExpireInfo, 0, 1), flag(PF::ExpireBasedOn, 3, 1)),
     Severity::Warning, "Expire_Month", "not all chosen"},
    {"expiry on no such date",
     all(flag(PF::HasExpireInfo, 0, 1), flag(PF::ExpireBasedOn, 3, 1),
         program(PF::ExpireMonth, u"04"), program(PF::ExpireDay, u"31"),
         program(PF::ExpireYear, u"2010")),
     Severity::Warning, "Expire_Day", "04/31/2010"},
    {"character set gap", program(PF::ProgramName, u"Tidy\x81Notes"), Severity::Warning,
     "Program_Name", "0x81"},
    // Lists of 1.15 that the current rules changed.
    {"system dropped since 1.15", flag(PF::OSSupported, 1, 1), Severity::Note, "Program_OS_Support",
     "\"Win95\" is a value of the PAD 1.15 list"},
    {"category spelt as in 1.15", program(PF::SpecificCategory, u"Developement Tools"),
     Severity::Note, "Program_Specific_Category", "Developement Tools"},
    {"category of neither list", program(PF::SpecificCategory, u"Gadgets"), Severity::Warning,
     "Program_Specific_Category", "in neither"},
    {"country of the 1.15 list", company(CF::Country, u"St. Helena"), Severity::Note, "Country",
     "St. Helena"},
    {"expiry on a date",
     all(flag(PF::HasExpireInfo, 0, 1), flag(PF::ExpireBasedOn, 3, 1),
         program(PF::ExpireMonth, u"12"), program(PF::ExpireDay, u"31"),
         program(PF::ExpireYear, u"2010")),
     Severity::Note, "Expire_Based_On", "\"Date\""},
};

} // namespace

TEST(PadCheck, CleanRecordHasOnlyTheCategoryNote) {
    const auto findings = checkPad(cleanCompany(), cleanProgram());
    ASSERT_EQ(findings.size(), 1u) << describe(findings).toStdString();
    EXPECT_EQ(findings[0].severity, Severity::Note);
    EXPECT_EQ(findings[0].element, u"Program_Categories"_s);
}

// Each case gives its finding and no other problem. The check's errors are exactly the documents
// an XML parser refuses.
TEST(PadCheck, EachCaseGivesItsFindingAndAgreesWithAnXmlParser) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        CompanyRecord company = cleanCompany();
        ProgramRecord program = cleanProgram();
        c.change(company, program);
        const auto all = checkPad(company, program);
        QXmlStreamReader reader(CreatePADText(company, program));
        while (!reader.atEnd())
            reader.readNext();
        EXPECT_EQ(reader.hasError(), hasErrors(all)) << reader.errorString().toStdString();
        const auto problems = notNotes(all);
        const bool problem = c.severity != Severity::Note;
        ASSERT_EQ(problems.size(), problem ? 1u : 0u) << describe(all).toStdString();
        if (*c.element == 0)
            continue;
        const auto& among = problem ? problems : all;
        const auto found = std::find_if(among.begin(), among.end(), [&](const PadFinding& f) {
            return f.element == QLatin1String(c.element);
        });
        ASSERT_NE(found, among.end()) << describe(all).toStdString();
        EXPECT_EQ(found->severity, c.severity);
        EXPECT_TRUE(found->message.contains(QString::fromUtf8(c.says)) ||
                    found->value.contains(QString::fromUtf8(c.says)))
            << found->message.toStdString();
    }
}

TEST(PadCheck, EveryRequiredFieldLeftEmptyIsNamed) {
    const CompanyRecord company = cleanCompany();
    const ProgramRecord program = cleanProgram();
    QStringList checked;
    for (const auto& v : padWrittenValues(company, program)) {
        const PadFieldRule* rule = padFieldRule(v.element);
        if (!rule || !rule->required)
            continue;
        CompanyRecord c = company;
        ProgramRecord p = program;
        FixedRecord& record = v.side == RecordSide::Company ? static_cast<FixedRecord&>(c) : p;
        const RecordField& field = record.layout().fields[static_cast<std::size_t>(v.field)];
        if (field.isText()) {
            record.setText(v.field, QString(), v.entry);
        } else if (field.count > 1) { // the system and language lists
            for (int i = 0; i < field.count; ++i)
                record.setNumber(v.field, 0, i);
        } else {
            continue; // Has_Expire_Info is always Y or N
        }
        SCOPED_TRACE(v.element.toStdString());
        const auto problems = notNotes(checkPad(c, p));
        const bool named = std::any_of(problems.begin(), problems.end(), [&](const auto& f) {
            return f.element == v.element && f.message.contains(u"required"_s);
        });
        EXPECT_TRUE(named) << describe(problems).toStdString();
        checked << v.element;
    }
    // Every required element but the fixed version, the Y/N flag and the one 1.15 lacks.
    const QStringList unchecked = {u"MASTER_PAD_VERSION"_s, u"Has_Expire_Info"_s,
                                   u"Program_Category_Class"_s};
    for (const auto& rule : padFieldRules())
        if (rule.required && !unchecked.contains(rule.element)) {
            EXPECT_TRUE(checked.contains(rule.element)) << rule.element.toStdString();
        }
}

TEST(PadCheck, FindingsCarryTheFieldAndACutValue) {
    CompanyRecord company = cleanCompany();
    ProgramRecord program = cleanProgram();
    program.setNumber(PF::DescriptionActive, 1, 3);
    program.setText(PF::CharDesc2000, QString(QString(300, u'x') + u'\x01' + QString(300, u'y')),
                    3);
    const auto findings = withFieldLabels(checkPad(company, program));
    ASSERT_FALSE(findings.empty());
    const PadFinding& f = findings.front();
    EXPECT_EQ(f.severity, Severity::Error);
    EXPECT_EQ(f.label, u"2000 Char:"_s);
    EXPECT_EQ(f.place, u"Descriptions, German"_s);
    EXPECT_EQ(f.side, RecordSide::Program);
    EXPECT_EQ(f.field, static_cast<int>(PF::CharDesc2000));
    EXPECT_EQ(f.entry, 3);
    // Sixty characters, the control character a third of the way in, cut at both ends.
    EXPECT_EQ(f.value, u"..."_s + QString(20, u'x') + u'\x01' + QString(39, u'y') + u"..."_s);
    // A value that fits is shown whole, its line break as a blank.
    program.setText(PF::CharDesc2000, QString(QString(58, u'x') + u"\r\n\x01"_s), 3);
    EXPECT_EQ(withFieldLabels(checkPad(company, program)).front().value,
              QString(58, u'x') + u" \x01"_s);
    // Line breaks before it do not push it out of the excerpt.
    program.setText(
        PF::CharDesc2000,
        QString(u"a\r\n"_s.repeated(40) + QString(20, u'x') + u"\x01 tail"_s + QString(100, u'z')),
        3);
    EXPECT_TRUE(checkPad(company, program).front().value.contains(u"x\x01 tail"_s));
}

// The later versions are checked against their own rules, and the traps their rules set are
// said in words.
TEST(PadCheck, LaterVersionsSayTheirTrapsInWords) {
    struct LaterCase {
        const char* name;
        PadVersion version;
        Change change;
        Severity severity;
        const char* element;
        const char* says;
    };
    const LaterCase cases[] = {
        {"linux package", PadVersion::V4_0,
         program(PF::PrimaryDownloadURL, u"https://s.example/tidy_1.0_amd64.deb"),
         Severity::Warning, "Primary_Download_URL", "ends in .deb"},
        {"letter outside latin-1", PadVersion::V4_0,
         program(PF::ApplicationInfoURL, u"https://s.example/\u0160koda"), Severity::Warning,
         "Application_Info_URL", "https://s.example/%C5%A0koda"},
        {"old windows", PadVersion::V3_11, flag(PF::OSSupported, 1, 1), Severity::Note,
         "Program_OS_Support",
         "\"Win95\" has no token in the published list and is written as "
         "\"WinOther\""},
        {"windows 10 and 11", PadVersion::V4_0, flag(PF::OSSupported, 1, 3), Severity::Note,
         "Program_OS_Support", "no token for Windows 10 or 11"},
        {"https in 3.11", PadVersion::V3_11,
         company(CF::CompanyWebSiteURL, u"https://smith.example"), Severity::Warning,
         "Company_WebSite_URL", "http"},
    };
    for (const LaterCase& c : cases) {
        SCOPED_TRACE(c.name);
        CompanyRecord company = cleanCompany();
        ProgramRecord program = cleanProgram();
        c.change(company, program);
        const auto all = checkPad(company, program, c.version);
        const auto found = std::find_if(all.begin(), all.end(), [&](const PadFinding& f) {
            return f.element == QLatin1String(c.element) && f.severity == c.severity &&
                   f.message.contains(QString::fromUtf8(c.says));
        });
        EXPECT_NE(found, all.end()) << describe(all).toStdString();
        EXPECT_FALSE(hasErrors(all));
    }
    // What 4.0 takes: https addresses, and no note on the 1.15 categories element.
    ProgramRecord program = cleanProgram();
    CompanyRecord company = cleanCompany();
    company.setText(CF::CompanyWebSiteURL, u"https://smith.example");
    const auto v40 = checkPad(company, program, PadVersion::V4_0);
    EXPECT_TRUE(notNotes(v40).empty()) << describe(v40).toStdString();
    EXPECT_TRUE(std::none_of(v40.begin(), v40.end(), [](const PadFinding& f) {
        return f.element == u"Program_Categories"_s;
    }));
}
