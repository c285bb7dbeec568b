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
        // New Release sits before Exit, which stays the last button.
        if (buttons[i].action == A::Exit)
            t.add("cmdNewRelease", K::Button)
                .on(Place::ButtonBar)
                .caption("New Release")
                .action(A::NewRelease)
                .tip("Release a new version: its files, version and date, and every format "
                     "written from the records");
        t.add("cmdButton", K::Button, i)
            .on(Place::ButtonBar)
            .caption(buttons[i].caption)
            .action(buttons[i].action);
        t.tip(buttons[i].tip ? QString::fromUtf8(buttons[i].tip)
                             : QStringLiteral("Exit ") + QLatin1String(kAppTitle));
    }
}

void menus(TableBuilder& t) {
    t.add("mnuFile", K::Label).on(Place::Menu).widget(W::MenuTitle).caption("File");
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
                                              {"New Release...", A::NewRelease},
                                              {"-", A::None},
                                              {"Exit", A::Exit}};
    for (int i = 0; i < 16; ++i)
        t.add("mnuPAD", K::MenuItem, i)
            .on(Place::Menu)
            .caption(file[i].first)
            .action(file[i].second);
    t.add("mnuToolsBar", K::Label).on(Place::Menu, 1).widget(W::MenuTitle).caption("Tools");
    t.add("mnuTools", K::MenuItem, 0)
        .on(Place::Menu, 1)
        .caption("Translate")
        .action(A::OpenTranslator);
    t.add("mnuTools", K::MenuItem, 1).on(Place::Menu, 1).caption("-");
    t.add("mnuTools", K::MenuItem, 2)
        .on(Place::Menu, 1)
        .caption("Submit To Shareware Directories")
        .action(A::Submit);
    t.add("mnuTools", K::MenuItem, 3).on(Place::Menu, 1).caption("-");
    t.add("mnuTools", K::MenuItem, 4).on(Place::Menu, 1).caption("Check PAD").action(A::CheckPAD);
    t.add("mnuHelpBar", K::Label).on(Place::Menu, 2).widget(W::MenuTitle).caption("Help");
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
        t.add("mnuHelp", K::MenuItem, i).on(Place::Menu, 2).caption(help[i].first);
        if (i == 0)
            t.action(A::About);
        else if (help[i].second >= 0)
            t.action(A::OpenLink, help[i].second);
    }
}

// The buttons beside the fields: browse, copy, translate, file and text helpers.
void fieldButtons(TableBuilder& t) {
    const char* verify = "Click to launch browser to verify link";
    t.add("cmdOpenURL", K::Button)
        .onTab(0, "Frame1", "txtURL")
        .tip(verify)
        .action(A::OpenFieldUrl, 0, "txtURL");
    t.add("cmdSetContactAsAuthor", K::Button)
        .onTab(0, "Frame3")
        .caption("Same As Author")
        .action(A::SameAsAuthor);
    const char* urls[] = {
        "txtApplicationHomeURL", "txtApplicationOrderURL", "txtScreenshotURL",
        "txtProgramIconURL",     "txtPadXMLfileURL",       "txtPrimaryDownloadURL",
        "txtSecondDownloadURL",  "txtThirdDownloadURL",    "txtFourthDownloadURL"};
    for (int i = 0; i < 9; ++i)
        t.add("cmdBrowseGeneralURL", K::Button, i)
            .tip(verify)
            .action(A::OpenFieldUrl, 0, urls[i])
            .besides(urls[i]);
    t.add("cmdOpenFileInfo", K::Button)
        .onTab(1, "Frame8", "txtLongFilename")
        .tip("Select a file and set default filnames and filesizes")
        .action(A::FileInfo);
    t.add("picKeywordsGenerator", K::Button)
        .onTab(2, "frmDescr1", "txtKeywords")
        .widget(W::PictureButton)
        .tip("Generate Keywords from your programs homepage")
        .action(A::Keywords);
    const char* descriptions[] = {"txtKeywords", "txt45char",  "txt80char",
                                  "txt250char",  "txt450char", "txt2000char"};
    const char* babelTip =
        "Click to open a website where you can translate text between different languages";
    for (int i = 0; i < 6; ++i)
        t.add("cmdBabel", K::Button, i)
            .tip(babelTip)
            .action(A::TranslateField, 1, descriptions[i])
            .onTab(2, "frmDescr1", descriptions[i]);
    t.add("cmdBabel", K::Button, 6)
        .tip(babelTip)
        .action(A::TranslateField, 0, "txtDistributionAgreements")
        .besides("txtDistributionAgreements");
    t.add("cmdBabel", K::Button, 7)
        .tip(babelTip)
        .action(A::TranslateField, 0, nullptr, "Copy and paste sections of the EULA text here!")
        .besides("txtEULA");
    const char* copyDesc[] = {"Copy 80 char description", "Copy 250 char description",
                              "Copy 450 char description"};
    for (int i = 0; i < 3; ++i)
        t.add("cmdCopyDesc", K::Button, i)
            .onTab(2, "frmDescr1")
            .tip(copyDesc[i])
            .action(A::CopyDescription, 0, descriptions[i + 3], descriptions[i + 2]);
    for (int i = 0; i < 17; ++i) {
        t.add("cmdCopyWebInfo2ClipBoard", K::Button, i)
            .tip(i < 16 ? "Copy field contents to Clipboard" : "Click to copy text to Clipboard");
        if (i < 9) {
            t.action(A::CopyField, 0, urls[i]).besides(urls[i]);
        } else if (i < 15) {
            t.action(A::CopyField, 1, descriptions[i - 9])
                .onTab(2, "frmDescr1", descriptions[i - 9]);
        } else {
            const char* box = i == 15 ? "txtDistributionAgreements" : "txtEULA";
            t.action(A::CopyField, 0, box).besides(box);
        }
    }
    t.add("cmdDefaultPermissions", K::Button, 0)
        .caption("Default")
        .tip("Insert default Distribution Permission text")
        .action(A::DefaultText, 0, "txtDistributionAgreements")
        .besides("txtDistributionAgreements");
    t.add("cmdDefaultPermissions", K::Button, 1)
        .caption("Default")
        .tip("Insert default EULA text")
        .action(A::DefaultText, 1, "txtEULA")
        .besides("txtEULA");
    for (int i = 0; i < 4; ++i) {
        const char* box = i < 2 ? "txtDistributionAgreements" : "txtEULA";
        t.add("cmdPermission", K::Button, i)
            .tip(i % 2 == 0 ? "Open / Import text file" : "Save data")
            .action(i % 2 == 0 ? A::LoadText : A::SaveText, 0, box)
            .besides(box);
    }
    t.add("Command1", K::Button)
        .on(Place::Hidden)
        .caption("Test Download Banners")
        .action(A::DownloadBanners);
}

void links(TableBuilder& t) {
    using L = LinkTarget;
    t.add("picBrevaro", K::Button)
        .on(Place::BannerStrip)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::ProductRoot));
    t.add("picQuorin", K::Button)
        .on(Place::BannerStrip)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::ProductRoot));
    t.add("picASP", K::Button, 0)
        .onTab(5)
        .inFrame(QStringLiteral("frmOrganization_0"))
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::AspRoot));
    t.add("picASP", K::Button, 1)
        .on(Place::ButtonBar)
        .widget(W::PictureButton)
        .action(A::OpenLink, kLinkTarget(L::AspPad));
    t.add("lblCopyright", K::Label)
        .on(Place::Window)
        .widget(W::LinkLabel)
        .action(A::OpenLink, kLinkTarget(L::MakerRoot));
    // The organisations' frames, on the tabs of their extensions.
    struct Organization {
        const char* info;
        LinkTarget site;
        int tab;
    };
    const Organization organizations[] = {
        {"For more information about Association of Shareware Professionals, please visit our "
         "website:",
         L::AspRoot, 5},
        {"For more information about Educational Software Cooperative, please visit our website:",
         L::EscRoot, 6},
        {"For more information about Trialware Professional Association, please visit our website:",
         L::TpaRoot, 8}};
    for (int i = 0; i < 3; ++i) {
        const Organization& o = organizations[i];
        const QString frame = QStringLiteral("frmOrganization_%1").arg(i);
        t.add("frmOrganization", K::Label, i).widget(W::Frame).onTab(o.tab);
        t.add("lblOrganizationInfo", K::Label, i).caption(o.info).onTab(o.tab).inFrame(frame);
        t.add("lblOrganization", K::Label, i)
            .widget(W::LinkLabel)
            .action(A::OpenLink, kLinkTarget(o.site))
            .onTab(o.tab)
            .inFrame(frame);
    }
    t.add("picClickNextBanner", K::Button)
        .on(Place::BannerStrip)
        .widget(W::PictureButton)
        .action(A::NextBanner);
    t.add("AniGifEx1", K::Button)
        .on(Place::BannerStrip)
        .widget(W::BannerImage)
        .action(A::ClickBanner);
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
    t.add("frmStart", K::Form).on(Place::Window);
    t.add("StatusBar1", K::StatusBar).on(Place::Window);
    t.add("SSTab1", K::TabStrip).on(Place::Window).action(A::SelectTab);
    t.add("SSTab2", K::TabStrip).onTab(2, "frmDescr1");
    t.add("lblCompanyRecord", K::Label).onTab(0, "Frame1", "cboCompanyName").caption("0 of 0");
    t.add("lblProgramRecord", K::Label).onTab(1, "Frame7", "cboProgramName").caption("0 of 0");
    t.add("lblCompanyID", K::Label).on(Place::Hidden);
    t.add("lblProgramID", K::Label).on(Place::Hidden);
    t.add("lblProgramDBname", K::Label).on(Place::Hidden).caption("noname1.dat");
    // The frames: name, caption, tab (-1: the window itself) and the frame they sit in.
    struct Frame {
        const char* name;
        const char* caption;
        int tab;
        const char* parent;
    };
    const Frame frames[] = {{"Frame1", "Company", 0, ""},
                            {"Frame2", "Author", 0, ""},
                            {"Frame3", "Contact", 0, ""},
                            {"Frame4", "Support Info", 0, ""},
                            {"Frame5", "Email Addresses", 0, "Frame4"},
                            {"Frame6", "Phone Numbers", 0, "Frame4"},
                            {"Frame7", "Program Info", 1, ""},
                            {"Frame8", "File Info", 1, ""},
                            {"Frame9", "", 1, ""},
                            {"Frame10", "Misc Info", 1, ""},
                            {"Frame11", "General URL Info", 3, ""},
                            {"Frame12", "Download URL Info", 3, ""},
                            {"Frame13", "Distribution Agreements", 4, ""},
                            {"Frame14", "End User License Agreement", 4, ""},
                            {"Frame15", "Member Info", 5, ""},
                            {"Frame16", "Member Info", 6, ""},
                            {"Frame17", "Member Info", 7, ""},
                            {"Frame18", "Member Info", 8, ""},
                            {"frmDescr1", "", 2, ""},
                            {"frmCopyright", "", -1, ""}};
    for (const Frame& f : frames) {
        t.add(f.name, K::Label).widget(W::Frame).caption(f.caption);
        f.tab < 0 ? t.on(Place::Window) : t.onTab(f.tab, f.parent);
    }
    for (int i = 0; i < 9; ++i)
        t.add("frmDescriptions", K::Label, i).widget(W::Frame).onLanguagePage();
    // The labels that name the control they sit beside.
    struct Label {
        const char* name;
        const char* caption;
        const char* box;
    };
    const Label labels[] = {
        {"lbl45char", "45 Char:", "txt45char"},       {"lbl80char", "80 Char:", "txt80char"},
        {"lbl250char", "250 Char:", "txt250char"},    {"lbl450char", "450 Char:", "txt450char"},
        {"lbl2000char", "2000 Char:", "txt2000char"}, {"lblKeywords", "Keywords:", "txtKeywords"}};
    for (const Label& l : labels)
        t.add(l.name, K::Label).caption(l.caption).onTab(2, "frmDescr1", l.box);
    t.add("lblReleaseDate", K::Label)
        .caption("Release Date  M:        D:        Y:")
        .besides("cboReleaseMonth");
    t.add("lblIncludes", K::Label).caption("Includes").besides("chkIncludeDirectX");
    const char* titles[] = {"Association of Shareware Professional's PAD Extension Form",
                            "Educational Software Cooperative's PAD Extension Form",
                            "MSN's XML DIZ Extensions Form",
                            "Trialware Professional Association's PAD Extension Form"};
    for (int i = 0; i < 4; ++i)
        t.add("lblExtensionTitle", K::Label, i).caption(titles[i]).onTab(5 + i);
    t.add("lblMSNNote", K::Label)
        .onTab(7, "Frame17", "chkMSN")
        .caption("The MSN Shareware Forum only accept 32-bit applications.");
    t.add("lblTPANote", K::Label)
        .onTab(8, "Frame18", "cboTPA_LicenseType")
        .caption(
            "I would like this software to be described by the following trialware license type:");
}

} // namespace brevaro::controltable
