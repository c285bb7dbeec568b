#include "controls/ControlTableBuilder.h"

namespace brevaro::controltable {

void companyControls(TableBuilder& t) {
    t.add("cboCompanyName", K::ComboBox)
        .onTab(0, "Frame1")
        .widget(W::ListCombo)
        .action(A::SelectCompany)
        .company(CF::CompanyName)
        .noMark()
        .caption("Name")
        .tip("Current selected Company, or if you don't have a company, your First and Last name");
    t.add("txtAddress1", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::Address1, 30)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Address 1")
        .tip("Enter company address");
    t.add("txtAddress2", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::Address2, 30)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Address 2")
        .tip("Second address line");
    t.add("txtCity", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::CityTown, 30)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("City / Town")
        .tip("Enter City");
    t.add("txtState", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::StateProvince, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("State/Province")
        .tip("Enter State ot Province");
    t.add("txtZip", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::ZipPostalCode, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Zip")
        .tip("Enter Zip or Postal code");
    t.add("cboCountry", K::ComboBox)
        .onTab(0, "Frame1")
        .company(CF::Country)
        .mark(RecordSide::Company, kBoth)
        .itemHint()
        .caption("Country")
        .tip("Enter Country");
    t.add("txtURL", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::CompanyWebSiteURL, 128)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("URL")
        .tip("Enter Company Website URL");
    t.add("txtAuthorFname", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorFirstName, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("First")
        .tip("Authors First name");
    t.add("txtAuthorLname", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorLastName, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Last")
        .tip("Authors Last name");
    t.add("txtAuthorEmail", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorEmail, 60)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Email")
        .tip("Authors Email address");
    t.add("txtContactFname", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactFirstName, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("First")
        .tip("Contacts First name");
    t.add("txtContactLname", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactLastName, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Last")
        .tip("Contacts Last name");
    t.add("txtContactEmail", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactEmail, 60)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Email")
        .tip("Comtacts Email address");
    t.add("txtSupportEmailSales", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::SalesEmail, 60)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Sales")
        .tip("Sales email address");
    t.add("txtSupportEmailSupport", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::SupportEmail, 60)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Support")
        .tip("Support email address");
    t.add("txtSupportEmailGeneral", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::GeneralEmail, 60)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("General")
        .tip("General email address");
    t.add("txtPhoneSales", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::SalesPhone, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Sales")
        .tip("Sales phone number");
    t.add("txtPhoneSupport", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::SupportPhone, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Support")
        .tip("Support phone number");
    t.add("txtPhoneGeneral", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::GeneralPhone, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("General")
        .tip("General phone number");
    t.add("txtPhoneFax", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::FaxPhone, 25)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Fax")
        .tip("Fax phone number");
}

void programInfoControls(TableBuilder& t) {
    t.add("cboProgramName", K::ComboBox)
        .onTab(1, "Frame7")
        .widget(W::ListCombo)
        .action(A::SelectProgram)
        .program(PF::ProgramName)
        .noMark()
        .caption("Name")
        .tip("Current selected Program");
    t.add("txtProgramVersion", K::TextBox)
        .onTab(1, "Frame7")
        .program(PF::ProgramVersion, 0, 10)
        .mark(P, kMarkOnChange)
        .caption("Version")
        .tip("Enter current program version");
    t.add("cboReleaseMonth", K::ComboBox)
        .onTab(1, "Frame7")
        .caption("Release Date (month)")
        .program(PF::ReleaseMonth)
        .mark(P, kMarkOnChange)
        .hint("Select Release Month")
        .tip("Enter release Month");
    t.add("cboReleaseDay", K::ComboBox)
        .onTab(1, "Frame7", "cboReleaseMonth")
        .caption("Release Date (day)")
        .program(PF::ReleaseDay)
        .mark(P, kMarkOnChange)
        .hint("Select Release Day")
        .tip("Enter release Day");
    t.add("cboReleaseYear", K::ComboBox)
        .onTab(1, "Frame7", "cboReleaseMonth")
        .caption("Release Date (year)")
        .program(PF::ReleaseYear)
        .mark(P, kMarkOnChange)
        .hint("Select Release Year")
        .tip("Enter release Year");
    t.add("cboType", K::ComboBox)
        .onTab(1, "Frame7")
        .program(PF::ProgramType)
        .mark(P, kBoth)
        .itemHint()
        .caption("Type")
        .tip("Select the Type of your software");
    t.add("cboStatus", K::ComboBox)
        .onTab(1, "Frame7")
        .program(PF::ReleaseStatus)
        .mark(P, kBoth)
        .itemHint()
        .keepsItem()
        .caption("Status")
        .tip("Select the status of this release");
    t.add("txtCostUS", K::TextBox)
        .onTab(1, "Frame7")
        .program(PF::CostDollars, 0, 10)
        .mark(P, kMarkOnChange)
        .caption("Cost (US$)")
        .tip("Enter price for your program (Like: 29 or 29.95 NO comma, use DOT . if needed)");
    t.add("cboCostOtherCurrency", K::ComboBox)
        .onTab(1, "Frame7")
        .program(PF::CostOtherCode)
        .mark(P, kBoth)
        .itemHint()
        .caption("Cost (Other)")
        .tip("Select other currency if needed");
    t.add("txtCostOtherAmount", K::TextBox)
        .onTab(1, "Frame7", "cboCostOtherCurrency")
        .caption("Cost (Other) amount")
        .program(PF::CostOther, 0, 10)
        .mark(P, kMarkOnChange)
        .tip("Enter price in other currensy");
    t.add("cboInstallSupport", K::ComboBox)
        .onTab(1, "Frame7")
        .program(PF::InstallSupport)
        .mark(P, kBoth)
        .itemHint()
        .keepsItem()
        .caption("Install Support")
        .tip("Select what type of Install / Unstall support your program have");
    t.add("lstSupportedOS", K::ListBox)
        .onTab(1, "Frame7")
        .program(PF::OSSupported)
        .mark(P, kMarkOnClick)
        .hint("Select Supported OS")
        .caption("Supported OS")
        .tip("Select all OS types that apply to your program");
    t.add("lstLanguages", K::ListBox)
        .onTab(1, "Frame7")
        .program(PF::LanguageSupported)
        .mark(P, kMarkOnClick)
        .hint("Select Supported Languages")
        .caption("Languages")
        .tip("Select all Languages that apply to your program");
    t.add("txtVersionedFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenameVersioned, 0, 12)
        .mark(P, kMarkOnChange)
        .caption("Versioned Filename")
        .tip("Filename should have an 8.3 name, the last 2 characters of the first portion of the "
             "name "
             "should be the version number.");
    t.add("txtPreviousFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenamePrevious, 0, 12)
        .mark(P, kMarkOnChange)
        .caption("Previous Filename")
        .tip("Filename should be 8.3 but have the previous version number for the last 2 "
             "characters");
    t.add("txtGenericFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenameGeneric, 0, 10)
        .mark(P, kMarkOnChange)
        .caption("Generic Filename")
        .tip("Filename should be 6.3 generic name, without the version number");
    t.add("txtLongFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenameLong, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Long Filename")
        .tip("Preferred Long Filename that should be used for the program");
    t.add("txtSizeByte", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FileSizeBytes)
        .noMark()
        .caption("Size Bytes")
        .tip("The size of the distribution file in Bytes");
    t.add("txtSizeKB", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FileSizeK)
        .noMark()
        .caption("Size KB")
        .tip("The size of the distribution file in KiloBytes");
    t.add("txtSizeMB", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FileSizeMB)
        .noMark()
        .caption("Size MB")
        .tip("The size of the distribution file in MegaBytes");
    t.add("chkHasExpiredInfo", K::CheckBox)
        .onTab(1, "Frame9")
        .action(A::ExpiryCheck)
        .program(PF::HasExpireInfo)
        .mark(P, kMarkOnClick)
        .caption("Has Expired Info")
        .tip("Check this is your product will expire");
    t.add("txtExpireAfter", K::TextBox)
        .onTab(1, "Frame9")
        .program(PF::ExpireCount)
        .noMark()
        .caption("Expire After")
        .tip("Enter how many Days/Uses will it run before expire?");
    const char* options[] = {"Days", "Uses", "Either/Or", "this date:"};
    const char* optionTips[] = {"Select if expire after XX Days", "Select if expire after XX Uses",
                                "Select if expire after XX Days or Uses",
                                "Select if it has an expiration date"};
    for (int i = 0; i < 4; ++i)
        t.add("optExpire", K::OptionButton, i)
            .onTab(1, "Frame9", "txtExpireAfter")
            .action(A::ExpiryOption)
            .program(PF::ExpireBasedOn, i)
            .mark(P, kMarkOnClick)
            .caption(options[i])
            .tip(optionTips[i]);
    t.add("cboExpireMonth", K::ComboBox)
        .onTab(1, "Frame9")
        .program(PF::ExpireMonth)
        .mark(P, kMarkOnChange)
        .hint("Select Expire Month")
        .caption("Expire on (month)");
    t.add("cboExpireDay", K::ComboBox)
        .onTab(1, "Frame9", "cboExpireMonth")
        .program(PF::ExpireDay)
        .mark(P, kMarkOnChange)
        .hint("Select Expire Day")
        .caption("Expire on (day)");
    t.add("cboExpireYear", K::ComboBox)
        .onTab(1, "Frame9", "cboExpireMonth")
        .program(PF::ExpireYear)
        .mark(P, kMarkOnChange)
        .hint("Select Expire year")
        .caption("Expire on (year)");
    t.add("txtExpireInfo", K::TextBox)
        .onTab(1, "Frame9")
        .program(PF::ExpireOtherInfo, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Other Expire info")
        .tip("Enter other important expiration info");
    t.add("txtRecentChanges", K::TextBox)
        .onTab(1, "Frame10")
        .program(PF::ChangeInfo, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Recent Changes")
        .tip("What is the major reason/changes in this release");
    t.add("cboSpecificCategory", K::ComboBox)
        .onTab(1, "Frame10")
        .program(PF::SpecificCategory, 0, 128)
        .noHint()
        .mark(P, kBoth)
        .caption("Specific Category")
        .tip("Select the category that fits best for this application");
    t.add("cboPossibleCategories", K::ComboBox)
        .onTab(1, "Frame10")
        .program(PF::CategoryClass, 0, 128)
        .noHint()
        .mark(P, kBoth)
        .caption("Possible Categories")
        .tip("Suggest categories you feel fit best for this product. Comma delimitted.");
    t.add("txtSystemRequirements", K::TextBox)
        .onTab(1, "Frame10")
        .program(PF::SystemRequirements, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("System Requirements")
        .tip("Enter minimum system requirements for the program to function properly");
    t.add("chkIncludeJava", K::CheckBox)
        .onTab(1, "Frame10", "chkIncludeDirectX")
        .program(PF::IncludesJavaVM)
        .mark(P, kMarkOnClick)
        .caption("Java VM")
        .tip("Select if this program includes the necessary JAVA Virtual Machine");
    t.add("chkIncludeVBruntime", K::CheckBox)
        .onTab(1, "Frame10", "chkIncludeDirectX")
        .program(PF::IncludesVBRuntime)
        .mark(P, kMarkOnClick)
        .caption("VB Runtime")
        .tip("Select if this program includes the necessary VB Runtime Module");
    t.add("chkIncludeDirectX", K::CheckBox)
        .onTab(1, "Frame10")
        .program(PF::IncludesDirectX)
        .mark(P, kMarkOnClick)
        .caption("DirectX")
        .tip("Select if this program includes the necessary DirectX drivers");
}

void descriptionControls(TableBuilder& t) {
    for (int i = 0; i < 9; ++i) {
        t.add("chkActivateLanguage", K::CheckBox, i)
            .onLanguagePage()
            .program(PF::DescriptionActive, i)
            .noMark()
            .caption("Activate")
            .tip("Select to Activate current language");
        t.add("txtKeywords", K::TextBox, i)
            .onLanguagePage()
            .caption("Keywords:")
            .program(PF::Keywords, i, 128)
            .mark(P, kMarkOnChange)
            .tip("Enter comma separated Keywords to be used to describe your program");
        t.add("txt45char", K::TextBox, i)
            .onLanguagePage()
            .caption("45 Char:")
            .program(PF::CharDesc45, i, 45)
            .mark(P, kMarkOnChange)
            .tip("Enter a short 45 char description of your program");
        t.add("txt80char", K::TextBox, i)
            .onLanguagePage()
            .caption("80 Char:")
            .program(PF::CharDesc80, i, 80)
            .mark(P, kMarkOnChange)
            .tip("Enter an 80 char desription of your program");
        t.add("txt250char", K::TextBox, i)
            .onLanguagePage()
            .caption("250 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc250, i, 250)
            .mark(P, kMarkOnChange)
            .tip("Enter an 250 char desription of your program");
        t.add("txt450char", K::TextBox, i)
            .onLanguagePage()
            .caption("450 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc450, i, 450)
            .mark(P, kMarkOnChange)
            .tip("Enter an 450 char desription of your program");
        t.add("txt2000char", K::TextBox, i)
            .onLanguagePage()
            .caption("2000 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc2000, i, 2000)
            .mark(P, kMarkOnChange)
            .tip("Enter an 2000 char desription of your program");
    }
}

void webAndAssociationControls(TableBuilder& t) {
    t.add("txtApplicationHomeURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationInfoURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Application Home")
        .tip("Your programs home page, where users can get more info");
    t.add("txtApplicationOrderURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationOrderURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Application Order")
        .tip("Your programs order page, where users can purchase a license");
    t.add("txtScreenshotURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationScreenshotURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Screenshot")
        .tip("Enter the URL to point to a screenshot image of your program (.jpg, .gif, .png - NO "
             "html page!!!");
    t.add("txtProgramIconURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationIconURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Program Icon")
        .tip("Enter the URL to point to an icon image (32x32) for your program (.jpg, .gif, .png - "
             "NO .ico "
             "or html page!!!");
    t.add("txtPadXMLfileURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationXMLFileURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("PAD XML File")
        .tip("Enter the full URL to where you will this PAD XML file for your program.");
    t.add("txtPrimaryDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::PrimaryDownloadURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Primary Download")
        .tip("Primary download url where users can download your program");
    t.add("txtSecondDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::SecondaryDownloadURL, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Second Download")
        .tip("Secondary download url where users can download your program");
    t.add("txtThirdDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::AdditionalDownloadURL1, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Third Download")
        .tip("First Additional download url where users can download your program");
    t.add("txtFourthDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::AdditionalDownloadURL2, 0, 128)
        .mark(P, kMarkOnChange)
        .caption("Fourth Download")
        .tip("Second Additional download url where users can download your program");
    t.add("txtDistributionAgreements", K::TextBox)
        .onTab(4, "Frame13")
        .caption("Distribution Agreements")
        .widget(W::MultiLineEdit)
        .program(PF::DistributionPermissions, 0, 500)
        .mark(P, kMarkOnChange)
        .tip("Enter your Distribution Permissions for Vendors and other distributors");
    t.add("txtEULA", K::TextBox)
        .onTab(4, "Frame14")
        .caption("End User License Agreement")
        .widget(W::MultiLineEdit)
        .program(PF::EULA, 0, 3000)
        .mark(P, kMarkOnChange)
        .tip("Enter the End User License Agreement for your program");
    const char* activate = "Activate and include in PAD file";
    t.add("chkASPactivate", K::CheckBox)
        .onTab(5)
        .program(PF::ASPActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkASP", K::CheckBox)
        .onTab(5, "Frame15")
        .program(PF::ASPMember)
        .mark(P, kMarkOnClick)
        .caption("I am an ASP Member, number:")
        .tip("Check if you are an ASP Member");
    t.add("txtASP_MemberNo", K::TextBox)
        .onTab(5, "Frame15", "chkASP")
        .caption("ASP Member Number")
        .program(PF::ASPMemberNumber, 0, 25)
        .mark(P, kMarkOnChange)
        .tip("Enter your ASP Member Number");
    t.add("chkESCactivate", K::CheckBox)
        .onTab(6)
        .program(PF::ESCActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkESC", K::CheckBox)
        .onTab(6, "Frame16")
        .program(PF::ESCMember)
        .mark(P, kMarkOnClick)
        .caption("I am an ESC Member")
        .tip("Check if you are an ESC Member");
    t.add("chkMSNactivate", K::CheckBox)
        .onTab(7)
        .program(PF::MSNActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkMSN", K::CheckBox)
        .onTab(7, "Frame17")
        .program(PF::MSNIs32Bit)
        .mark(P, kMarkOnClick)
        .caption("I certify that my submission is a true 32-bit application!")
        .tip("Check if your application is a true 32 application");
    t.add("chkTPAactivate", K::CheckBox)
        .onTab(8)
        .program(PF::TPAActivated)
        .mark(P, kMarkOnClick)
        .caption(activate);
    t.add("chkTPA", K::CheckBox)
        .onTab(8, "Frame18")
        .program(PF::TPAMember)
        .mark(P, kMarkOnClick)
        .caption("We are a TPA Member, ID:")
        .tip("Check if you are an TPA Member");
    t.add("txtTPA_MemberNo", K::TextBox)
        .onTab(8, "Frame18", "chkTPA")
        .caption("TPA Member ID")
        .program(PF::TPAMemberID, 0, 25)
        .mark(P, kMarkOnChange)
        .tip("Enter your ASP Member ID");
    t.add("cboTPA_LicenseType", K::ComboBox)
        .onTab(8, "Frame18")
        .caption("Trialware license type")
        .program(PF::TrialLicenseType)
        .mark(P, kBoth)
        .itemHint()
        .tip("Select Trialware license type");
}

} // namespace brevaro::controltable
