#include "session/CompanyCommands.h"

#include "platform/StringHelpers.h"
#include "session/ProgramCommands.h"
#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"
#include "session/SessionMessages.h"
#include "session/SessionNavigation.h"

namespace brevaro {

CompanyCommands::CompanyCommands(SessionCore& core, SessionNavigation& navigation,
                                 ProgramCommands& programs, ScreenTransfer& transfer)
    : m_core(core)
    , m_state(core.state)
    , m_navigation(navigation)
    , m_programs(programs)
    , m_transfer(transfer)
    , m_side(core, transfer, RecordSide::Company) {}

int CompanyCommands::GetCompanyCount() const {
    return m_core.store.companyCount();
}

void CompanyCommands::ReadCurrentCompany() {
    if (!m_core.store.companyFile().exists())
        return;
    m_state.CompanyCount = GetCompanyCount();
    m_core.store.readCompany(m_state.CurrentCompanyNo, m_core.company);
}

bool CompanyCommands::WriteCurrentCompany() {
    if (m_core.store.writeCompany(m_state.CurrentCompanyNo, m_core.company))
        return true;
    reportWriteFailure(m_core, QStringLiteral("The company"));
    return false;
}

void CompanyCommands::LoadCompanyList() {
    if (!m_core.store.companyFile().exists())
        return;
    const int selector = m_core.id(u"cboCompanyName");
    m_state.CompanyCount = GetCompanyCount();
    // Only the names are read, and they fill the list at once (a home of many companies
    // starts without a change per name); the current record ends as the last company, as a
    // full read of every record would leave it.
    m_core.screen.setItems(selector, m_core.store.companyNames());
    if (m_state.CompanyCount > 0)
        m_core.store.readCompany(m_state.CompanyCount, m_core.company);
    if (m_state.CompanyCount > 0)
        m_core.screen.setListIndex(selector, 0);
}

void CompanyCommands::ShowCurrentCompany() {
    ReadCurrentCompany();
    m_transfer.CompanyToScreen();
    ShowCompanyPosition();
}

void CompanyCommands::ShowCompanyPosition() {
    m_side.showPosition(m_state.CurrentCompanyNo, m_state.CompanyCount);
}

void CompanyCommands::OpenCompanies() {
    ReadCurrentCompany();
    LoadCompanyList();
    const bool any = !m_core.screen.at(u"cboCompanyName").items.isEmpty();
    if (!any) {
        // Nothing to show: no stale company stays on the screen.
        m_transfer.ClearCompanyRecord();
        m_transfer.ClearCompanyScreen();
        m_core.screen.setText(m_core.id(u"cboCompanyName"), QString());
        m_state.CurrentCompanyNo = m_state.CompanyCount = 0;
    } else {
        m_transfer.CompanyToScreen();
    }
    m_transfer.EnableCompanyFields(any);
    m_navigation.EnableCommands();
}

CommandResult CompanyCommands::NewCompany() {
    if (!m_navigation.isCompanyDirty())
        return CommandResult::failed(m_core.store.errorString());
    const auto name = m_side.askName();
    if (!name)
        return CommandResult::declined();
    CreateCompany(*name);
    return CommandResult::done();
}

void CompanyCommands::CreateCompany(const QString& name) {
    m_side.create(name, GetCompanyCount());
    m_navigation.EnableCommands();
}

CommandResult CompanyCommands::SaveCompany() {
    m_transfer.ScreenToCompany();
    if (!WriteCurrentCompany())
        return CommandResult::failed(m_core.store.errorString());
    m_core.company.trimText(CompanyField::CompanyName);
    m_navigation.SetCompanyClean();
    m_core.screen.setListIndex(m_core.id(u"cboCompanyName"), m_state.CurrentCompanyNo - 1);
    m_state.NewCompanyPending = false;
    return CommandResult::done();
}

bool CompanyCommands::FindCompany(const QString& name) {
    if (!m_core.store.companyFile().exists())
        return false;
    const int at = static_cast<int>(m_core.screen.at(u"cboCompanyName").items.indexOf(name));
    if (at < 0)
        return false;
    m_state.CurrentCompanyNo = at + 1;
    return true;
}

CommandResult CompanyCommands::DeleteCompany() {
    const ControlState& selector = m_core.screen.at(u"cboCompanyName");
    if (selector.items.isEmpty() || trimBlanks(selector.text).isEmpty())
        return CommandResult::refused(QStringLiteral("no company is shown"));
    const QString name = m_core.company.trimText(CompanyField::CompanyName);
    if (!confirmDelete(m_core, name))
        return CommandResult::declined();
    if (!m_core.store.companyFile().exists())
        return CommandResult::refused(QStringLiteral("there is no company file"));
    const int doomed = m_state.CurrentCompanyNo;
    // A new company that was never saved has nothing on disk to remove.
    if (doomed <= GetCompanyCount() && !m_core.store.deleteCompany(doomed))
        return reportDeleteFailure(m_core, name);
    m_state.NewCompanyPending = false;
    m_state.CompanyDirty = m_state.ProgramDirty = false;
    m_state.CurrentCompanyNo = 1;
    OpenCompanies();
    m_navigation.LoadCompanyProgramOnly();
    ShowCompanyPosition();
    m_programs.ShowProgramPosition();
    m_navigation.SetCompanyClean();
    m_navigation.SetProgramClean();
    if (m_core.screen.at(u"cboCompanyName").items.isEmpty())
        m_transfer.EnableCompanyFields(false);
    return CommandResult::done();
}

} // namespace brevaro
