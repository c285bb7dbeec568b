#include "pad/PadLayout.h"

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <array>

namespace brevaro {

namespace {

using K = PadRowKind;
using CF = CompanyField;
using PF = ProgramField;

constexpr PadRow line(int indent, const char* text) {
    return {K::Line, indent, text};
}
constexpr PadRow blank() {
    return {K::Blank};
}
constexpr PadRow company(int indent, CF f) {
    return {K::Value, indent, nullptr, RecordSide::Company, static_cast<int>(f)};
}
constexpr PadRow program(int indent, PF f, K kind = K::Value) {
    return {kind, indent, nullptr, RecordSide::Program, static_cast<int>(f)};
}
constexpr PadRow association(const char* block, PF flag) {
    return {K::Association, 0, block, RecordSide::Program, static_cast<int>(flag)};
}
constexpr PadRow associationEnd(const char* block) {
    return {K::AssociationEnd, 0, block};
}

constexpr auto kRows = std::to_array<PadRow>({
    line(0, "<XML_DIZ_INFO>"),
    blank(),
    line(0, "<MASTER_PAD_VERSION_INFO>"),
    {K::Fixed, 1, "MASTER_PAD_VERSION", RecordSide::None, -1, "MASTER PAD VERSION"},
    {K::Fixed, 1, "MASTER_PAD_INFO", RecordSide::None, -1, "MASTER PAD INFO"},
    line(0, "</MASTER_PAD_VERSION_INFO>"),
    blank(),

    line(0, "<Company_Info>"),
    company(1, CF::CompanyName),
    company(1, CF::Address1),
    company(1, CF::Address2),
    company(1, CF::CityTown),
    company(1, CF::StateProvince),
    company(1, CF::ZipPostalCode),
    company(1, CF::Country),
    company(1, CF::CompanyWebSiteURL),
    line(2, "<Contact_Info>"),
    company(2, CF::AuthorFirstName),
    company(2, CF::AuthorLastName),
    company(2, CF::AuthorEmail),
    company(2, CF::ContactFirstName),
    company(2, CF::ContactLastName),
    company(2, CF::ContactEmail),
    line(1, "</Contact_Info>"),
    line(1, "<Support_Info>"),
    company(2, CF::SalesEmail),
    company(2, CF::SupportEmail),
    company(2, CF::GeneralEmail),
    company(2, CF::SalesPhone),
    company(2, CF::SupportPhone),
    company(2, CF::GeneralPhone),
    company(2, CF::FaxPhone),
    line(1, "</Support_Info>"),
    line(0, "</Company_Info>"),
    blank(),

    line(0, "<Program_Info>"),
    program(1, PF::ProgramName),
    program(1, PF::ProgramVersion),
    program(1, PF::ReleaseMonth),
    program(1, PF::ReleaseDay),
    program(1, PF::ReleaseYear),
    program(1, PF::CostDollars),
    program(1, PF::CostOtherCode),
    program(1, PF::CostOther),
    program(1, PF::ProgramType),
    program(1, PF::ReleaseStatus),
    program(1, PF::InstallSupport),
    program(1, PF::OSSupported, K::FlagList),
    program(1, PF::LanguageSupported, K::FlagList),
    line(1, "<File_Info>"),
    program(2, PF::FilenameVersioned),
    program(2, PF::FilenamePrevious),
    program(2, PF::FilenameGeneric),
    program(2, PF::FilenameLong),
    program(2, PF::FileSizeBytes),
    program(2, PF::FileSizeK),
    program(2, PF::FileSizeMB),
    line(1, "</File_Info>"),
    line(1, "<Expire_Info>"),
    program(2, PF::HasExpireInfo, K::Expiry),
    line(1, "</Expire_Info>"),
    program(1, PF::ChangeInfo),
    program(1, PF::SpecificCategory),
    program(1, PF::CategoryClass),
    program(1, PF::SystemRequirements),
    program(1, PF::IncludesJavaVM, K::YesNo),
    program(1, PF::IncludesVBRuntime, K::YesNo),
    program(1, PF::IncludesDirectX, K::YesNo),
    line(0, "</Program_Info>"),
    blank(),

    line(0, "<Program_Descriptions>"),
    program(1, PF::DescriptionActive, K::Descriptions),
    line(0, "</Program_Descriptions>"),
    blank(),

    line(0, "<Web_Info>"),
    line(1, "<Application_URLs>"),
    program(2, PF::ApplicationInfoURL),
    program(2, PF::ApplicationOrderURL),
    program(2, PF::ApplicationScreenshotURL),
    program(2, PF::ApplicationIconURL),
    program(2, PF::ApplicationXMLFileURL),
    line(1, "</Application_URLs>"),
    line(1, "<Download_URLs>"),
    program(2, PF::PrimaryDownloadURL),
    program(2, PF::SecondaryDownloadURL),
    program(2, PF::AdditionalDownloadURL1),
    program(2, PF::AdditionalDownloadURL2),
    line(1, "</Download_URLs>"),
    line(0, "</Web_Info>"),
    blank(),

    line(0, "<Permissions>"),
    program(1, PF::DistributionPermissions),
    program(1, PF::EULA),
    line(0, "</Permissions>"),
    blank(),

    association("ASP", PF::ASPActivated),
    program(1, PF::ASPMember, K::MemberYesNo),
    program(1, PF::ASPMemberNumber, K::MemberText),
    associationEnd("ASP"),
    association("ESC", PF::ESCActivated),
    program(1, PF::ESCMember, K::MemberYesNo),
    associationEnd("ESC"),
    association("MSN", PF::MSNActivated),
    program(1, PF::MSNIs32Bit, K::MemberYesNo),
    associationEnd("MSN"),
    association("TPA", PF::TPAActivated),
    program(1, PF::TPAMember, K::MemberYesNo),
    program(1, PF::TPAMemberID, K::MemberText),
    program(1, PF::TrialLicenseType, K::MemberText),
    associationEnd("TPA"),
    line(0, "</XML_DIZ_INFO>"),
});

} // namespace

const std::span<const PadRow> padRows() {
    return kRows;
}

const RecordLayout& layoutOf(RecordSide side) {
    return side == RecordSide::Company ? companyLayout() : programLayout();
}

const RecordField& fieldOf(const PadRow& row) {
    return layoutOf(row.side).field(row.field);
}

} // namespace brevaro
