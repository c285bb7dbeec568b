#include "pad/VerificationReport.h"

#include "pad/PadText.h"
#include "pad/WebInfo.h"
#include "platform/StringHelpers.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {
using CF = CompanyField;
using PF = ProgramField;
const QString kCrLf = QStringLiteral("\r\n");
QString yesNo(bool set) {
    return set ? QStringLiteral("YES") : QStringLiteral("NO");
}
} // namespace

QString FormatFieldLine(const QString& caption, const QString& value) {
    const QString c = trimBlanks(caption);
    const QString v = trimBlanks(value);
    if (c.isEmpty())
        return QString();
    QString line = QStringLiteral("<b>") + c + QStringLiteral(": </b>");
    if (!v.isEmpty())
        line += QStringLiteral("<FONT color=\"#000099\"><b>") + v + QStringLiteral("</b></FONT>");
    else
        line += QStringLiteral("<FONT Size=4 color=\"#CC0000\"><b>*** Field EMPTY ***</b></FONT>");
    return line + QStringLiteral("<BR><BR>") + kCrLf;
}

QString CreateVerificationReport(const CompanyRecord& c, const ProgramRecord& p) {
    QString r;
    for (const char* fixed :
         {"<br><br>", "<FONT Size=4>", "<b>", "XML Data Info Verification:<br>", "</b>", "</FONT>",
          "This section list out all of the fields that will be saved into the XML file. Empty "
          "fields will appear in <FONT Size=4 color=\"#CC0000\"><b>red bold</b></FONT> text.<br>",
          "<hr>", ""})
        r += QString::fromUtf8(fixed) + kCrLf;
    auto field = [&](const char* caption, const QString& value) {
        r += FormatFieldLine(QString::fromUtf8(caption), value);
    };
    field("MASTER PAD VERSION", QStringLiteral("1.15"));
    field("MASTER PAD INFO", padStandardDescription());
    const std::pair<const char*, CF> company[] = {{"Company Name", CF::CompanyName},
                                                  {"Address 1", CF::Address1},
                                                  {"Address 2", CF::Address2},
                                                  {"City/Town", CF::CityTown},
                                                  {"State/Province", CF::StateProvince},
                                                  {"Zip/Postal Code", CF::ZipPostalCode},
                                                  {"Country", CF::Country},
                                                  {"Company Website URL", CF::CompanyWebSiteURL},
                                                  {"Author First Name", CF::AuthorFirstName},
                                                  {"Author Last Name", CF::AuthorLastName},
                                                  {"Author Email", CF::AuthorEmail},
                                                  {"Contact First Name", CF::ContactFirstName},
                                                  {"Contact Last Name", CF::ContactLastName},
                                                  {"Contact Email", CF::ContactEmail},
                                                  {"Sales Email", CF::SalesEmail},
                                                  {"Support Email", CF::SupportEmail},
                                                  {"General Email", CF::GeneralEmail},
                                                  {"Sales Phone", CF::SalesPhone},
                                                  {"Support Phone", CF::SupportPhone},
                                                  {"General Phone", CF::GeneralPhone},
                                                  {"Fax Phone", CF::FaxPhone}};
    for (const auto& [caption, f] : company)
        field(caption, c.text(f));
    const std::pair<const char*, PF> program[] = {{"Program Name", PF::ProgramName},
                                                  {"Program Version", PF::ProgramVersion},
                                                  {"Program Release Month", PF::ReleaseMonth},
                                                  {"Program Release Day", PF::ReleaseDay},
                                                  {"Program Release Year", PF::ReleaseYear},
                                                  {"Program Cost Dollars", PF::CostDollars},
                                                  {"Program Cost Other Code", PF::CostOtherCode},
                                                  {"Program Cost Other", PF::CostOther},
                                                  {"Program Type", PF::ProgramType},
                                                  {"Program Release Status", PF::ReleaseStatus},
                                                  {"Program Install Support", PF::InstallSupport}};
    for (const auto& [caption, f] : program)
        field(caption, p.text(f));
    field("Program OS Support", joinedFlagTexts(p, PF::OSSupported, operatingSystemList()));
    field("Program Language", joinedFlagTexts(p, PF::LanguageSupported, languageList()));
    const std::pair<const char*, PF> files[] = {{"Filename Versioned", PF::FilenameVersioned},
                                                {"Filename Previous", PF::FilenamePrevious},
                                                {"Filename Generic", PF::FilenameGeneric},
                                                {"Filename Long", PF::FilenameLong},
                                                {"File Size Bytes", PF::FileSizeBytes},
                                                {"File Size KB", PF::FileSizeK},
                                                {"File Size MB", PF::FileSizeMB}};
    for (const auto& [caption, f] : files)
        field(caption, p.text(f));
    field("Has Expited Info", yesNo(p.number(PF::HasExpireInfo) != 0));
    field("Expire Count", p.text(PF::ExpireCount));
    field("Expire Based On", expireBasedOnCaption(p));
    const std::pair<const char*, PF> rest[] = {
        {"Expire Other Info", PF::ExpireOtherInfo},
        {"Expire Month", PF::ExpireMonth},
        {"Expire Day", PF::ExpireDay},
        {"Expire Year", PF::ExpireYear},
        {"Program Change Info", PF::ChangeInfo},
        {"Program Specific Category", PF::SpecificCategory},
        {"Program Categories", PF::CategoryClass},
        {"Program System Requirements", PF::SystemRequirements}};
    for (const auto& [caption, f] : rest)
        field(caption, p.text(f));
    field("Includes JAVA VM", yesNo(p.number(PF::IncludesJavaVM) != 0));
    field("Includes VB Runtime", yesNo(p.number(PF::IncludesVBRuntime) != 0));
    field("Includes DirectX", yesNo(p.number(PF::IncludesDirectX) != 0));
    const std::pair<const char*, PF> english[] = {
        {"Keywords", PF::Keywords},         {"Char 45 Desc", PF::CharDesc45},
        {"Char 80 Desc", PF::CharDesc80},   {"Char 250 Desc", PF::CharDesc250},
        {"Char 450 Desc", PF::CharDesc450}, {"Char 2000 Desc", PF::CharDesc2000}};
    for (const auto& [caption, f] : english)
        field(caption, p.text(f, 0));
    const std::pair<const char*, PF> web[] = {
        {"Application Info URL", PF::ApplicationInfoURL},
        {"Application Order URL", PF::ApplicationOrderURL},
        {"Application Screenshot URL", PF::ApplicationScreenshotURL},
        {"Application Icon URL", PF::ApplicationIconURL},
        {"Application XML File URL", PF::ApplicationXMLFileURL},
        {"Primary Download URL", PF::PrimaryDownloadURL},
        {"Secondary Download URL", PF::SecondaryDownloadURL},
        {"Additional Download URL 1", PF::AdditionalDownloadURL1},
        {"Additional Download URL 2", PF::AdditionalDownloadURL2},
        {"Distribution Permissions", PF::DistributionPermissions},
        {"EULA", PF::EULA}};
    for (const auto& [caption, f] : web)
        field(caption, p.text(f));
    auto one = [&](PF f) {
        return yesNo(p.number(f) == 1);
    };
    if (p.number(PF::ASPActivated) == 1) {
        field("ASP Activated", yesNo(true));
        field("ASP Member", one(PF::ASPMember));
        field("ASP Member No", p.text(PF::ASPMemberNumber));
    }
    if (p.number(PF::ESCActivated) == 1) {
        field("ESC Activated", yesNo(true));
        field("ESC Member", one(PF::ESCMember));
    }
    if (p.number(PF::MSNActivated) == 1) {
        field("MSN Activated", yesNo(true));
        field("MSN 32bit Application", one(PF::MSNIs32Bit));
    }
    if (p.number(PF::TPAActivated) == 1) {
        field("TPA Activated", yesNo(true));
        field("TPA Member", one(PF::TPAMember));
        field("TPA Member ID", p.text(PF::TPAMemberID));
        field("TPA License Type", p.text(PF::TrialLicenseType));
    }
    return r + QStringLiteral("<hr>") + kCrLf;
}

QString verificationPage(const CompanyRecord& company, const ProgramRecord& program,
                         const QString& aspSite) {
    return CreateWebInfo(company, program, aspSite) + CreateVerificationReport(company, program) +
           kCrLf;
}

} // namespace brevaro
