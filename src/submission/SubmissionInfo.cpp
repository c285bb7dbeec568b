#include "submission/SubmissionInfo.h"

#include "platform/StringHelpers.h"

#include <variant>

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

// A row's value: a company field, a program field (the first entry of an array) or a date
// made of three program fields.
struct Date {
    PF month, day, year;
};
using Source = std::variant<CF, PF, Date>;

struct Row {
    const char* label;
    Source source;
};

struct Group {
    const char* heading;
    std::vector<Row> rows;
};

const std::vector<Group>& groups() {
    static const std::vector<Group> table = {
        {"> COMPANY INFO <",
         {{"Company Name", CF::CompanyName},
          {"Address 1", CF::Address1},
          {"Adress 2", CF::Address2},
          {"City", CF::CityTown},
          {"State", CF::StateProvince},
          {"Zip", CF::ZipPostalCode},
          {"Country", CF::Country},
          {"Homepage URL", CF::CompanyWebSiteURL}}},
        {"> AUTHOR <",
         {{"Author First Name", CF::AuthorFirstName},
          {"Author Last Name", CF::AuthorLastName},
          {"Author Email", CF::AuthorEmail}}},
        {"> CONTACT <",
         {{"Contact First Name", CF::ContactFirstName},
          {"Contact Last Name", CF::ContactLastName},
          {"Contact Email", CF::ContactEmail}}},
        {"> EMAIL ADDRESSES <",
         {{"Email Sales", CF::SalesEmail},
          {"Email Support", CF::SupportEmail},
          {"Email General", CF::GeneralEmail}}},
        {"> PHONE NUMBERS <",
         {{"Phone Sales", CF::SalesPhone},
          {"Phone Support", CF::SupportPhone},
          {"Phone General", CF::GeneralPhone},
          {"Phone Fax", CF::FaxPhone}}},
        {"> PROGRAM INFO <",
         {{"Program Name", PF::ProgramName},
          {"Program Version", PF::ProgramVersion},
          {"Release Date", Date{PF::ReleaseMonth, PF::ReleaseDay, PF::ReleaseYear}},
          {"Type", PF::ProgramType},
          {"Status", PF::ReleaseStatus},
          {"Cost US", PF::CostDollars},
          {"Cost Other Currency", PF::CostOtherCode},
          {"Cost Other Amount", PF::CostOther},
          {"Install Support", PF::InstallSupport}}},
        {"> FILE INFO <",
         {{"Versioned Filename", PF::FilenameVersioned},
          {"Previous Filename", PF::FilenamePrevious},
          {"Generic Filename", PF::FilenameGeneric},
          {"Long Filename", PF::FilenameLong},
          {"Size Byte", PF::FileSizeBytes},
          {"Size KB", PF::FileSizeK},
          {"Size MB", PF::FileSizeMB}}},
        {"> EXPIRED INFO <",
         {{"Expire After", PF::ExpireCount},
          {"Expire Date", Date{PF::ExpireMonth, PF::ExpireDay, PF::ExpireYear}},
          {"ExpireInfo", PF::ExpireOtherInfo}}},
        {"> MISC INFO <",
         {{"Recent Changes", PF::ChangeInfo},
          {"Specific Category", PF::SpecificCategory},
          {"Possible Categories", PF::CategoryClass},
          {"System Requirements", PF::SystemRequirements}}},
        {"> ENGLISH DESCRIPTIONS <",
         {{"Keywords", PF::Keywords},
          {"45 char", PF::CharDesc45},
          {"80 char", PF::CharDesc80},
          {"250 char", PF::CharDesc250},
          {"450 char", PF::CharDesc450},
          {"2000 char", PF::CharDesc2000}}},
        {"> GENERAL URL INFO <",
         {{"Application Home URL", PF::ApplicationInfoURL},
          {"Application Order URL", PF::ApplicationOrderURL},
          {"Screenshot URL", PF::ApplicationScreenshotURL},
          {"Program Icon URL", PF::ApplicationIconURL},
          {"Pad/XML File URL", PF::ApplicationXMLFileURL}}},
        {"> DOWNLOAD URL INFO <",
         {{"Primary Download URL", PF::PrimaryDownloadURL},
          {"Second Download URL", PF::SecondaryDownloadURL},
          {"Third Download URL", PF::AdditionalDownloadURL1},
          {"Fourth Download URL", PF::AdditionalDownloadURL2}}},
        {"> DISTRIBUTION AGREEMENTS <", {{"Distribution Agreements", PF::DistributionPermissions}}},
        {"> ENDUSER LICENSE AGREEMENT <", {{"EULA", PF::EULA}}},
        {"> ASP <", {{"sASP_MemberNo", PF::ASPMemberNumber}}},
        {"> TPA <",
         {{"sTPA_memberNo", PF::TPAMemberID}, {"sTPA_LicenseType", PF::TrialLicenseType}}},
    };
    return table;
}

QString valueOf(const Source& source, const CompanyRecord& company, const ProgramRecord& program) {
    if (const auto* f = std::get_if<CF>(&source))
        return company.rawText(*f);
    if (const auto* f = std::get_if<PF>(&source))
        return program.rawText(*f);
    const Date& d = std::get<Date>(source);
    return program.rawText(d.month) + u'/' + program.rawText(d.day) + u'/' +
           program.rawText(d.year);
}

} // namespace

bool InfoEntry::isField() const {
    return label != u"-" && !label.contains(u'>');
}

std::vector<InfoEntry> FillInfoList(const CompanyRecord& company, const ProgramRecord& program) {
    std::vector<InfoEntry> list;
    auto add = [&list](const QString& label, const QString& value) {
        list.push_back({QString::number(list.size() + 1), trimBlanks(label), trimBlanks(value)});
    };
    for (const Group& group : groups()) {
        add(QLatin1String(group.heading), QString());
        for (const Row& row : group.rows)
            add(QLatin1String(row.label), valueOf(row.source, company, program));
        add(QStringLiteral("-"), QString());
    }
    return list;
}

QString infoPreview(const QString& value) {
    if (value.size() > 36)
        return value.left(36) + QStringLiteral(" ...");
    return value;
}

} // namespace brevaro
