#include "pad/PadText.h"

#include "AppVersion.h"
#include "mainwindow/WebAddresses.h"
#include "platform/StringHelpers.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {

using CF = CompanyField;
using PF = ProgramField;

const QString kCrLf = QStringLiteral("\r\n");

// Builds the document line by line.
class Lines {
public:
    void line(int blanks, const QString& text) { m_text += QString(blanks, u' ') + text + kCrLf; }
    void empty() { m_text += kCrLf; }
    // The value element rule: full form with a value, "<Name />" without.
    void value(int blanks, const char* element, const QString& v) {
        const QString name = QLatin1String(element);
        if (v.isEmpty())
            line(blanks, u'<' + name + QStringLiteral(" />"));
        else
            full(blanks, element, v);
    }
    // Full form always, as the association blocks and Y/N flags are written.
    void full(int blanks, const char* element, const QString& v) {
        const QString name = QLatin1String(element);
        line(blanks, u'<' + name + u'>' + v + QStringLiteral("</") + name + u'>');
    }
    void yesNo(int blanks, const char* element, bool set) {
        full(blanks, element, set ? QStringLiteral("Y") : QStringLiteral("N"));
    }
    const QString& text() const { return m_text; }

private:
    QString m_text;
};

bool nonZero(const ProgramRecord& p, PF f, int i = 0) {
    return p.number(f, i) != 0;
}
bool isOne(const ProgramRecord& p, PF f, int i = 0) {
    return p.number(f, i) == 1;
}

void companyBlock(Lines& d, const CompanyRecord& c) {
    d.line(0, QStringLiteral("<Company_Info>"));
    d.value(1, "Company_Name", c.text(CF::CompanyName));
    d.value(1, "Address_1", c.text(CF::Address1));
    d.value(1, "Address_2", c.text(CF::Address2));
    d.value(1, "City_Town", c.text(CF::CityTown));
    d.value(1, "State_Province", c.text(CF::StateProvince));
    d.value(1, "Zip_Postal_Code", c.text(CF::ZipPostalCode));
    d.value(1, "Country", c.text(CF::Country));
    d.value(1, "Company_WebSite_URL", c.text(CF::CompanyWebSiteURL));
    d.line(2, QStringLiteral("<Contact_Info>"));
    d.value(2, "Author_First_Name", c.text(CF::AuthorFirstName));
    d.value(2, "Author_Last_Name", c.text(CF::AuthorLastName));
    d.value(2, "Author_Email", c.text(CF::AuthorEmail));
    d.value(2, "Contact_First_Name", c.text(CF::ContactFirstName));
    d.value(2, "Contact_Last_Name", c.text(CF::ContactLastName));
    d.value(2, "Contact_Email", c.text(CF::ContactEmail));
    d.line(1, QStringLiteral("</Contact_Info>"));
    d.line(1, QStringLiteral("<Support_Info>"));
    d.value(2, "Sales_Email", c.text(CF::SalesEmail));
    d.value(2, "Support_Email", c.text(CF::SupportEmail));
    d.value(2, "General_Email", c.text(CF::GeneralEmail));
    d.value(2, "Sales_Phone", c.text(CF::SalesPhone));
    d.value(2, "Support_Phone", c.text(CF::SupportPhone));
    d.value(2, "General_Phone", c.text(CF::GeneralPhone));
    d.value(2, "Fax_Phone", c.text(CF::FaxPhone));
    d.line(1, QStringLiteral("</Support_Info>"));
    d.line(0, QStringLiteral("</Company_Info>"));
    d.empty();
}

void expiryBlock(Lines& d, const ProgramRecord& p) {
    d.yesNo(2, "Has_Expire_Info", nonZero(p, PF::HasExpireInfo));
    if (!nonZero(p, PF::ExpireBasedOn, 3)) {
        d.value(2, "Expire_Count", p.text(PF::ExpireCount));
        d.value(2, "Expire_Based_On", expireBasedOnCaption(p));
    } else {
        const QString month = p.text(PF::ExpireMonth);
        if (!month.isEmpty()) {
            d.full(2, "Expire_Based_On", QStringLiteral("Date"));
            d.full(2, "Expire_Month", month);
        } else {
            d.line(2, QStringLiteral("<Expire_Month />"));
        }
        d.value(2, "Expire_Day", p.text(PF::ExpireDay));
        d.value(2, "Expire_Year", p.text(PF::ExpireYear));
    }
    d.value(2, "Expire_Other_Info", p.text(PF::ExpireOtherInfo));
}

void programBlock(Lines& d, const ProgramRecord& p) {
    d.line(0, QStringLiteral("<Program_Info>"));
    d.value(1, "Program_Name", p.text(PF::ProgramName));
    d.value(1, "Program_Version", p.text(PF::ProgramVersion));
    d.value(1, "Program_Release_Month", p.text(PF::ReleaseMonth));
    d.value(1, "Program_Release_Day", p.text(PF::ReleaseDay));
    d.value(1, "Program_Release_Year", p.text(PF::ReleaseYear));
    d.value(1, "Program_Cost_Dollars", p.text(PF::CostDollars));
    d.value(1, "Program_Cost_Other_Code", p.text(PF::CostOtherCode));
    d.value(1, "Program_Cost_Other", p.text(PF::CostOther));
    d.value(1, "Program_Type", p.text(PF::ProgramType));
    d.value(1, "Program_Release_Status", p.text(PF::ReleaseStatus));
    d.value(1, "Program_Install_Support", p.text(PF::InstallSupport));
    d.value(1, "Program_OS_Support", joinedFlagTexts(p, PF::OSSupported, operatingSystemList()));
    d.value(1, "Program_Language", joinedFlagTexts(p, PF::LanguageSupported, languageList()));
    d.line(1, QStringLiteral("<File_Info>"));
    d.value(2, "Filename_Versioned", p.text(PF::FilenameVersioned));
    d.value(2, "Filename_Previous", p.text(PF::FilenamePrevious));
    d.value(2, "Filename_Generic", p.text(PF::FilenameGeneric));
    d.value(2, "Filename_Long", p.text(PF::FilenameLong));
    d.value(2, "File_Size_Bytes", p.text(PF::FileSizeBytes));
    d.value(2, "File_Size_K", p.text(PF::FileSizeK));
    d.value(2, "File_Size_MB", p.text(PF::FileSizeMB));
    d.line(1, QStringLiteral("</File_Info>"));
    d.line(1, QStringLiteral("<Expire_Info>"));
    expiryBlock(d, p);
    d.line(1, QStringLiteral("</Expire_Info>"));
    d.value(1, "Program_Change_Info", p.text(PF::ChangeInfo));
    d.value(1, "Program_Specific_Category", p.text(PF::SpecificCategory));
    d.value(1, "Program_Categories", p.text(PF::CategoryClass));
    d.value(1, "Program_System_Requirements", p.text(PF::SystemRequirements));
    d.yesNo(1, "Includes_JAVA_VM", nonZero(p, PF::IncludesJavaVM));
    d.yesNo(1, "Includes_VB_Runtime", nonZero(p, PF::IncludesVBRuntime));
    d.yesNo(1, "Includes_DirectX", nonZero(p, PF::IncludesDirectX));
    d.line(0, QStringLiteral("</Program_Info>"));
    d.empty();
}

void descriptionsBlock(Lines& d, const ProgramRecord& p) {
    d.line(0, QStringLiteral("<Program_Descriptions>"));
    const QStringList& languages = languageList();
    for (int i = 0; i < ProgramRecord::kLanguages; ++i) {
        if (!isOne(p, PF::DescriptionActive, i))
            continue;
        const QString language = trimBlanks(languages.value(i));
        d.line(1, u'<' + language + u'>');
        d.value(2, "Keywords", p.text(PF::Keywords, i));
        d.value(2, "Char_Desc_45", p.text(PF::CharDesc45, i));
        d.value(2, "Char_Desc_80", p.text(PF::CharDesc80, i));
        d.value(2, "Char_Desc_250", p.text(PF::CharDesc250, i));
        d.value(2, "Char_Desc_450", p.text(PF::CharDesc450, i));
        d.value(2, "Char_Desc_2000", p.text(PF::CharDesc2000, i));
        d.line(1, QStringLiteral("</") + language + u'>');
    }
    d.line(0, QStringLiteral("</Program_Descriptions>"));
    d.empty();
}

void webAndPermissionsBlock(Lines& d, const ProgramRecord& p) {
    d.line(0, QStringLiteral("<Web_Info>"));
    d.line(1, QStringLiteral("<Application_URLs>"));
    d.value(2, "Application_Info_URL", p.text(PF::ApplicationInfoURL));
    d.value(2, "Application_Order_URL", p.text(PF::ApplicationOrderURL));
    d.value(2, "Application_Screenshot_URL", p.text(PF::ApplicationScreenshotURL));
    d.value(2, "Application_Icon_URL", p.text(PF::ApplicationIconURL));
    d.value(2, "Application_XML_File_URL", p.text(PF::ApplicationXMLFileURL));
    d.line(1, QStringLiteral("</Application_URLs>"));
    d.line(1, QStringLiteral("<Download_URLs>"));
    d.value(2, "Primary_Download_URL", p.text(PF::PrimaryDownloadURL));
    d.value(2, "Secondary_Download_URL", p.text(PF::SecondaryDownloadURL));
    d.value(2, "Additional_Download_URL_1", p.text(PF::AdditionalDownloadURL1));
    d.value(2, "Additional_Download_URL_2", p.text(PF::AdditionalDownloadURL2));
    d.line(1, QStringLiteral("</Download_URLs>"));
    d.line(0, QStringLiteral("</Web_Info>"));
    d.empty();
    d.line(0, QStringLiteral("<Permissions>"));
    d.value(1, "Distribution_Permissions", p.text(PF::DistributionPermissions));
    d.value(1, "EULA", p.text(PF::EULA));
    d.line(0, QStringLiteral("</Permissions>"));
    d.empty();
}

void associationBlocks(Lines& d, const ProgramRecord& p) {
    if (isOne(p, PF::ASPActivated)) {
        d.line(0, QStringLiteral("<ASP>"));
        d.full(1, "ASP_FORM", QStringLiteral("Y"));
        d.yesNo(1, "ASP_Member", isOne(p, PF::ASPMember));
        d.full(1, "ASP_Member_Number", p.text(PF::ASPMemberNumber));
        d.line(0, QStringLiteral("</ASP>"));
    }
    d.empty();
    if (isOne(p, PF::ESCActivated)) {
        d.line(0, QStringLiteral("<ESC>"));
        d.full(1, "ESC_FORM", QStringLiteral("Y"));
        d.yesNo(1, "ESC_Member", isOne(p, PF::ESCMember));
        d.line(0, QStringLiteral("</ESC>"));
    }
    d.empty();
    if (isOne(p, PF::MSNActivated)) {
        d.line(0, QStringLiteral("<MSN>"));
        d.full(1, "MSN_FORM", QStringLiteral("Y"));
        d.yesNo(1, "MSN_IS_32bit", isOne(p, PF::MSNIs32Bit));
        d.line(0, QStringLiteral("</MSN>"));
    }
    d.empty();
    if (isOne(p, PF::TPAActivated)) {
        d.line(0, QStringLiteral("<TPA>"));
        d.full(1, "TPA_FORM", QStringLiteral("Y"));
        d.yesNo(1, "TPA_Member", isOne(p, PF::TPAMember));
        d.full(1, "TPA_Member_ID", p.text(PF::TPAMemberID));
        d.full(1, "Trial_License_Type", p.text(PF::TrialLicenseType));
        d.line(0, QStringLiteral("</TPA>"));
    }
    d.empty();
}

} // namespace

QString padStandardDescription() {
    return QStringLiteral(
               "Portable Application Description, or PAD for short, is a data set that is "
               "used by shareware authors to disseminate information to anyone "
               "interested in their software products. To find out more go to ") +
           organizationSite(0) + QStringLiteral("/pad");
}

QString createdByComment() {
    return QStringLiteral("<!-- Created By ") + QLatin1String(kAppTitle) +
           QStringLiteral(" version: %1.%2.%3 -->")
               .arg(kVersionMajor)
               .arg(kVersionMinor)
               .arg(kVersionRevision);
}

QString availableAtComment() {
    return QStringLiteral("<!-- Available for download at: ") + productSite() +
           QStringLiteral(" -->");
}

QString joinedFlagTexts(const ProgramRecord& program, ProgramField field,
                        const QStringList& items) {
    QStringList set;
    for (int i = 0; i < items.size(); ++i)
        if (program.number(field, i) != 0)
            set << trimBlanks(items[i]);
    return set.join(u',');
}

QString expireBasedOnCaption(const ProgramRecord& program) {
    static const char* captions[] = {"Days", "Uses", "Either/Or"};
    for (int i = 2; i >= 0; --i)
        if (program.number(ProgramField::ExpireBasedOn, i) != 0)
            return QLatin1String(captions[i]);
    return QString();
}

QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program) {
    Lines d;
    d.line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"Windows-1252\" ?> "));
    d.empty();
    d.line(0, createdByComment());
    d.line(0, availableAtComment());
    d.empty();
    d.line(0, QStringLiteral("<XML_DIZ_INFO>"));
    d.empty();
    d.line(0, QStringLiteral("<MASTER_PAD_VERSION_INFO>"));
    d.full(1, "MASTER_PAD_VERSION", QStringLiteral("1.15"));
    d.full(1, "MASTER_PAD_INFO", padStandardDescription());
    d.line(0, QStringLiteral("</MASTER_PAD_VERSION_INFO>"));
    d.empty();
    companyBlock(d, company);
    programBlock(d, program);
    descriptionsBlock(d, program);
    webAndPermissionsBlock(d, program);
    associationBlocks(d, program);
    d.line(0, QStringLiteral("</XML_DIZ_INFO>"));
    return d.text();
}

} // namespace brevaro
