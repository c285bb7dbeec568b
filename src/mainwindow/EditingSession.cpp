#include "mainwindow/EditingSession.h"

#include "AppVersion.h"
#include "mainwindow/WebAddresses.h"
#include "platform/StringHelpers.h"
#include "records/ValueLists.h"

namespace brevaro {

namespace {
const QString kModified = QStringLiteral(" (MODIFIED) ");
}

EditingSession::EditingSession(RecordStore& store, Prompts& prompts, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_prompts(prompts)
    , m_controls(mainWindowControls()) {
    buildScreen();
    m_screen.setEvents(this);
}

void EditingSession::buildScreen() {
    for (const ControlSpec& s : m_controls) {
        const int id = m_screen.add(s.name, s.index, s.kind);
        m_screen.setMaxLength(id, s.limit);
        m_screen.setKeepsItem(id, s.keepsItem);
        m_screen.setCaption(id, s.caption);
    }
    m_screen.setItems(id(u"SSTab1"), mainTabCaptions());
    m_screen.setItems(id(u"SSTab2"), languageTabCaptions());
    m_screen.setListIndex(id(u"SSTab1"), 0);
    m_screen.setListIndex(id(u"SSTab2"), 0);
}

void EditingSession::setCommandHandler(SessionCommand command, std::function<void()> handler) {
    m_handlers[command] = std::move(handler);
}

void EditingSession::runCommand(SessionCommand command) {
    const auto found = m_handlers.find(command);
    if (found != m_handlers.end() && found->second) {
        found->second();
        return;
    }
    static const std::map<SessionCommand, const char*> names = {
        {SessionCommand::VerifyPAD, "Verify PAD"},
        {SessionCommand::CreatePAD, "Create PAD"},
        {SessionCommand::ImportPAD, "Import PAD"},
        {SessionCommand::Submit, "Submit"},
        {SessionCommand::Keywords, "Keyword suggestion"},
        {SessionCommand::About, "About"},
        {SessionCommand::DownloadBanners, "Banner download"}};
    const QString name = QLatin1String(names.at(command));
    SimpleText(name + QStringLiteral(" is not available yet."));
    m_prompts.message(QLatin1String(kAppTitle),
                      name + QStringLiteral(" is not available yet in this version of ") +
                          QLatin1String(kAppTitle) + u'.');
}

void EditingSession::Start() {
    if (!m_store.completeInterruptedDeletion())
        m_prompts.message(QLatin1String(kAppTitle),
                          QStringLiteral("A company deletion that was interrupted could not be "
                                         "completed: ") +
                              m_store.errorString());
    for (auto name : {u"lblCompanyID", u"lblProgramID", u"lblProgramDBname"})
        m_screen.setVisible(id(name), false);
    LoadValueLists();
    CompanyDirty = ProgramDirty = NewCompanyPending = false;
    m_store.home().createFolders();
    SetToolTips();
    ImportInProgress = false;
    ClearCompanyScreen();
    ClearCompanyRecord();
    ClearProgramScreen();
    // Clearing the screen fires change handlers; nothing the user typed is pending yet.
    CompanyDirty = ProgramDirty = false;
    CurrentCompanyNo = 1;
    OpenCompanies();
    CompanyDirty = ProgramDirty = false;
    if (!m_screen.at(u"cboCompanyName").items.isEmpty())
        m_screen.setListIndex(id(u"cboCompanyName"), 0);
    if (!m_screen.at(u"cboProgramName").items.isEmpty())
        m_screen.setListIndex(id(u"cboProgramName"), 0);
    CompanyDirty = ProgramDirty = false;
    m_appVersionText = trimBlanks(
        QStringLiteral("%1.%2.%3").arg(kVersionMajor).arg(kVersionMinor).arg(kVersionRevision));
    UpdateCaption();
    SimpleText(QStringLiteral("Welcome to ") + QLatin1String(kAppTitle));
}

void EditingSession::Shutdown() {
    isCompanyDirty();
    isProgramDirty();
    emit closeRequested();
}

void EditingSession::LoadValueLists() {
    for (const ValueList& list : valueLists()) {
        const int control = id(list.control);
        if (list.clearFirst || m_screen.at(control).items.isEmpty())
            m_screen.setItems(control, list.items);
        else
            for (const QString& item : list.items)
                m_screen.addItem(control, item);
        if (list.selected >= 0)
            m_screen.setListIndex(control, list.selected);
    }
}

void EditingSession::SetToolTips() {
    for (int i = 0; i < m_screen.count(); ++i)
        if (!row(i).toolTip.isEmpty())
            m_screen.setToolTip(i, row(i).toolTip);
    m_screen.setCaption(id(u"lblCopyright"), copyrightLine());
    for (int i = 0; i < 3; ++i)
        m_screen.setCaption(id(u"lblOrganization", i), organizationSite(i));
}

void EditingSession::isCompanyDirty() {
    if (!CompanyDirty || ImportInProgress)
        return;
    const QString name = m_company.trimText(CompanyField::CompanyName);
    if (m_prompts.askYesNo(name + QStringLiteral(" not saved"),
                           QStringLiteral("Do you want to save ") + name + u'?',
                           Prompts::Icon::Question))
        SaveCompany();
}

void EditingSession::isProgramDirty() {
    if (!ProgramDirty || ImportInProgress)
        return;
    const QString name = m_program.trimText(ProgramField::ProgramName);
    if (m_prompts.askYesNo(name + QStringLiteral(" Company not saved"),
                           QStringLiteral("Do you want to save ") + name + u'?',
                           Prompts::Icon::Question)) {
        ScreenToProgram();
        if (WriteCurrentProgram())
            SetProgramClean();
    }
}

// A modified record locks its selector, so no other record can be chosen until it is saved.
void EditingSession::setModified(QStringView selector, bool& flag, bool modified) {
    m_screen.setEnabled(id(selector), !modified);
    flag = modified;
    UpdateCaption();
}

void EditingSession::SetCompanyDirty() {
    setModified(u"cboCompanyName", CompanyDirty, true);
}
void EditingSession::SetCompanyClean() {
    setModified(u"cboCompanyName", CompanyDirty, false);
}
void EditingSession::SetProgramDirty() {
    setModified(u"cboProgramName", ProgramDirty, true);
}
void EditingSession::SetProgramClean() {
    setModified(u"cboProgramName", ProgramDirty, false);
}

void EditingSession::markModified(const ControlSpec& control, unsigned event) {
    if (!(control.markOn & event))
        return;
    if (control.marks == RecordSide::Company)
        SetCompanyDirty();
    else if (control.marks == RecordSide::Program)
        SetProgramDirty();
}

void EditingSession::UpdateCaption() {
    QString extra;
    UpdateCaption(extra);
}

void EditingSession::UpdateCaption(QString& extra) {
    if (!trimBlanks(extra).isEmpty())
        extra = QStringLiteral(" > (") + extra + u')';
    const QString companyMarker = CompanyDirty ? kModified : QString();
    const QString programMarker = ProgramDirty ? kModified : QString();
    const QString caption = QLatin1String(kAppTitle) + u' ' + m_appVersionText +
                            QStringLiteral(" - [") + m_company.trimText(CompanyField::CompanyName) +
                            companyMarker + QStringLiteral(" - ") +
                            m_program.trimText(ProgramField::ProgramName) + u' ' +
                            m_program.trimText(ProgramField::ProgramVersion) + programMarker +
                            QStringLiteral("] ") + extra;
    m_screen.setCaption(id(u"frmStart"), caption);
}

void EditingSession::SimpleText(const QString& text) {
    m_screen.setCaption(id(u"StatusBar1"), text);
}

void EditingSession::LoadCompanyProgramOnly() {
    m_screen.setItems(id(u"cboProgramName"), {});
    ClearProgramScreen();
    ClearProgramRecord();
    OpenPrograms();
    ReadCurrentProgram();
    LoadProgramList();
    ProgramToScreen();
    ShowProgramPosition();
}

void EditingSession::companySelected() {
    const int index = m_screen.at(u"cboCompanyName").listIndex;
    if (index < 0)
        return;
    isCompanyDirty();
    // The program on screen belongs to the company being left: offer to save it first.
    isProgramDirty();
    CurrentCompanyNo = index + 1;
    ShowCurrentCompany();
    ShowCompanyPosition();
    ShowProgramPosition();
    m_screen.setCaption(id(u"lblCompanyID"),
                        QString::number(m_company.number(CompanyField::CompanyID)));
    LoadCompanyProgramOnly();
    if (!NewCompanyPending)
        SetProgramClean();
    m_screen.setCaption(id(u"lblProgramID"),
                        QString::number(m_program.number(ProgramField::CompanyID)));
    SetCompanyClean();
    SetProgramClean();
    UpdateCaption();
    if (!m_screen.at(u"cboProgramName").items.isEmpty())
        m_screen.setListIndex(id(u"cboProgramName"), 0);
    CurrentProgramNo = m_screen.at(u"cboProgramName").listIndex + 1;
    ShowProgramPosition();
}

void EditingSession::programSelected() {
    const int index = m_screen.at(u"cboProgramName").listIndex;
    if (index < 0)
        return;
    isProgramDirty();
    CurrentProgramNo = index + 1;
    ShowSelectedProgram();
    m_screen.setCaption(id(u"lblProgramID"),
                        QString::number(m_program.number(ProgramField::CompanyID)));
    SetProgramClean();
}

void EditingSession::tabSelected() {
    const int tabs = id(u"SSTab1");
    if (NewCompanyPending) {
        SimpleText(QStringLiteral("Please SAVE your Company Data before you try to add products!"));
        if (m_screen.at(tabs).listIndex != 0)
            m_screen.setListIndex(tabs, 0);
        return;
    }
    const int tab = m_screen.at(tabs).listIndex;
    SimpleText(mainTabCaptions().value(tab));
    // Which of buttons 0..5 are enabled, and the menu items 0..2, 4..6 that mirror them.
    for (int b = 0; b < 6; ++b) {
        const bool on = tab == 0 ? b <= 2 : tab == 1 ? b >= 3 : b == 4;
        m_screen.setEnabled(id(u"cmdButton", b), on);
        m_screen.setEnabled(id(u"mnuPAD", b < 3 ? b : b + 1), on);
    }
}

void EditingSession::onChange(int control) {
    const ControlSpec& s = row(control);
    if (s.limit > 0)
        limitField(control, false);
    markModified(s, kMarkOnChange);
}

void EditingSession::onClick(int control) {
    const ControlSpec& s = row(control);
    if (s.name == QLatin1String("cboCompanyName"))
        return companySelected();
    if (s.name == QLatin1String("cboProgramName"))
        return programSelected();
    if (s.name == QLatin1String("SSTab1"))
        return tabSelected();
    if (s.kind == ControlKind::ComboBox && s.limit > 0)
        limitField(control, false);
    if (s.name == QLatin1String("chkHasExpiredInfo"))
        expiryCheckClicked();
    else if (s.name == QLatin1String("optExpire") && m_screen.at(control).value)
        expiryOptionClicked(s.index);
    markModified(s, kMarkOnClick);
    if (s.kind != ControlKind::Button && s.kind != ControlKind::MenuItem &&
        s.kind != ControlKind::Label)
        return;
    if (s.name == QLatin1String("cmdButton"))
        pressButton(s.index);
    else if (s.name == QLatin1String("mnuPAD"))
        chooseFileMenu(s.index);
    else if (s.name == QLatin1String("mnuTools"))
        chooseToolsMenu(s.index);
    else if (s.name == QLatin1String("mnuHelp"))
        chooseHelpMenu(s.index);
    else if (s.name == QLatin1String("cmdSetContactAsAuthor")) {
        setText(u"txtContactFname", text(u"txtAuthorFname"));
        setText(u"txtContactLname", text(u"txtAuthorLname"));
        setText(u"txtContactEmail", text(u"txtAuthorEmail"));
    } else if (s.name == QLatin1String("cmdOpenURL"))
        openUrlOf(u"txtURL");
    else if (s.name == QLatin1String("cmdBrowseGeneralURL"))
        openUrlOf(browseTargets().at(s.index));
    else if (s.name == QLatin1String("cmdCopyWebInfo2ClipBoard"))
        copyToClipboard(s.index);
    else if (s.name == QLatin1String("cmdCopyDesc"))
        copyDescription(s.index);
    else if (s.name == QLatin1String("cmdBabel"))
        translate(s.index);
    else if (s.name == QLatin1String("cmdOpenFileInfo"))
        openFileInfo();
    else if (s.name == QLatin1String("cmdDefaultPermissions"))
        insertDefaultText(s.index);
    else if (s.name == QLatin1String("cmdPermission"))
        permissionFile(s.index);
    else if (s.name == QLatin1String("picKeywordsGenerator"))
        runCommand(SessionCommand::Keywords);
    else if (s.name == QLatin1String("Command1"))
        runCommand(SessionCommand::DownloadBanners);
    else
        openLink(m_prompts, s.name, s.index, m_company, m_appVersionText);
}

void EditingSession::onFocus(int control) {
    showFocusHint(control);
}

void EditingSession::pressButton(int i) {
    switch (i) {
    case 0:
        return NewCompany();
    case 1:
        SaveCompany();
        return SetCompanyClean();
    case 2:
        return DeleteCompany();
    case 3:
        return NewProgram();
    case 4:
        SaveProgram();
        return SetProgramClean();
    case 5:
        return DeleteProgram();
    case 6:
        return runCommand(SessionCommand::VerifyPAD);
    case 7:
        return runCommand(SessionCommand::CreatePAD);
    case 8:
        return runCommand(SessionCommand::Submit);
    case 9:
        return Shutdown();
    default:
        return;
    }
}

void EditingSession::chooseFileMenu(int i) {
    static const int buttonOf[] = {0, 1, 2, -1, 3, 4, 5, -1, -1, 6, 7, -1, -1, 9};
    if (i == 8)
        return runCommand(SessionCommand::ImportPAD);
    if (i == 11)
        return runCommand(SessionCommand::Submit);
    if (i >= 0 && i < 14 && buttonOf[i] >= 0)
        pressButton(buttonOf[i]);
}

void EditingSession::chooseToolsMenu(int i) {
    if (i == 0)
        m_prompts.openDocument(translationAddress(QString(), false));
    else if (i == 2)
        runCommand(SessionCommand::Submit);
}

void EditingSession::chooseHelpMenu(int i) {
    if (i == 0)
        return runCommand(SessionCommand::About);
    openLink(m_prompts, QStringLiteral("mnuHelp"), i, m_company, m_appVersionText);
}

void EditingSession::openUrlOf(QStringView control) {
    const QString url = text(control);
    if (!url.isEmpty())
        m_prompts.openDocument(url);
}

bool EditingSession::confirmDelete(const QString& name) {
    return m_prompts.askYesNo(QStringLiteral("Delete ") + name,
                              QStringLiteral("Do you want to delete ") + name + u'?',
                              Prompts::Icon::Question);
}

void EditingSession::reportDeleteFailure(const QString& name) {
    m_prompts.message(QStringLiteral("Delete ") + name,
                      name + QStringLiteral(" could not be deleted.\n\n") + m_store.errorString());
}

void EditingSession::reportWriteFailure(const QString& what) {
    m_prompts.message(QLatin1String(kAppTitle),
                      what +
                          QStringLiteral(" could not be saved, and your changes are still on "
                                         "the screen.\n\n") +
                          m_store.errorString());
}

} // namespace brevaro
