#include "pad/PadWrittenValues.h"

#include "pad/PadText.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

// How a row's value is found and when the writer writes it.
enum class From { Text, Systems, Languages, YesNo, ExpireBasedOn };
enum class When { Always, ExpireByCount, ExpireByDate, Description, ASP, TPA };

struct Row {
    const char* element;
    PadSide side;
    int field;
    const char* label;
    const char* place;
    From from = From::Text;
    When when = When::Always;
};

constexpr PadSide C = PadSide::Company;
constexpr PadSide P = PadSide::Program;
constexpr int c(CF f) {
    return static_cast<int>(f);
}
constexpr int p(PF f) {
    return static_cast<int>(f);
}

// PAD element, record field and the window's label, in the writer's order.
const Row kRows[] = {
    {"Company_Name", C, c(CF::CompanyName), "Name", "Company Info"},
    {"Address_1", C, c(CF::Address1), "Address 1", "Company Info"},
    {"Address_2", C, c(CF::Address2), "Address 2", "Company Info"},
    {"City_Town", C, c(CF::CityTown), "City / Town", "Company Info"},
    {"State_Province", C, c(CF::StateProvince), "State/Province", "Company Info"},
    {"Zip_Postal_Code", C, c(CF::ZipPostalCode), "Zip", "Company Info"},
    {"Country", C, c(CF::Country), "Country", "Company Info"},
    {"Company_WebSite_URL", C, c(CF::CompanyWebSiteURL), "URL", "Company Info"},
    {"Author_First_Name", C, c(CF::AuthorFirstName), "First", "Company Info, Author"},
    {"Author_Last_Name", C, c(CF::AuthorLastName), "Last", "Company Info, Author"},
    {"Author_Email", C, c(CF::AuthorEmail), "Email", "Company Info, Author"},
    {"Contact_First_Name", C, c(CF::ContactFirstName), "First", "Company Info, Contact"},
    {"Contact_Last_Name", C, c(CF::ContactLastName), "Last", "Company Info, Contact"},
    {"Contact_Email", C, c(CF::ContactEmail), "Email", "Company Info, Contact"},
    {"Sales_Email", C, c(CF::SalesEmail), "Sales", "Company Info, Email Addresses"},
    {"Support_Email", C, c(CF::SupportEmail), "Support", "Company Info, Email Addresses"},
    {"General_Email", C, c(CF::GeneralEmail), "General", "Company Info, Email Addresses"},
    {"Sales_Phone", C, c(CF::SalesPhone), "Sales", "Company Info, Phone Numbers"},
    {"Support_Phone", C, c(CF::SupportPhone), "Support", "Company Info, Phone Numbers"},
    {"General_Phone", C, c(CF::GeneralPhone), "General", "Company Info, Phone Numbers"},
    {"Fax_Phone", C, c(CF::FaxPhone), "Fax", "Company Info, Phone Numbers"},
    {"Program_Name", P, p(PF::ProgramName), "Name", "Program Info"},
    {"Program_Version", P, p(PF::ProgramVersion), "Version", "Program Info"},
    {"Program_Release_Month", P, p(PF::ReleaseMonth), "Release Date (month)", "Program Info"},
    {"Program_Release_Day", P, p(PF::ReleaseDay), "Release Date (day)", "Program Info"},
    {"Program_Release_Year", P, p(PF::ReleaseYear), "Release Date (year)", "Program Info"},
    {"Program_Cost_Dollars", P, p(PF::CostDollars), "Cost (US$)", "Program Info"},
    {"Program_Cost_Other_Code", P, p(PF::CostOtherCode), "Cost (Other)", "Program Info"},
    {"Program_Cost_Other", P, p(PF::CostOther), "Cost (Other) amount", "Program Info"},
    {"Program_Type", P, p(PF::ProgramType), "Type", "Program Info"},
    {"Program_Release_Status", P, p(PF::ReleaseStatus), "Status", "Program Info"},
    {"Program_Install_Support", P, p(PF::InstallSupport), "Install Support", "Program Info"},
    {"Program_OS_Support", P, p(PF::OSSupported), "Supported OS", "Program Info", From::Systems},
    {"Program_Language", P, p(PF::LanguageSupported), "Languages", "Program Info", From::Languages},
    {"Filename_Versioned", P, p(PF::FilenameVersioned), "Versioned Filename",
     "Program Info, File Info"},
    {"Filename_Previous", P, p(PF::FilenamePrevious), "Previous Filename",
     "Program Info, File Info"},
    {"Filename_Generic", P, p(PF::FilenameGeneric), "Generic Filename", "Program Info, File Info"},
    {"Filename_Long", P, p(PF::FilenameLong), "Long Filename", "Program Info, File Info"},
    {"File_Size_Bytes", P, p(PF::FileSizeBytes), "Size Bytes", "Program Info, File Info"},
    {"File_Size_K", P, p(PF::FileSizeK), "Size KB", "Program Info, File Info"},
    {"File_Size_MB", P, p(PF::FileSizeMB), "Size MB", "Program Info, File Info"},
    {"Has_Expire_Info", P, p(PF::HasExpireInfo), "Has Expired Info", "Program Info", From::YesNo},
    {"Expire_Count", P, p(PF::ExpireCount), "Expire After", "Program Info", From::Text,
     When::ExpireByCount},
    {"Expire_Based_On", P, p(PF::ExpireBasedOn), "Days / Uses / Either/Or", "Program Info",
     From::ExpireBasedOn},
    {"Expire_Month", P, p(PF::ExpireMonth), "Expire on (month)", "Program Info", From::Text,
     When::ExpireByDate},
    {"Expire_Day", P, p(PF::ExpireDay), "Expire on (day)", "Program Info", From::Text,
     When::ExpireByDate},
    {"Expire_Year", P, p(PF::ExpireYear), "Expire on (year)", "Program Info", From::Text,
     When::ExpireByDate},
    {"Expire_Other_Info", P, p(PF::ExpireOtherInfo), "Other Expire info", "Program Info"},
    {"Program_Change_Info", P, p(PF::ChangeInfo), "Recent Changes", "Program Info"},
    {"Program_Specific_Category", P, p(PF::SpecificCategory), "Specific Category", "Program Info"},
    {"Program_Categories", P, p(PF::CategoryClass), "Possible Categories", "Program Info"},
    {"Program_System_Requirements", P, p(PF::SystemRequirements), "System Requirements",
     "Program Info"},
    {"Keywords", P, p(PF::Keywords), "Keywords:", "Descriptions", From::Text, When::Description},
    {"Char_Desc_45", P, p(PF::CharDesc45), "45 Char:", "Descriptions", From::Text,
     When::Description},
    {"Char_Desc_80", P, p(PF::CharDesc80), "80 Char:", "Descriptions", From::Text,
     When::Description},
    {"Char_Desc_250", P, p(PF::CharDesc250), "250 Char:", "Descriptions", From::Text,
     When::Description},
    {"Char_Desc_450", P, p(PF::CharDesc450), "450 Char:", "Descriptions", From::Text,
     When::Description},
    {"Char_Desc_2000", P, p(PF::CharDesc2000), "2000 Char:", "Descriptions", From::Text,
     When::Description},
    {"Application_Info_URL", P, p(PF::ApplicationInfoURL), "Application Home",
     "Web Info, General URL Info"},
    {"Application_Order_URL", P, p(PF::ApplicationOrderURL), "Application Order",
     "Web Info, General URL Info"},
    {"Application_Screenshot_URL", P, p(PF::ApplicationScreenshotURL), "Screenshot",
     "Web Info, General URL Info"},
    {"Application_Icon_URL", P, p(PF::ApplicationIconURL), "Program Icon",
     "Web Info, General URL Info"},
    {"Application_XML_File_URL", P, p(PF::ApplicationXMLFileURL), "PAD XML File",
     "Web Info, General URL Info"},
    {"Primary_Download_URL", P, p(PF::PrimaryDownloadURL), "Primary Download",
     "Web Info, Download URL Info"},
    {"Secondary_Download_URL", P, p(PF::SecondaryDownloadURL), "Second Download",
     "Web Info, Download URL Info"},
    {"Additional_Download_URL_1", P, p(PF::AdditionalDownloadURL1), "Third Download",
     "Web Info, Download URL Info"},
    {"Additional_Download_URL_2", P, p(PF::AdditionalDownloadURL2), "Fourth Download",
     "Web Info, Download URL Info"},
    {"Distribution_Permissions", P, p(PF::DistributionPermissions), "Distribution Agreements",
     "Permissions"},
    {"EULA", P, p(PF::EULA), "End User License Agreement", "Permissions"},
    {"ASP_Member_Number", P, p(PF::ASPMemberNumber), "I am an ASP Member, number:", "ASP Info",
     From::Text, When::ASP},
    {"TPA_Member_ID", P, p(PF::TPAMemberID), "We are a TPA Member, ID:", "TPA Info", From::Text,
     When::TPA},
    {"Trial_License_Type", P, p(PF::TrialLicenseType), "Trialware license type", "TPA Info",
     From::Text, When::TPA},
};

// The captions of the description language tabs.
const char* const kLanguageTabs[] = {"English",        "Spanish",           "French",
                                     "German",         "Italian",           "Japanese",
                                     "Chinese Simple", "Chinese Tradional", "Russian"};
static_assert(std::size(kLanguageTabs) == ProgramRecord::kLanguages);

bool written(When when, const ProgramRecord& pr) {
    const bool byDate = pr.number(PF::ExpireBasedOn, 3) != 0;
    switch (when) {
    case When::Always:
    case When::Description:
        return true;
    case When::ExpireByCount:
        return !byDate;
    case When::ExpireByDate:
        return byDate;
    case When::ASP:
        return pr.number(PF::ASPActivated) == 1;
    case When::TPA:
        return pr.number(PF::TPAActivated) == 1;
    }
    return false;
}

QString valueOf(const Row& row, const CompanyRecord& co, const ProgramRecord& pr, int entry) {
    switch (row.from) {
    case From::Text:
        return row.side == C ? co.text(row.field, entry) : pr.text(row.field, entry);
    case From::Systems:
        return joinedFlagTexts(pr, PF::OSSupported, operatingSystemList());
    case From::Languages:
        return joinedFlagTexts(pr, PF::LanguageSupported, languageList());
    case From::YesNo:
        return pr.number(row.field) != 0 ? QStringLiteral("Y") : QStringLiteral("N");
    case From::ExpireBasedOn:
        if (pr.number(PF::ExpireBasedOn, 3) == 0)
            return expireBasedOnCaption(pr);
        return pr.text(PF::ExpireMonth).isEmpty() ? QString() : QStringLiteral("Date");
    }
    return QString();
}

} // namespace

std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program) {
    std::vector<PadWrittenValue> out;
    auto add = [&](const Row& row, int entry, const QString& place) {
        // Expire_Based_On is not written at all for a date without a month.
        if (row.from == From::ExpireBasedOn && program.number(PF::ExpireBasedOn, 3) != 0 &&
            program.text(PF::ExpireMonth).isEmpty())
            return;
        out.push_back({QLatin1String(row.element), valueOf(row, company, program, entry),
                       QString::fromUtf8(row.label), place, row.side, row.field, entry});
    };
    bool descriptionsDone = false;
    for (const Row& row : kRows) {
        if (row.when != When::Description) {
            if (written(row.when, program))
                add(row, 0, QString::fromUtf8(row.place));
            continue;
        }
        // At the first description row: every active language with all its rows.
        if (descriptionsDone)
            continue;
        descriptionsDone = true;
        for (int language = 0; language < ProgramRecord::kLanguages; ++language) {
            if (program.number(PF::DescriptionActive, language) != 1)
                continue;
            const QString place = QString::fromUtf8(row.place) + QStringLiteral(", ") +
                                  QString::fromUtf8(kLanguageTabs[language]);
            for (const Row& d : kRows)
                if (d.when == When::Description)
                    add(d, language, place);
        }
    }
    return out;
}

} // namespace brevaro
