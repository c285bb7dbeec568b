#include "pad/PadLaterLayout.h"

#include "pad/PadLayout.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <array>

namespace brevaro {

namespace {

using K = LaterRowKind;
using CF = CompanyField;
using PF = ProgramField;

constexpr LaterPadRow open(int indent, const char* tag, bool since40 = false) {
    return {K::Open, indent, tag, RecordSide::None, -1, since40};
}
constexpr LaterPadRow close(int indent, const char* tag, bool since40 = false) {
    return {K::Close, indent, tag, RecordSide::None, -1, since40};
}
constexpr LaterPadRow fixed(const char* element) {
    return {K::Fixed, 2, element};
}
constexpr LaterPadRow company(int indent, const char* element, CF f) {
    return {K::Value, indent, element, RecordSide::Company, static_cast<int>(f)};
}
constexpr LaterPadRow program(int indent, const char* element, PF f, K kind = K::Value) {
    return {kind, indent, element, RecordSide::Program, static_cast<int>(f)};
}
constexpr LaterPadRow extra(int indent, const char* element, RecordSide side,
                            const char* name = nullptr) {
    return {K::Extra, indent, element, side, -1, true, name ? name : element};
}
// An extension block and its members, written as 1.15 writes them: their elements are the
// record fields' own.
constexpr LaterPadRow association(const char* block, PF flag) {
    return {K::Association, 1, block, RecordSide::Program, static_cast<int>(flag)};
}
constexpr LaterPadRow member(PF f, K kind) {
    return {kind, 2, nullptr, RecordSide::Program, static_cast<int>(f)};
}

constexpr auto kRows = std::to_array<LaterPadRow>({
    open(0, "XML_DIZ_INFO"),
    open(1, "MASTER_PAD_VERSION_INFO"),
    fixed("MASTER_PAD_VERSION"),
    fixed("MASTER_PAD_EDITOR"),
    fixed("MASTER_PAD_INFO"),
    close(1, "MASTER_PAD_VERSION_INFO"),

    open(1, "Company_Info"),
    company(2, "Company_Name", CF::CompanyName),
    company(2, "Address_1", CF::Address1),
    company(2, "Address_2", CF::Address2),
    company(2, "City_Town", CF::CityTown),
    company(2, "State_Province", CF::StateProvince),
    company(2, "Zip_Postal_Code", CF::ZipPostalCode),
    company(2, "Country", CF::Country),
    company(2, "Company_WebSite_URL", CF::CompanyWebSiteURL),
    open(2, "Contact_Info"),
    company(3, "Author_First_Name", CF::AuthorFirstName),
    company(3, "Author_Last_Name", CF::AuthorLastName),
    company(3, "Author_Email", CF::AuthorEmail),
    company(3, "Contact_First_Name", CF::ContactFirstName),
    company(3, "Contact_Last_Name", CF::ContactLastName),
    company(3, "Contact_Email", CF::ContactEmail),
    close(2, "Contact_Info"),
    open(2, "Support_Info"),
    company(3, "Sales_Email", CF::SalesEmail),
    company(3, "Support_Email", CF::SupportEmail),
    company(3, "General_Email", CF::GeneralEmail),
    company(3, "Sales_Phone", CF::SalesPhone),
    company(3, "Support_Phone", CF::SupportPhone),
    company(3, "General_Phone", CF::GeneralPhone),
    company(3, "Fax_Phone", CF::FaxPhone),
    close(2, "Support_Info"),
    extra(2, "GooglePlusPage", RecordSide::Company),
    extra(2, "LinkedinPage", RecordSide::Company),
    extra(2, "TwitterCompanyPage", RecordSide::Company),
    extra(2, "FacebookCompanyPage", RecordSide::Company),
    extra(2, "CompanyStorePage", RecordSide::Company),
    close(1, "Company_Info"),

    open(1, "Program_Info"),
    program(2, "Program_Name", PF::ProgramName),
    program(2, "Program_Version", PF::ProgramVersion),
    program(2, "Program_Release_Month", PF::ReleaseMonth),
    program(2, "Program_Release_Day", PF::ReleaseDay),
    program(2, "Program_Release_Year", PF::ReleaseYear),
    program(2, "Program_Cost_Dollars", PF::CostDollars),
    program(2, "Program_Cost_Other_Code", PF::CostOtherCode),
    program(2, "Program_Cost_Other", PF::CostOther),
    program(2, "Program_Type", PF::ProgramType),
    program(2, "Program_Release_Status", PF::ReleaseStatus),
    program(2, "Program_Install_Support", PF::InstallSupport),
    program(2, "Program_OS_Support", PF::OSSupported, K::OsTokens),
    program(2, "Program_Language", PF::LanguageSupported, K::Languages),
    open(2, "File_Info"),
    program(3, "File_Size_Bytes", PF::FileSizeBytes),
    program(3, "File_Size_K", PF::FileSizeK),
    program(3, "File_Size_MB", PF::FileSizeMB),
    close(2, "File_Info"),
    open(2, "Expire_Info"),
    program(3, "Has_Expire_Info", PF::HasExpireInfo, K::Expiry),
    close(2, "Expire_Info"),
    program(2, "Program_Change_Info", PF::ChangeInfo),
    program(2, "Program_Category_Class", PF::CategoryClass, K::CategoryClass),
    program(2, "Program_Specific_Category", PF::SpecificCategory),
    program(2, "Program_System_Requirements", PF::SystemRequirements),
    extra(2, "FacebookProductPage", RecordSide::Program),
    extra(2, "GooglePlusProductPage", RecordSide::Program),
    close(1, "Program_Info"),

    open(1, "Program_Descriptions"),
    program(2, nullptr, PF::DescriptionActive, K::Descriptions),
    close(1, "Program_Descriptions"),

    open(1, "Web_Info"),
    open(2, "Application_URLs"),
    program(3, "Application_Info_URL", PF::ApplicationInfoURL),
    program(3, "Application_Order_URL", PF::ApplicationOrderURL),
    program(3, "Application_Screenshot_URL", PF::ApplicationScreenshotURL),
    program(3, "Application_Icon_URL", PF::ApplicationIconURL),
    program(3, "Application_XML_File_URL", PF::ApplicationXMLFileURL),
    extra(3, "Video_Link_1_URL", RecordSide::Program),
    extra(3, "Video_Link_2_URL", RecordSide::Program),
    close(2, "Application_URLs"),
    open(2, "Download_URLs"),
    program(3, "Primary_Download_URL", PF::PrimaryDownloadURL),
    program(3, "Secondary_Download_URL", PF::SecondaryDownloadURL),
    program(3, "Additional_Download_URL_1", PF::AdditionalDownloadURL1),
    program(3, "Additional_Download_URL_2", PF::AdditionalDownloadURL2),
    close(2, "Download_URLs"),
    close(1, "Web_Info"),

    open(1, "Permissions"),
    program(2, "Distribution_Permissions", PF::DistributionPermissions),
    program(2, "EULA", PF::EULA),
    close(1, "Permissions"),

    open(1, "Press_Release", true),
    extra(2, "Keywords", RecordSide::Program, "Press_Release_Keywords"),
    extra(2, "Headline", RecordSide::Program),
    extra(2, "Summary", RecordSide::Program),
    extra(2, "Press_Release", RecordSide::Program),
    extra(2, "Press_Release_Plain", RecordSide::Program),
    extra(2, "Related_URL", RecordSide::Program),
    close(1, "Press_Release", true),
    open(1, "NewsFeed", true),
    extra(2, "NewsFeed_Feed_URL", RecordSide::Program),
    extra(2, "NewsFeed_Type", RecordSide::Program),
    extra(2, "NewsFeed_Title", RecordSide::Program),
    extra(2, "NewsFeed_Keywords", RecordSide::Program),
    extra(2, "NewsFeed_Description_70", RecordSide::Program),
    extra(2, "NewsFeed_Description_250", RecordSide::Program),
    close(1, "NewsFeed", true),

    association("ASP", PF::ASPActivated),
    member(PF::ASPMember, K::MemberYesNo),
    member(PF::ASPMemberNumber, K::MemberText),
    {K::AssociationEnd, 1, "ASP"},
    association("ESC", PF::ESCActivated),
    member(PF::ESCMember, K::MemberYesNo),
    {K::AssociationEnd, 1, "ESC"},
    association("MSN", PF::MSNActivated),
    member(PF::MSNIs32Bit, K::MemberYesNo),
    {K::AssociationEnd, 1, "MSN"},
    association("TPA", PF::TPAActivated),
    member(PF::TPAMember, K::MemberYesNo),
    member(PF::TPAMemberID, K::MemberText),
    member(PF::TrialLicenseType, K::MemberText),
    {K::AssociationEnd, 1, "TPA"},
    close(0, "XML_DIZ_INFO"),
});

} // namespace

std::span<const LaterPadRow> laterPadRows() {
    return kRows;
}

const char* elementOf(const LaterPadRow& row) {
    return row.element ? row.element : layoutOf(row.side).field(row.field).padElement;
}

bool inVersion(const LaterPadRow& row, PadVersion version) {
    return version == PadVersion::V4_0 || !row.since40;
}

} // namespace brevaro
