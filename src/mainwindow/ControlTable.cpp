#include "mainwindow/ControlTable.h"

#include "AppVersion.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro {
namespace {

using K = ControlKind;
using CF = CompanyField;
using PF = ProgramField;

// Builds the table row by row; each call starts a row and the chained setters fill it.
class TableBuilder {
public:
    TableBuilder& add(const char* name, K kind, int index = -1) {
        ControlSpec s;
        s.name = QLatin1String(name);
        s.index = index;
        s.kind = kind;
        m_rows.push_back(s);
        return *this;
    }
    TableBuilder& company(CF f, int limit = 0, bool marks = true) {
        row().side = RecordSide::Company;
        row().field = static_cast<int>(f);
        row().limit = limit;
        if (marks)
            mark(RecordSide::Company, kMarkOnChange);
        if (limit > 0)
            row().hint = FocusHint::Counter;
        return *this;
    }
    TableBuilder& program(PF f, int entry = 0, int limit = 0) {
        row().side = RecordSide::Program;
        row().field = static_cast<int>(f);
        row().entry = entry;
        row().limit = limit;
        if (limit > 0) {
            row().hint = FocusHint::Counter;
            mark(RecordSide::Program, kMarkOnChange);
        }
        return *this;
    }
    TableBuilder& mark(RecordSide side, unsigned on) {
        row().marks = side;
        row().markOn = on;
        return *this;
    }
    TableBuilder& noMark() { return mark(RecordSide::None, kMarkNever); }
    TableBuilder& itemHint() {
        row().hint = FocusHint::ItemOf;
        return *this;
    }
    TableBuilder& hint(const char* text) {
        row().hint = FocusHint::Text;
        row().hintText = QString::fromUtf8(text);
        return *this;
    }
    TableBuilder& keepsItem() {
        row().keepsItem = true;
        return *this;
    }
    TableBuilder& noHint() {
        row().hint = FocusHint::None;
        return *this;
    }
    TableBuilder& tip(const QString& text) {
        row().toolTip = text;
        return *this;
    }
    TableBuilder& tip(const char* text) { return tip(QString::fromUtf8(text)); }
    TableBuilder& caption(const char* text) {
        row().caption = QString::fromUtf8(text);
        return *this;
    }
    std::vector<ControlSpec> take() { return std::move(m_rows); }

private:
    ControlSpec& row() { return m_rows.back(); }
    std::vector<ControlSpec> m_rows;
};

constexpr unsigned kBoth = kMarkOnChange | kMarkOnClick;
constexpr auto P = RecordSide::Program;

void companyControls(TableBuilder& t) {
    t.add("cboCompanyName", K::ComboBox)
        .company(CF::CompanyName, 0, false)
        .caption("Name")
        .tip("Current selected Company, or if you don't have a company, your First and Last name");
    t.add("txtAddress1", K::TextBox)
        .company(CF::Address1, 30)
        .caption("Address 1")
        .tip("Enter company address");
    t.add("txtAddress2", K::TextBox)
        .company(CF::Address2, 30)
        .caption("Address 2")
        .tip("Second address line");
    t.add("txtCity", K::TextBox).company(CF::CityTown, 30).caption("City / Town").tip("Enter City");
    t.add("txtState", K::TextBox)
        .company(CF::StateProvince, 25)
        .caption("State/Province")
        .tip("Enter State ot Province");
    t.add("txtZip", K::TextBox)
        .company(CF::ZipPostalCode, 25)
        .caption("Zip")
        .tip("Enter Zip or Postal code");
    t.add("cboCountry", K::ComboBox)
        .company(CF::Country)
        .mark(RecordSide::Company, kBoth)
        .itemHint()
        .caption("Country")
        .tip("Enter Country");
    t.add("txtURL", K::TextBox)
        .company(CF::CompanyWebSiteURL, 128)
        .caption("URL")
        .tip("Enter Company Website URL");
    t.add("txtAuthorFname", K::TextBox)
        .company(CF::AuthorFirstName, 25)
        .caption("First")
        .tip("Authors First name");
    t.add("txtAuthorLname", K::TextBox)
        .company(CF::AuthorLastName, 25)
        .caption("Last")
        .tip("Authors Last name");
    t.add("txtAuthorEmail", K::TextBox)
        .company(CF::AuthorEmail, 60)
        .caption("Email")
        .tip("Authors Email address");
    t.add("txtContactFname", K::TextBox)
        .company(CF::ContactFirstName, 25)
        .caption("First")
        .tip("Contacts First name");
    t.add("txtContactLname", K::TextBox)
        .company(CF::ContactLastName, 25)
        .caption("Last")
        .tip("Contacts Last name");
    t.add("txtContactEmail", K::TextBox)
        .company(CF::ContactEmail, 60)
        .caption("Email")
        .tip("Comtacts Email address");
    t.add("txtSupportEmailSales", K::TextBox)
        .company(CF::SalesEmail, 60)
        .caption("Sales")
        .tip("Sales email address");
    t.add("txtSupportEmailSupport", K::TextBox)
        .company(CF::SupportEmail, 60)
        .caption("Support")
        .tip("Support email address");
    t.add("txtSupportEmailGeneral", K::TextBox)
        .company(CF::GeneralEmail, 60)
        .caption("General")
        .tip("General email address");
    t.add("txtPhoneSales", K::TextBox)
        .company(CF::SalesPhone, 25)
        .caption("Sales")
        .tip("Sales phone number");
    t.add("txtPhoneSupport", K::TextBox)
        .company(CF::SupportPhone, 25)
        .caption("Support")
        .tip("Support phone number");
    t.add("txtPhoneGeneral", K::TextBox)
        .company(CF::GeneralPhone, 25)
        .caption("General")
        .tip("General phone number");
    t.add("txtPhoneFax", K::TextBox)
        .company(CF::FaxPhone, 25)
        .caption("Fax")
        .tip("Fax phone number");
}

void programInfoControls(TableBuilder& t) {
    t.add("cboProgramName", K::ComboBox)
        .program(PF::ProgramName)
        .caption("Name")
        .tip("Current selected Program");
    t.add("txtProgramVersion", K::TextBox)
        .program(PF::ProgramVersion, 0, 10)
        .caption("Version")
        .tip("Enter current program version");
    t.add("cboReleaseMonth", K::ComboBox)
        .program(PF::ReleaseMonth)
        .mark(P, kMarkOnChange)
        .hint("Select Release Month")
        .tip("Enter release Month");
    t.add("cboReleaseDay", K::ComboBox)
        .program(PF::ReleaseDay)
        .mark(P, kMarkOnChange)
        .hint("Select Release Day")
        .tip("Enter release Day");
    t.add("cboReleaseYear", K::ComboBox)
        .program(PF::ReleaseYear)
        .mark(P, kMarkOnChange)
        .hint("Select Release Year")
        .tip("Enter release Year");
    t.add("cboType", K::ComboBox)
        .program(PF::ProgramType)
        .mark(P, kBoth)
        .itemHint()
        .caption("Type")
        .tip("Select the Type of your software");
    t.add("cboStatus", K::ComboBox)
        .program(PF::ReleaseStatus)
        .mark(P, kBoth)
        .itemHint()
        .keepsItem()
        .caption("Status")
        .tip("Select the status of this release");
    t.add("txtCostUS", K::TextBox)
        .program(PF::CostDollars, 0, 10)
        .caption("Cost (US$)")
        .tip("Enter price for your program (Like: 29 or 29.95 NO comma, use DOT . if needed)");
    t.add("cboCostOtherCurrency", K::ComboBox)
        .program(PF::CostOtherCode)
        .mark(P, kBoth)
        .itemHint()
        .caption("Cost (Other)")
        .tip("Select other currency if needed");
    t.add("txtCostOtherAmount", K::TextBox)
        .program(PF::CostOther, 0, 10)
        .tip("Enter price in other currensy");
    t.add("cboInstallSupport", K::ComboBox)
        .program(PF::InstallSupport)
        .mark(P, kBoth)
        .itemHint()
        .keepsItem()
        .caption("Install Support")
        .tip("Select what type of Install / Unstall support your program have");
    t.add("lstSupportedOS", K::ListBox)
        .program(PF::OSSupported)
        .mark(P, kMarkOnClick)
        .hint("Select Supported OS")
        .caption("Supported OS")
        .tip("Select all OS types that apply to your program");
    t.add("lstLanguages", K::ListBox)
        .program(PF::LanguageSupported)
        .mark(P, kMarkOnClick)
        .hint("Select Supported Languages")
        .caption("Languages")
        .tip("Select all Languages that apply to your program");
    t.add("txtVersionedFilename", K::TextBox)
        .program(PF::FilenameVersioned, 0, 12)
        .caption("Versioned Filename")
        .tip("Filename should have an 8.3 name, the last 2 characters of the first portion of the "
             "name "
             "should be the version number.");
    t.add("txtPreviousFilename", K::TextBox)
        .program(PF::FilenamePrevious, 0, 12)
        .caption("Previous Filename")
        .tip("Filename should be 8.3 but have the previous version number for the last 2 "
             "characters");
    t.add("txtGenericFilename", K::TextBox)
        .program(PF::FilenameGeneric, 0, 10)
        .caption("Generic Filename")
        .tip("Filename should be 6.3 generic name, without the version number");
    t.add("txtLongFilename", K::TextBox)
        .program(PF::FilenameLong, 0, 128)
        .caption("Long Filename")
        .tip("Preferred Long Filename that should be used for the program");
    t.add("txtSizeByte", K::TextBox)
        .program(PF::FileSizeBytes)
        .caption("Size Bytes")
        .tip("The size of the distribution file in Bytes");
    t.add("txtSizeKB", K::TextBox)
        .program(PF::FileSizeK)
        .caption("Size KB")
        .tip("The size of the distribution file in KiloBytes");
    t.add("txtSizeMB", K::TextBox)
        .program(PF::FileSizeMB)
        .caption("Size MB")
        .tip("The size of the distribution file in MegaBytes");
    t.add("chkHasExpiredInfo", K::CheckBox)
        .program(PF::HasExpireInfo)
        .mark(P, kMarkOnClick)
        .caption("Has Expired Info")
        .tip("Check this is your product will expire");
    t.add("txtExpireAfter", K::TextBox)
        .program(PF::ExpireCount)
        .caption("Expire After")
        .tip("Enter how many Days/Uses will it run before expire?");
    const char* options[] = {"Days", "Uses", "Either/Or", "this date:"};
    const char* optionTips[] = {"Select if expire after XX Days", "Select if expire after XX Uses",
                                "Select if expire after XX Days or Uses",
                                "Select if it has an expiration date"};
    for (int i = 0; i < 4; ++i)
        t.add("optExpire", K::OptionButton, i)
            .program(PF::ExpireBasedOn, i)
            .mark(P, kMarkOnClick)
            .caption(options[i])
            .tip(optionTips[i]);
    t.add("cboExpireMonth", K::ComboBox)
        .program(PF::ExpireMonth)
        .mark(P, kMarkOnChange)
        .hint("Select Expire Month")
        .caption("Expire on");
    t.add("cboExpireDay", K::ComboBox)
        .program(PF::ExpireDay)
        .mark(P, kMarkOnChange)
        .hint("Select Expire Day");
    t.add("cboExpireYear", K::ComboBox)
        .program(PF::ExpireYear)
        .mark(P, kMarkOnChange)
        .hint("Select Expire year");
    t.add("txtExpireInfo", K::TextBox)
        .program(PF::ExpireOtherInfo, 0, 128)
        .caption("Other Expire info")
        .tip("Enter other important expiration info");
    t.add("txtRecentChanges", K::TextBox)
        .program(PF::ChangeInfo, 0, 128)
        .caption("Recent Changes")
        .tip("What is the major reason/changes in this release");
    t.add("cboSpecificCategory", K::ComboBox)
        .program(PF::SpecificCategory, 0, 128)
        .noHint()
        .mark(P, kBoth)
        .caption("Specific Category")
        .tip("Select the category that fits best for this application");
    t.add("cboPossibleCategories", K::ComboBox)
        .program(PF::CategoryClass, 0, 128)
        .noHint()
        .mark(P, kBoth)
        .caption("Possible Categories")
        .tip("Suggest categories you feel fit best for this product. Comma delimitted.");
    t.add("txtSystemRequirements", K::TextBox)
        .program(PF::SystemRequirements, 0, 128)
        .caption("System Requirements")
        .tip("Enter minimum system requirements for the program to function properly");
    t.add("chkIncludeJava", K::CheckBox)
        .program(PF::IncludesJavaVM)
        .mark(P, kMarkOnClick)
        .caption("Java VM")
        .tip("Select if this program includes the necessary JAVA Virtual Machine");
    t.add("chkIncludeVBruntime", K::CheckBox)
        .program(PF::IncludesVBRuntime)
        .mark(P, kMarkOnClick)
        .caption("VB Runtime")
        .tip("Select if this program includes the necessary VB Runtime Module");
    t.add("chkIncludeDirectX", K::CheckBox)
        .program(PF::IncludesDirectX)
        .mark(P, kMarkOnClick)
        .caption("DirectX")
        .tip("Select if this program includes the necessary DirectX drivers");
}

void descriptionControls(TableBuilder& t) {
    for (int i = 0; i < 9; ++i) {
        t.add("chkActivateLanguage", K::CheckBox, i)
            .program(PF::DescriptionActive, i)
            .caption("Activate")
            .tip("Select to Activate current language");
        t.add("txtKeywords", K::TextBox, i)
            .program(PF::Keywords, i, 128)
            .tip("Enter comma separated Keywords to be used to describe your program");
        t.add("txt45char", K::TextBox, i)
            .program(PF::CharDesc45, i, 45)
            .tip("Enter a short 45 char description of your program");
        t.add("txt80char", K::TextBox, i)
            .program(PF::CharDesc80, i, 80)
            .tip("Enter an 80 char desription of your program");
        t.add("txt250char", K::TextBox, i)
            .program(PF::CharDesc250, i, 250)
            .tip("Enter an 250 char desription of your program");
        t.add("txt450char", K::TextBox, i)
            .program(PF::CharDesc450, i, 450)
            .tip("Enter an 450 char desription of your program");
        t.add("txt2000char", K::TextBox, i)
            .program(PF::CharDesc2000, i, 2000)
            .tip("Enter an 2000 char desription of your program");
    }
}

void webAndAssociationControls(TableBuilder& t) {
    t.add("txtApplicationHomeURL", K::TextBox)
        .program(PF::ApplicationInfoURL, 0, 128)
        .caption("Application Home")
        .tip("Your programs home page, where users can get more info");
    t.add("txtApplicationOrderURL", K::TextBox)
        .program(PF::ApplicationOrderURL, 0, 128)
        .caption("Application Order")
        .tip("Your programs order page, where users can purchase a license");
    t.add("txtScreenshotURL", K::TextBox)
        .program(PF::ApplicationScreenshotURL, 0, 128)
        .caption("Screenshot")
        .tip("Enter the URL to point to a screenshot image of your program (.jpg, .gif, .png - NO "
             "html page!!!");
    t.add("txtProgramIconURL", K::TextBox)
        .program(PF::ApplicationIconURL, 0, 128)
        .caption("Program Icon")
        .tip("Enter the URL to point to an icon image (32x32) for your program (.jpg, .gif, .png - "
             "NO .ico "
             "or html page!!!");
    t.add("txtPadXMLfileURL", K::TextBox)
        .program(PF::ApplicationXMLFileURL, 0, 128)
        .caption("PAD XML File")
        .tip("Enter the full URL to where you will this PAD XML file for your program.");
    t.add("txtPrimaryDownloadURL", K::TextBox)
        .program(PF::PrimaryDownloadURL, 0, 128)
        .caption("Primary Download")
        .tip("Primary download url where users can download your program");
    t.add("txtSecondDownloadURL", K::TextBox)
        .program(PF::SecondaryDownloadURL, 0, 128)
        .caption("Second Download")
        .tip("Secondary download url where users can download your program");
    t.add("txtThirdDownloadURL", K::TextBox)
        .program(PF::AdditionalDownloadURL1, 0, 128)
        .caption("Third Download")
        .tip("First Additional download url where users can download your program");
    t.add("txtFourthDownloadURL", K::TextBox)
        .program(PF::AdditionalDownloadURL2, 0, 128)
        .caption("Fourth Download")
        .tip("Second Additional download url where users can download your program");
    t.add("txtDistributionAgreements", K::TextBox)
        .program(PF::DistributionPermissions, 0, 500)
        .tip("Enter your Distribution Permissions for Vendors and other distributors");
    t.add("txtEULA", K::TextBox)
        .program(PF::EULA, 0, 3000)
        .tip("Enter the End User License Agreement for your program");
    const char* activate = "Activate and include in PAD file";
    t.add("chkASPactivate", K::CheckBox)
        .program(PF::ASPActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkASP", K::CheckBox)
        .program(PF::ASPMember)
        .mark(P, kMarkOnClick)
        .caption("I am an ASP Member, number:")
        .tip("Check if you are an ASP Member");
    t.add("txtASP_MemberNo", K::TextBox)
        .program(PF::ASPMemberNumber, 0, 25)
        .tip("Enter your ASP Member Number");
    t.add("chkESCactivate", K::CheckBox)
        .program(PF::ESCActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkESC", K::CheckBox)
        .program(PF::ESCMember)
        .mark(P, kMarkOnClick)
        .caption("I am an ESC Member")
        .tip("Check if you are an ESC Member");
    t.add("chkMSNactivate", K::CheckBox)
        .program(PF::MSNActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkMSN", K::CheckBox)
        .program(PF::MSNIs32Bit)
        .mark(P, kMarkOnClick)
        .caption("I certify that my submission is a true 32-bit application!")
        .tip("Check if your application is a true 32 application");
    t.add("chkTPAactivate", K::CheckBox)
        .program(PF::TPAActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkTPA", K::CheckBox)
        .program(PF::TPAMember)
        .mark(P, kMarkOnClick)
        .caption("We are a TPA Member, ID:")
        .tip("Check if you are an TPA Member");
    t.add("txtTPA_MemberNo", K::TextBox)
        .program(PF::TPAMemberID, 0, 25)
        .tip("Enter your ASP Member ID");
    t.add("cboTPA_LicenseType", K::ComboBox)
        .program(PF::TrialLicenseType)
        .mark(P, kBoth)
        .itemHint()
        .tip("Select Trialware license type");
}

void commandControls(TableBuilder& t) {
    const char* buttons[] = {
        "New Company",    "Save Company", "Delete Company", "New Program", "Save Program",
        "Delete Program", "Verify PAD",   "Create PAD",     "Submit",      "Exit"};
    const char* buttonTips[] = {
        "Create a New Company record",
        "Save changes done to current Company record",
        "Delete current Company record and all it's programs",
        "Create a new Program record for current company",
        "Save changes done to current Program record",
        "Delete current Program record",
        "Verify PAD File creation based on current Company / Program records",
        "Create a PAD file based on current Company / Program records",
        "Submit Your product to Shareware Directories",
        nullptr};
    for (int i = 0; i < 10; ++i) {
        t.add("cmdButton", K::Button, i).caption(buttons[i]);
        t.tip(buttonTips[i] ? QString::fromUtf8(buttonTips[i])
                            : QStringLiteral("Exit ") + QLatin1String(kAppTitle));
    }
    const char* pad[] = {"New Company", "Save Company", "Delete Company", "-",
                         "New Program", "Save Program", "Delete Program", "-",
                         "Import PAD",  "Verify PAD",   "Create PAD",     "Submit PAD",
                         "-",           "Exit"};
    for (int i = 0; i < 14; ++i)
        t.add("mnuPAD", K::MenuItem, i).caption(pad[i]);
    const char* tools[] = {"Translate", "-", "Submit To Shareware Directories"};
    for (int i = 0; i < 3; ++i)
        t.add("mnuTools", K::MenuItem, i).caption(tools[i]);
    const char* help[] = {"About",
                          "-",
                          "About PAD files ...",
                          "-",
                          "Quorin Shareware Download Directory",
                          "Quorin Developers Login / Signup",
                          "-",
                          "Register Brevaro for FREE!",
                          "Banner Advertise Opportunity",
                          "Brevaro Homepage",
                          "Download Latest Version",
                          "-",
                          "Send Feedback / Bug Report ..."};
    for (int i = 0; i < 13; ++i)
        t.add("mnuHelp", K::MenuItem, i).caption(help[i]);

    const char* verify = "Click to launch browser to verify link";
    t.add("cmdOpenURL", K::Button).tip(verify);
    t.add("cmdSetContactAsAuthor", K::Button).caption("Same As Author");
    for (int i = 0; i < 9; ++i)
        t.add("cmdBrowseGeneralURL", K::Button, i).tip(verify);
    t.add("cmdOpenFileInfo", K::Button).tip("Select a file and set default filnames and filesizes");
    t.add("picKeywordsGenerator", K::Button).tip("Generate Keywords from your programs homepage");
    for (int i = 0; i < 8; ++i)
        t.add("cmdBabel", K::Button, i)
            .tip(
                "Click to open a website where you can translate text between different languages");
    const char* copyDesc[] = {"Copy 80 char description", "Copy 250 char description",
                              "Copy 450 char description"};
    for (int i = 0; i < 3; ++i)
        t.add("cmdCopyDesc", K::Button, i).tip(copyDesc[i]);
    for (int i = 0; i < 17; ++i)
        t.add("cmdCopyWebInfo2ClipBoard", K::Button, i)
            .tip(i < 16 ? "Copy field contents to Clipboard" : "Click to copy text to Clipboard");
    t.add("cmdDefaultPermissions", K::Button, 0)
        .caption("Default")
        .tip("Insert default Distribution Permission text");
    t.add("cmdDefaultPermissions", K::Button, 1).caption("Default").tip("Insert default EULA text");
    for (int i = 0; i < 4; ++i)
        t.add("cmdPermission", K::Button, i)
            .tip(i % 2 == 0 ? "Open / Import text file" : "Save data");
    t.add("Command1", K::Button).caption("Test Download Banners");
}

// Frames and field labels: only captions, for the view to show.
void frameControls(TableBuilder& t) {
    const std::pair<const char*, const char*> frames[] = {
        {"Frame1", "Company"},
        {"Frame2", "Author"},
        {"Frame3", "Contact"},
        {"Frame4", "Support Info"},
        {"Frame5", "Email Addresses"},
        {"Frame6", "Phone Numbers"},
        {"Frame7", "Program Info"},
        {"Frame8", "File Info"},
        {"Frame9", ""},
        {"Frame10", "Misc Info"},
        {"Frame11", "General URL Info"},
        {"Frame12", "Download URL Info"},
        {"Frame13", "Distribution Agreements"},
        {"Frame14", "End User License Agreement"},
        {"Frame15", "Member Info"},
        {"Frame16", "Member Info"},
        {"Frame17", "Member Info"},
        {"Frame18", "Member Info"},
        {"frmDescr1", ""},
        {"frmCopyright", ""},
        {"lbl45char", "45 Char:"},
        {"lbl80char", "80 Char:"},
        {"lbl250char", "250 Char:"},
        {"lbl450char", "450 Char:"},
        {"lbl2000char", "2000 Char:"},
        {"lblKeywords", "Keywords:"},
        {"lblReleaseDate", "Release Date  M:        D:        Y:"},
        {"lblIncludes", "Includes"}};
    for (const auto& [name, caption] : frames)
        t.add(name, K::Label).caption(caption);
    for (int i = 0; i < 9; ++i)
        t.add("frmDescriptions", K::Label, i);
    for (int i = 0; i < 3; ++i)
        t.add("frmOrganization", K::Label, i);
    const char* titles[] = {"Association of Shareware Professional's PAD Extension Form",
                            "Educational Software Cooperative's PAD Extension Form",
                            "MSN's XML DIZ Extensions Form",
                            "Trialware Professional Association's PAD Extension Form"};
    for (int i = 0; i < 4; ++i)
        t.add("lblExtensionTitle", K::Label, i).caption(titles[i]);
    t.add("lblMSNNote", K::Label)
        .caption("The MSN Shareware Forum only accept 32-bit applications.");
    t.add("lblTPANote", K::Label)
        .caption(
            "I would like this software to be described by the following trialware license type:");
    t.add("picClickNextBanner", K::Button);
    t.add("AniGifEx1", K::Button);
}

void labelControls(TableBuilder& t) {
    t.add("frmStart", K::Form);
    t.add("StatusBar1", K::StatusBar);
    t.add("SSTab1", K::TabStrip);
    t.add("SSTab2", K::TabStrip);
    t.add("lblCompanyRecord", K::Label).caption("0 of 0");
    t.add("lblProgramRecord", K::Label).caption("0 of 0");
    t.add("lblCompanyID", K::Label);
    t.add("lblProgramID", K::Label);
    t.add("lblProgramDBname", K::Label).caption("noname1.dat");
    t.add("lblCopyright", K::Label);
    t.add("picBrevaro", K::Button);
    t.add("picQuorin", K::Button);
    for (int i = 0; i < 2; ++i)
        t.add("picASP", K::Button, i);
    const char* infos[] = {
        "For more information about Association of Shareware Professionals, please visit our "
        "website:",
        "For more information about Educational Software Cooperative, please visit our website:",
        "For more information about Trialware Professional Association, please visit our website:"};
    for (int i = 0; i < 3; ++i) {
        t.add("lblOrganization", K::Label, i);
        t.add("lblOrganizationInfo", K::Label, i).caption(infos[i]);
    }
}

std::vector<ControlSpec> buildTable() {
    TableBuilder t;
    companyControls(t);
    programInfoControls(t);
    descriptionControls(t);
    webAndAssociationControls(t);
    commandControls(t);
    labelControls(t);
    frameControls(t);
    return t.take();
}

} // namespace

const std::vector<ControlSpec>& mainWindowControls() {
    static const std::vector<ControlSpec> table = buildTable();
    return table;
}

const QStringList& mainTabCaptions() {
    static const QStringList captions = {
        QStringLiteral("Company Info"), QStringLiteral("Program Info"),
        QStringLiteral("Descriptions"), QStringLiteral("Web Info"),
        QStringLiteral("Permissions"),  QStringLiteral("ASP Info"),
        QStringLiteral("ESC Info"),     QStringLiteral("MSN Info"),
        QStringLiteral("TPA Info")};
    return captions;
}

const QStringList& languageTabCaptions() {
    static const QStringList captions = {
        QStringLiteral("English"),        QStringLiteral("Spanish"),
        QStringLiteral("French"),         QStringLiteral("German"),
        QStringLiteral("Italian"),        QStringLiteral("Japanese"),
        QStringLiteral("Chinese Simple"), QStringLiteral("Chinese Tradional"),
        QStringLiteral("Russian")};
    return captions;
}

bool isExpiryGroup(const ControlSpec& row) {
    static const QStringList group = {
        QStringLiteral("txtExpireAfter"), QStringLiteral("optExpire"),
        QStringLiteral("cboExpireMonth"), QStringLiteral("cboExpireDay"),
        QStringLiteral("cboExpireYear"),  QStringLiteral("txtExpireInfo")};
    return group.contains(row.name);
}

} // namespace brevaro
