#include "session/EditingSession.h"

#include "AppVersion.h"
#include "platform/StringHelpers.h"
#include "platform/WebAddresses.h"

namespace brevaro {

EditingSession::EditingSession(RecordStore& store, Prompts& prompts, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_prompts(prompts)
    , m_controls(mainWindowControls())
    , m_core{m_screen,  m_controls, m_store, m_prompts,
             m_company, m_program,  m_state, m_appVersionText}
    , m_navigation(m_core, m_companies, m_programs, m_transfer)
    , m_companies(m_core, m_navigation, m_programs, m_transfer)
    , m_programs(m_core, m_navigation, m_transfer)
    , m_transfer(m_core)
    , m_assistance(m_core, m_navigation)
    , m_programTab(m_core)
    , m_pad(m_core, m_companies, m_programs, m_transfer, m_navigation) {
    buildScreen();
    m_screen.setEvents(this);
}

void EditingSession::buildScreen() {
    for (const ControlRow& r : m_controls) {
        const int id = m_screen.add(r.name, r.index, r.kind);
        m_screen.setMaxLength(id, r.limit);
        m_screen.setKeepsItem(id, r.keepsItem);
        // Only a control's own caption is shown as its text; a field's label never is.
        m_screen.setCaption(id, r.caption);
    }
    m_screen.setItems(id(u"SSTab1"), mainTabCaptions());
    m_screen.setItems(id(u"SSTab2"), languageTabCaptions());
    m_screen.setListIndex(id(u"SSTab1"), 0);
    m_screen.setListIndex(id(u"SSTab2"), 0);
}

const ControlRow& EditingSession::row(int id) const {
    return m_core.row(id);
}

void EditingSession::setCommandHandler(ControlAction action, std::function<void()> handler) {
    m_handlers[action] = std::move(handler);
}

void EditingSession::runCommand(ControlAction action, const QString& name) {
    const auto found = m_handlers.find(action);
    if (found != m_handlers.end() && found->second) {
        found->second();
        return;
    }
    m_navigation.SimpleText(name + QStringLiteral(" is not available yet."));
}

void EditingSession::Start() {
    if (!m_store.completeInterruptedDeletion())
        m_prompts.message(QLatin1String(kAppTitle),
                          QStringLiteral("A company deletion that was interrupted could not be "
                                         "completed: ") +
                              m_store.errorString());
    for (auto name : {u"lblCompanyID", u"lblProgramID", u"lblProgramDBname"})
        m_screen.setVisible(id(name), false);
    m_transfer.LoadValueLists();
    m_state.CompanyDirty = m_state.ProgramDirty = m_state.NewCompanyPending = false;
    m_store.home().createFolders();
    m_transfer.SetToolTips();
    m_state.ImportInProgress = false;
    m_transfer.ClearCompanyScreen();
    m_transfer.ClearCompanyRecord();
    m_transfer.ClearProgramScreen();
    // Clearing the screen fires change handlers; nothing the user typed is pending yet.
    m_state.CompanyDirty = m_state.ProgramDirty = false;
    m_state.CurrentCompanyNo = 1;
    m_companies.OpenCompanies();
    m_state.CompanyDirty = m_state.ProgramDirty = false;
    if (!m_screen.at(u"cboCompanyName").items.isEmpty())
        m_screen.setListIndex(id(u"cboCompanyName"), 0);
    if (!m_screen.at(u"cboProgramName").items.isEmpty())
        m_screen.setListIndex(id(u"cboProgramName"), 0);
    m_state.CompanyDirty = m_state.ProgramDirty = false;
    m_appVersionText = trimBlanks(versionText());
    m_navigation.UpdateCaption();
    m_navigation.SimpleText(QStringLiteral("Welcome to ") + QLatin1String(kAppTitle));
}

bool EditingSession::Shutdown() {
    // Losing what the user asked to keep is worse than staying open: a failed save keeps
    // the window.
    if (!m_navigation.isCompanyDirty() || !m_navigation.isProgramDirty())
        return false;
    emit closeRequested();
    return true;
}

void EditingSession::markModified(const ControlRow& control, unsigned event) {
    if (!(control.markOn & event) || m_core.loadingRecords > 0)
        return;
    if (control.marks == RecordSide::Company)
        m_navigation.SetCompanyDirty();
    else if (control.marks == RecordSide::Program)
        m_navigation.SetProgramDirty();
}

void EditingSession::onChange(int control) {
    const ControlRow& r = row(control);
    if (r.limit > 0)
        m_assistance.limitField(control, false);
    markModified(r, kMarkOnChange);
}

void EditingSession::onClick(int control) {
    const ControlRow& r = row(control);
    if (r.kind == ControlKind::ComboBox && r.limit > 0)
        m_assistance.limitField(control, false);
    switch (r.action) {
    case ControlAction::SelectCompany:
        return m_navigation.companySelected();
    case ControlAction::SelectProgram:
        return m_navigation.programSelected();
    case ControlAction::SelectTab:
        return m_navigation.tabSelected();
    case ControlAction::ExpiryCheck:
        m_programTab.expiryCheckClicked();
        break;
    case ControlAction::CategoryMain:
        m_transfer.CategoryMainChosen(control);
        break;
    case ControlAction::ExpiryOption:
        if (m_screen.at(control).value)
            m_programTab.expiryOptionClicked(r.index);
        break;
    default:
        break;
    }
    markModified(r, kMarkOnClick);
    runAction(r);
}

void EditingSession::onFocus(int control) {
    m_assistance.showFocusHint(control);
}

std::optional<CommandResult> EditingSession::runRecordCommand(ControlAction action) {
    switch (action) {
    case ControlAction::NewCompany:
        return m_companies.NewCompany();
    case ControlAction::SaveCompany:
        return m_companies.SaveCompany();
    case ControlAction::DeleteCompany:
        return m_companies.DeleteCompany();
    case ControlAction::NewProgram:
        return m_programs.NewProgram();
    case ControlAction::SaveProgram:
        return m_programs.SaveProgram();
    case ControlAction::DeleteProgram:
        return m_programs.DeleteProgram();
    case ControlAction::VerifyPAD:
        return m_pad.VerifyPAD();
    case ControlAction::CreatePAD:
        return m_pad.CreatePADFile();
    case ControlAction::ImportPAD:
        return m_pad.ImportPAD();
    default:
        return std::nullopt;
    }
}

CommandResult EditingSession::trigger(ControlAction action) {
    // As a click, a command runs only while one of its controls is enabled.
    bool available = false;
    for (std::size_t id = 0; id < m_controls.size(); ++id)
        available = available || (m_controls[id].action == action && m_screen.at(int(id)).enabled);
    if (!available)
        return CommandResult::refused(QStringLiteral("the command is not available now"));
    if (auto result = runRecordCommand(action))
        return *result;
    for (const ControlRow& r : m_controls)
        if (r.action == action) {
            runAction(r);
            return CommandResult::done();
        }
    return CommandResult::refused(QStringLiteral("there is no such command"));
}

void EditingSession::setCommandEnabled(ControlAction action, bool enabled) {
    m_core.setCommandEnabled(action, enabled);
}

void EditingSession::runAction(const ControlRow& r) {
    if (runRecordCommand(r.action))
        return;
    switch (r.action) {
    case ControlAction::Exit:
        Shutdown();
        return;
    case ControlAction::Submit:
        return runCommand(r.action, QStringLiteral("Submit"));
    case ControlAction::About:
        return runCommand(r.action, QStringLiteral("About"));
    case ControlAction::CheckPAD:
        return runCommand(r.action, QStringLiteral("Check PAD"));
    case ControlAction::Keywords:
        return runCommand(r.action, QStringLiteral("Keyword suggestion"));
    case ControlAction::NewRelease:
        return runCommand(r.action, QStringLiteral("New Release"));
    case ControlAction::DownloadBanners:
    case ControlAction::NextBanner:
    case ControlAction::ClickBanner:
        return runCommand(r.action, QStringLiteral("The banner strip"));
    case ControlAction::OpenTranslator:
        return m_prompts.openDocument(translationAddress(QString(), false));
    case ControlAction::OpenLink:
        return openLink(static_cast<LinkTarget>(r.arg));
    case ControlAction::OpenFieldUrl: {
        const QString url = text(r.target);
        if (!url.isEmpty())
            m_prompts.openDocument(url);
        return;
    }
    case ControlAction::SameAsAuthor:
        setText(u"txtContactFname", text(u"txtAuthorFname"));
        setText(u"txtContactLname", text(u"txtAuthorLname"));
        setText(u"txtContactEmail", text(u"txtAuthorEmail"));
        return;
    case ControlAction::CopyField:
        return m_assistance.copyField(r);
    case ControlAction::CopyDescription:
        return m_assistance.copyDescription(r);
    case ControlAction::TranslateField:
        return m_assistance.translate(r);
    case ControlAction::FileInfo:
        return m_programTab.openFileInfo();
    case ControlAction::DefaultText:
        return m_programTab.insertDefaultText(r.arg, r.target);
    case ControlAction::LoadText:
        return m_programTab.loadText(r.target);
    case ControlAction::SaveText:
        return m_programTab.saveText(r.target);
    default: // the record commands ran above; the rest act on their own controls
        return;
    }
}

void EditingSession::openLink(LinkTarget target) {
    const QString asp = organizationSite(0);
    QString address;
    switch (target) {
    case LinkTarget::AspRoot:
        address = asp;
        break;
    case LinkTarget::AspPad:
        address = asp + QStringLiteral("/pad/");
        break;
    case LinkTarget::EscRoot:
        address = organizationSite(1);
        break;
    case LinkTarget::TpaRoot:
        address = organizationSite(2);
        break;
    case LinkTarget::MakerRoot:
        address = makerServer();
        break;
    case LinkTarget::MakerMembers:
        address = makerServer() + QStringLiteral("/members.php");
        break;
    case LinkTarget::SignUp:
        address = signUpAddress(m_company.text(CompanyField::AuthorFirstName),
                                m_company.text(CompanyField::AuthorLastName),
                                m_company.text(CompanyField::AuthorEmail));
        break;
    case LinkTarget::Advertise:
        address = productSite() + QStringLiteral("/advertise.php");
        break;
    case LinkTarget::ProductRoot:
        address = productSite();
        break;
    case LinkTarget::Download:
        address = versionAddress(m_appVersionText);
        break;
    case LinkTarget::Contact:
        address = productSite() + QStringLiteral("/contact.php");
        break;
    }
    if (!address.isEmpty())
        m_prompts.openDocument(address);
}

} // namespace brevaro
