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
        .company(CF::Address1, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Address 1")
        .tip("Enter company address");
    t.add("txtAddress2", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::Address2, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Address 2")
        .tip("Second address line");
    t.add("txtCity", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::CityTown, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("City / Town")
        .tip("Enter City");
    t.add("txtState", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::StateProvince, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("State/Province")
        .tip("Enter State ot Province");
    t.add("txtZip", K::TextBox)
        .onTab(0, "Frame1")
        .company(CF::ZipPostalCode, kFieldWidth)
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
        .company(CF::CompanyWebSiteURL, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("URL")
        .tip("Enter Company Website URL");
    t.add("txtAuthorFname", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorFirstName, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("First")
        .tip("Authors First name");
    t.add("txtAuthorLname", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorLastName, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Last")
        .tip("Authors Last name");
    t.add("txtAuthorEmail", K::TextBox)
        .onTab(0, "Frame2")
        .company(CF::AuthorEmail, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Email")
        .tip("Authors Email address");
    t.add("txtContactFname", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactFirstName, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("First")
        .tip("Contacts First name");
    t.add("txtContactLname", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactLastName, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Last")
        .tip("Contacts Last name");
    t.add("txtContactEmail", K::TextBox)
        .onTab(0, "Frame3")
        .company(CF::ContactEmail, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Email")
        .tip("Comtacts Email address");
    t.add("txtSupportEmailSales", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::SalesEmail, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Sales")
        .tip("Sales email address");
    t.add("txtSupportEmailSupport", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::SupportEmail, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Support")
        .tip("Support email address");
    t.add("txtSupportEmailGeneral", K::TextBox)
        .onTab(0, "Frame5")
        .company(CF::GeneralEmail, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("General")
        .tip("General email address");
    t.add("txtPhoneSales", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::SalesPhone, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Sales")
        .tip("Sales phone number");
    t.add("txtPhoneSupport", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::SupportPhone, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("Support")
        .tip("Support phone number");
    t.add("txtPhoneGeneral", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::GeneralPhone, kFieldWidth)
        .mark(RecordSide::Company, kMarkOnChange)
        .caption("General")
        .tip("General phone number");
    t.add("txtPhoneFax", K::TextBox)
        .onTab(0, "Frame6")
        .company(CF::FaxPhone, kFieldWidth)
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
        .program(PF::ProgramVersion, 0, kFieldWidth)
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
        .program(PF::CostDollars, 0, kFieldWidth)
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
        .program(PF::CostOther, 0, kFieldWidth)
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
        .program(PF::FilenameVersioned, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Versioned Filename")
        .tip("Filename should have an 8.3 name, the last 2 characters of the first portion of the "
             "name "
             "should be the version number.");
    t.add("txtPreviousFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenamePrevious, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Previous Filename")
        .tip("Filename should be 8.3 but have the previous version number for the last 2 "
             "characters");
    t.add("txtGenericFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenameGeneric, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Generic Filename")
        .tip("Filename should be 6.3 generic name, without the version number");
    t.add("txtLongFilename", K::TextBox)
        .onTab(1, "Frame8")
        .program(PF::FilenameLong, 0, kFieldWidth)
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
        .program(PF::ExpireOtherInfo, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Other Expire info")
        .tip("Enter other important expiration info");
    t.add("txtRecentChanges", K::TextBox)
        .onTab(1, "Frame10")
        .program(PF::ChangeInfo, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Recent Changes")
        .tip("What is the major reason/changes in this release");
    t.add("cboSpecificCategory", K::ComboBox)
        .onTab(1, "Frame10")
        .program(PF::SpecificCategory, 0, kFieldWidth)
        .noHint()
        .mark(P, kBoth)
        .caption("Specific Category")
        .tip("Select the category that fits best for this application");
    t.add("cboPossibleCategories", K::ComboBox)
        .onTab(1, "Frame10")
        .program(PF::CategoryClass, 0, kFieldWidth)
        .noHint()
        .mark(P, kBoth)
        .caption("Possible Categories")
        .tip("Suggest categories you feel fit best for this product. Comma delimitted.");
    t.add("txtSystemRequirements", K::TextBox)
        .onTab(1, "Frame10")
        .program(PF::SystemRequirements, 0, kFieldWidth)
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

} // namespace brevaro::controltable
