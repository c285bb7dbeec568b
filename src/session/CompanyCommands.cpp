#include "session/CompanyCommands.h"

#include "platform/StringHelpers.h"
#include "session/EditingSession.h"
#include "session/SessionMessages.h"

namespace brevaro {

CompanyCommands::CompanyCommands(EditingSession& session, SessionState& state)
    : m_s(session)
    , m_state(state) {}

int CompanyCommands::GetCompanyCount() const {
    return m_s.store().companyCount();
}

void CompanyCommands::ReadCurrentCompany() {
    if (!m_s.store().companyFile().exists())
        return;
    m_state.CompanyCount = GetCompanyCount();
    m_s.store().readCompany(m_state.CurrentCompanyNo, m_s.company());
}

bool CompanyCommands::WriteCurrentCompany() {
    if (m_s.store().writeCompany(m_state.CurrentCompanyNo, m_s.company()))
        return true;
    reportWriteFailure(m_s, QStringLiteral("The company"));
    return false;
}

void CompanyCommands::LoadCompanyList() {
    if (!m_s.store().companyFile().exists())
        return;
    const int selector = m_s.id(u"cboCompanyName");
    m_s.screen().setItems(selector, {});
    m_state.CompanyCount = GetCompanyCount();
    // Only the names are read; the current record ends as the last company, as a full read
    // of every record would leave it.
    for (const QString& name : m_s.store().companyNames())
        m_s.screen().addItem(selector, name);
    if (m_state.CompanyCount > 0)
        m_s.store().readCompany(m_state.CompanyCount, m_s.company());
    if (m_state.CompanyCount > 0)
        m_s.screen().setListIndex(selector, 0);
}

void CompanyCommands::ShowCurrentCompany() {
    ReadCurrentCompany();
    m_s.transfer().CompanyToScreen();
    ShowCompanyPosition();
}

void CompanyCommands::ShowCompanyPosition() {
    m_s.screen().setCaption(
        m_s.id(u"lblCompanyRecord"),
        QStringLiteral("%1 of %2").arg(m_state.CurrentCompanyNo).arg(m_state.CompanyCount));
}

void CompanyCommands::OpenCompanies() {
    ReadCurrentCompany();
    LoadCompanyList();
    const bool any = !m_s.screen().at(u"cboCompanyName").items.isEmpty();
    if (!any) {
        // Nothing to show: no stale company stays on the screen.
        m_s.transfer().ClearCompanyRecord();
        m_s.transfer().ClearCompanyScreen();
        m_s.screen().setText(m_s.id(u"cboCompanyName"), QString());
        m_state.CurrentCompanyNo = m_state.CompanyCount = 0;
    } else {
        m_s.transfer().CompanyToScreen();
    }
    m_s.transfer().EnableCompanyFields(any);
}

CommandResult CompanyCommands::NewCompany() {
    if (!m_s.navigation().isCompanyDirty())
        return CommandResult::failed(m_s.store().errorString());
    const auto answer = m_s.prompts().inputBox(
        QStringLiteral("Enter new Company Name, or if you don't have a company, your First and "
                       "Last name: "),
        QStringLiteral("New Company"), QString());
    const QString name = trimBlanks(answer.value_or(QString()));
    if (name.isEmpty())
        return CommandResult::declined();
    CreateCompany(name);
    return CommandResult::done();
}

void CompanyCommands::CreateCompany(const QString& name) {
    if (trimBlanks(name).isEmpty())
        return;
    m_s.transfer().EnableCompanyFields(true);
    m_state.NewCompanyPending = true;
    m_state.CompanyCount = GetCompanyCount() + 1;
    m_state.CurrentCompanyNo = m_state.CompanyCount;
    m_s.transfer().ClearCompanyScreen();
    m_s.transfer().ClearCompanyRecord();
    const int selector = m_s.id(u"cboCompanyName");
    m_s.screen().addItem(selector, name);
    m_s.screen().setText(selector, name);
    ShowCompanyPosition();
    m_s.screen().requestFocus(m_s.id(u"txtAddress1"));
}

CommandResult CompanyCommands::SaveCompany() {
    m_s.transfer().ScreenToCompany();
    if (!WriteCurrentCompany())
        return CommandResult::failed(m_s.store().errorString());
    m_s.company().trimText(CompanyField::CompanyName);
    m_s.navigation().SetCompanyClean();
    m_s.screen().setListIndex(m_s.id(u"cboCompanyName"), m_state.CurrentCompanyNo - 1);
    m_state.NewCompanyPending = false;
    return CommandResult::done();
}

bool CompanyCommands::FindCompany(const QString& name) {
    if (!m_s.store().companyFile().exists())
        return false;
    const int at = static_cast<int>(m_s.screen().at(u"cboCompanyName").items.indexOf(name));
    if (at < 0)
        return false;
    m_state.CurrentCompanyNo = at + 1;
    return true;
}

CommandResult CompanyCommands::DeleteCompany() {
    const ControlState& selector = m_s.screen().at(u"cboCompanyName");
    if (selector.items.isEmpty() || trimBlanks(selector.text).isEmpty())
        return CommandResult::refused(QStringLiteral("no company is shown"));
    const QString name = m_s.company().trimText(CompanyField::CompanyName);
    if (!confirmDelete(m_s, name))
        return CommandResult::declined();
    if (!m_s.store().companyFile().exists())
        return CommandResult::refused(QStringLiteral("there is no company file"));
    const int doomed = m_state.CurrentCompanyNo;
    // A new company that was never saved has nothing on disk to remove.
    if (doomed <= GetCompanyCount() && !m_s.store().deleteCompany(doomed))
        return reportDeleteFailure(m_s, name);
    m_state.NewCompanyPending = false;
    m_state.CompanyDirty = m_state.ProgramDirty = false;
    m_state.CurrentCompanyNo = 1;
    OpenCompanies();
    m_s.navigation().LoadCompanyProgramOnly();
    ShowCompanyPosition();
    m_s.programs().ShowProgramPosition();
    m_s.navigation().SetCompanyClean();
    m_s.navigation().SetProgramClean();
    if (m_s.screen().at(u"cboCompanyName").items.isEmpty())
        m_s.transfer().EnableCompanyFields(false);
    return CommandResult::done();
}

} // namespace brevaro
