#include "controls/ControlTableBuilder.h"

namespace brevaro::controltable {

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
            .program(PF::Keywords, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter comma separated Keywords to be used to describe your program");
        t.add("txt45char", K::TextBox, i)
            .onLanguagePage()
            .caption("45 Char:")
            .program(PF::CharDesc45, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter a short 45 char description of your program");
        t.add("txt80char", K::TextBox, i)
            .onLanguagePage()
            .caption("80 Char:")
            .program(PF::CharDesc80, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter an 80 char desription of your program");
        t.add("txt250char", K::TextBox, i)
            .onLanguagePage()
            .caption("250 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc250, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter an 250 char desription of your program");
        t.add("txt450char", K::TextBox, i)
            .onLanguagePage()
            .caption("450 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc450, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter an 450 char desription of your program");
        t.add("txt2000char", K::TextBox, i)
            .onLanguagePage()
            .caption("2000 Char:")
            .widget(W::MultiLineEdit)
            .program(PF::CharDesc2000, i, kFieldWidth)
            .mark(P, kMarkOnChange)
            .tip("Enter an 2000 char desription of your program");
    }
}

void webAndAssociationControls(TableBuilder& t) {
    t.add("txtApplicationHomeURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationInfoURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Application Home")
        .tip("Your programs home page, where users can get more info");
    t.add("txtApplicationOrderURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationOrderURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Application Order")
        .tip("Your programs order page, where users can purchase a license");
    t.add("txtScreenshotURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationScreenshotURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Screenshot")
        .tip("Enter the URL to point to a screenshot image of your program (.jpg, .gif, .png - NO "
             "html page!!!");
    t.add("txtProgramIconURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationIconURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Program Icon")
        .tip("Enter the URL to point to an icon image (32x32) for your program (.jpg, .gif, .png - "
             "NO .ico "
             "or html page!!!");
    t.add("txtPadXMLfileURL", K::TextBox)
        .onTab(3, "Frame11")
        .program(PF::ApplicationXMLFileURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("PAD XML File")
        .tip("Enter the full URL to where you will this PAD XML file for your program.");
    t.add("txtPrimaryDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::PrimaryDownloadURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Primary Download")
        .tip("Primary download url where users can download your program");
    t.add("txtSecondDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::SecondaryDownloadURL, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Second Download")
        .tip("Secondary download url where users can download your program");
    t.add("txtThirdDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::AdditionalDownloadURL1, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Third Download")
        .tip("First Additional download url where users can download your program");
    t.add("txtFourthDownloadURL", K::TextBox)
        .onTab(3, "Frame12")
        .program(PF::AdditionalDownloadURL2, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .caption("Fourth Download")
        .tip("Second Additional download url where users can download your program");
    t.add("txtDistributionAgreements", K::TextBox)
        .onTab(4, "Frame13")
        .caption("Distribution Agreements")
        .widget(W::MultiLineEdit)
        .program(PF::DistributionPermissions, 0, kFieldWidth)
        .mark(P, kMarkOnChange)
        .tip("Enter your Distribution Permissions for Vendors and other distributors");
    t.add("txtEULA", K::TextBox)
        .onTab(4, "Frame14")
        .caption("End User License Agreement")
        .widget(W::MultiLineEdit)
        .program(PF::EULA, 0, kFieldWidth)
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
        .program(PF::ASPMemberNumber, 0, kFieldWidth)
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
        .program(PF::TPAMemberID, 0, kFieldWidth)
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
