#include "AppVersion.h"
#include "controls/ControlTableBuilder.h"

namespace brevaro::controltable {

namespace {

constexpr int kLinkTarget(LinkTarget t) {
    return static_cast<int>(t);
}

void buttonBar(TableBuilder& t) {
    struct Button {
        const char* caption;
        const char* tip;
        A action;
    };
    const Button buttons[] = {
        {"New Company", "Create a New Company record", A::NewCompany},
        {"Save Company", "Save changes done to current Company record", A::SaveCompany},
        {"Delete Company", "Delete current Company record and all it's programs", A::DeleteCompany},
        {"New Program", "Create a new Program record for current company", A::NewProgram},
        {"Save Program", "Save changes done to current Program record", A::SaveProgram},
        {"Delete Program", "Delete current Program record", A::DeleteProgram},
        {"Verify PAD", "Verify PAD File creation based on current Company / Program records",
         A::VerifyPAD},
        {"Create PAD", "Create a PAD file based on current Company / Program records",
         A::CreatePAD},
        {"Submit", "Submit Your product to Shareware Directories", A::Submit},
        {"Exit", nullptr, A::Exit}};
    for (int i = 0; i < 10; ++i) {
        t.add("cmdButton", K::Button, i).caption(buttons[i].caption).action(buttons[i].action);
        t.tip(buttons[i].tip ? QString::fromUtf8(buttons[i].tip)
                             : QStringLiteral("Exit ") + QLatin1String(kAppTitle));
    }
}

void menus(TableBuilder& t) {
    t.add("mnuFile", K::Label).widget(W::MenuTitle).caption("File");
    const std::pair<const char*, A> file[] = {{"New Company", A::NewCompany},
                                              {"Save Company", A::SaveCompany},
                                              {"Delete Company", A::DeleteCompany},
                                              {"-", A::None},
                                              {"New Program", A::NewProgram},
                                              {"Save Program", A::SaveProgram},
                                              {"Delete Program", A::DeleteProgram},
                                              {"-", A::None},
                                              {"Import PAD", A::ImportPAD},
                                              {"Verify PAD", A::VerifyPAD},
                                              {"Create PAD", A::CreatePAD},
                                              {"Submit PAD", A::Submit},
                                              {"-", A::None},
                                              {"Exit", A::Exit}};
    for (int i = 0; i < 14; ++i)
        t.add("mnuPAD", K::MenuItem, i).caption(file[i].first).action(file[i].second);
    t.add("mnuToolsBar", K::Label).widget(W::MenuTitle).caption("Tools");
    t.add("mnuTools", K::MenuItem, 0).caption("Translate").action(A::OpenTranslator);
    t.add("mnuTools", K::MenuItem, 1).caption("-");
    t.add("mnuTools", K::MenuItem, 2).caption("Submit To Shareware Directories").action(A::Submit);
    t.add("mnuTools", K::MenuItem, 3).caption("-");
    t.add("mnuTools", K::MenuItem, 4).caption("Check PAD").action(A::CheckPAD);
    t.add("mnuHelpBar", K::Label).widget(W::MenuTitle).caption("Help");
    using L = LinkTarget;
    const std::pair<const char*, int> help[] = {
        {"About", -1},
        {"-", -1},
        {"About PAD files ...", kLinkTarget(L::AspPad)},
        {"-", -1},
        {"Quorin Shareware Download Directory", kLinkTarget(L::MakerRoot)},
        {"Quorin Developers Login / Signup", kLinkTarget(L::MakerMembers)},
        {"-", -1},
        {"Register Brevaro for FREE!", kLinkTarget(L::SignUp)},
        {"Banner Advertise Opportunity", kLinkTarget(L::Advertise)},
        {"Brevaro Homepage", kLinkTarget(L::ProductRoot)},
        {"Download Latest Version", kLinkTarget(L::Download)},
        {"-", -1},
        {"Send Feedback / Bug Report ...", kLinkTarget(L::Contact)}};
    for (int i = 0; i < 13; ++i) {
        t.add("mnuHelp", K::MenuItem, i).caption(help[i].first);
        if (i == 0)
            t.action(A::About);
        else if (help[i].second >= 0)
            t.action(A::OpenLink, help[i].second);
    }
}

// The buttons beside the fields: browse, copy, translate, file and text helpers.
void fieldButtons(TableBuilder& t) {
    const char* verify = "Click to launch browser to verify link";
    t.add("cmdOpenURL", K::Button).tip(verify).action(A::OpenFieldUrl, 0, "txtURL");
    t.add("cmdSetContactAsAuthor", K::Button).caption("Same As Author").action(A::SameAsAuthor);
    const char* urls[] = {
        "txtApplicationHomeURL", "txtApplicationOrderURL", "txtScreenshotURL",
        "txtProgramIconURL",     "txtPadXMLfileURL",       "txtPrimaryDownloadURL",
        "txtSecondDownloadURL",  "txtThirdDownloadURL",    "txtFourthDownloadURL"};
    for (int i = 0; i < 9; ++i)
        t.add("cmdBrowseGeneralURL", K::Button, i).tip(verify).action(A::OpenFieldUrl, 0, urls[i]);
    t.add("cmdOpenFileInfo", K::Button)
        .tip("Select a file and set default filnames and filesizes")
        .action(A::FileInfo);
    t.add("picKeywordsGenerator", K::Button)
        .widget(W::PictureButton)
        .tip("Generate Keywords from your programs homepage")
        .action(A::Keywords);
    const char* descriptions[] = {"txtKeywords", "txt45char",  "txt80char",
                                  "txt250char",  "txt450char", "txt2000char"};
    const char* babelTip =
        "Click to open a website where you can translate text between different languages";
    for (int i = 0; i < 6; ++i)
        t.add("cmdBabel", K::Button, i).tip(babelTip).action(A::TranslateField, 1, descriptions[i]);
    t.add("cmdBabel", K::Button, 6)
        .tip(babelTip)
        .action(A::TranslateField, 0, "txtDistributionAgreements");
    t.add("cmdBabel", K::Button, 7)
        .tip(babelTip)
        .action(A::TranslateField, 0, nullptr, "Copy and paste sections of the EULA text here!");
    const char* copyDesc[] = {"Copy 80 char description", "Copy 250 char description",
                              "Copy 450 char description"};
    for (int i = 0; i < 3; ++i)
        t.add("cmdCopyDesc", K::Button, i)
            .tip(copyDesc[i])
            .action(A::CopyDescription, 0, descriptions[i + 3], descriptions[i + 2]);
    for (int i = 0; i < 17; ++i) {
        t.add("cmdCopyWebInfo2ClipBoard", K::Button, i)
            .tip(i < 16 ? "Copy field contents to Clipboard" : "Click to copy text to Clipboard");
        if (i < 9)
            t.action(A::CopyField, 0, urls[i]);
        else if (i < 15)
            t.action(A::CopyField, 1, descriptions[i - 9]);
        else
            t.action(A::CopyField, 0, i == 15 ? "txtDistributionAgreements" : "txtEULA");
    }
    t.add("cmdDefaultPermissions", K::Button, 0)
        .caption("Default")
        .tip("Insert default Distribution Permission text")
        .action(A::DefaultText, 0, "txtDistributionAgreements");
    t.add("cmdDefaultPermissions", K::Button, 1)
        .caption("Default")
        .tip("Insert default EULA text")
        .action(A::DefaultText, 1, "txtEULA");
    for (int i = 0; i < 4; ++i)
        t.add("cmdPermission", K::Button, i)
            .tip(i % 2 == 0 ? "Open / Import text file" : "Save data")
            .action(i % 2 == 0 ? A::LoadText : A::SaveText, 0,
                    i < 2 ? "txtDistributionAgreements" : "txtEULA");
    t.add("Command1", K::Button).caption("Test Download Banners").action(A::DownloadBanners);
}

void links(TableBuilder& t) {
    using L = LinkTarget;
    t.add("picBrevaro", K::Button)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::ProductRoot));
    t.add("picQuorin", K::Button)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::ProductRoot));
    t.add("picASP", K::Button, 0)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::AspRoot));
    t.add("picASP", K::Button, 1)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::AspPad));
    t.add("lblCopyright", K::Label)
        .widget(W::LinkLabel)
        .action(A::OpenLink, kLinkTarget(L::MakerRoot));
    const char* infos[] = {
        "For more information about Association of Shareware Professionals, please visit our "
        "website:",
        "For more information about Educational Software Cooperative, please visit our website:",
        "For more information about Trialware Professional Association, please visit our website:"};
    const L sites[] = {L::AspRoot, L::EscRoot, L::TpaRoot};
    for (int i = 0; i < 3; ++i) {
        t.add("frmOrganization", K::Label, i).widget(W::Frame);
        t.add("lblOrganizationInfo", K::Label, i).caption(infos[i]);
        t.add("lblOrganization", K::Label, i)
            .widget(W::LinkLabel)
            .action(A::OpenLink, kLinkTarget(sites[i]));
    }
    t.add("picClickNextBanner", K::Button).widget(W::PictureButton).action(A::NextBanner);
    t.add("AniGifEx1", K::Button).widget(W::BannerImage).action(A::ClickBanner);
}

} // namespace

void commandControls(TableBuilder& t) {
    buttonBar(t);
    menus(t);
    fieldButtons(t);
    links(t);
}

// The window, its tab controls, status bar, frames and the labels that only show text.
void frameAndLabelControls(TableBuilder& t) {
    t.add("frmStart", K::Form);
    t.add("StatusBar1", K::StatusBar);
    t.add("SSTab1", K::TabStrip).action(A::SelectTab);
    t.add("SSTab2", K::TabStrip);
    t.add("lblCompanyRecord", K::Label).caption("0 of 0");
    t.add("lblProgramRecord", K::Label).caption("0 of 0");
    t.add("lblCompanyID", K::Label);
    t.add("lblProgramID", K::Label);
    t.add("lblProgramDBname", K::Label).caption("noname1.dat");
    const std::pair<const char*, const char*> frames[] = {{"Frame1", "Company"},
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
                                                          {"frmCopyright", ""}};
    for (const auto& [name, caption] : frames)
        t.add(name, K::Label).widget(W::Frame).caption(caption);
    for (int i = 0; i < 9; ++i)
        t.add("frmDescriptions", K::Label, i).widget(W::Frame);
    const std::pair<const char*, const char*> labels[] = {
        {"lbl45char", "45 Char:"},
        {"lbl80char", "80 Char:"},
        {"lbl250char", "250 Char:"},
        {"lbl450char", "450 Char:"},
        {"lbl2000char", "2000 Char:"},
        {"lblKeywords", "Keywords:"},
        {"lblReleaseDate", "Release Date  M:        D:        Y:"},
        {"lblIncludes", "Includes"}};
    for (const auto& [name, caption] : labels)
        t.add(name, K::Label).caption(caption);
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
}

} // namespace brevaro::controltable
