#include "mainwindow/ControlTable.h"

#include "AppVersion.h"
#include "mainwindow/ControlTableBuilder.h"

namespace brevaro {
namespace {

using namespace controltable;

// Builds the table row by row; each call starts a row and the chained setters fill it.
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
