#include "session/ProgramCommands.h"

#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"
#include "session/SessionMessages.h"
#include "session/SessionNavigation.h"

#include "platform/StringHelpers.h"

namespace brevaro {

ProgramCommands::ProgramCommands(SessionCore& core, SessionNavigation& navigation,
                                 ScreenTransfer& transfer)
    : m_core(core)
    , m_state(core.state)
    , m_navigation(navigation)
    , m_transfer(transfer)
    , m_side(core, transfer, RecordSide::Program) {}

int ProgramCommands::companyId() const {
    return m_core.company.number(CompanyField::CompanyID);
}

QString ProgramCommands::ProgramFileName() {
    const QString name = RecordStore::programFileName(companyId());
    m_core.screen.setCaption(m_core.id(u"lblProgramDBname"), name);
    return name;
}

int ProgramCommands::GetProgramCount() {
    ProgramFileName();
    return m_core.store.programCount(companyId());
}

void ProgramCommands::ReadCurrentProgram() {
    if (!m_core.store.programFile(companyId()).exists())
        return;
    m_state.ProgramCount = GetProgramCount();
    if (!m_core.store.readProgram(companyId(), m_state.CurrentProgramNo, m_core.program))
        return;
    if (m_core.program.number(ProgramField::CompanyID) != companyId()) {
        m_transfer.ClearProgramScreen();
        m_core.program.setNumber(ProgramField::CompanyID, m_state.CurrentCompanyNo);
    }
}

bool ProgramCommands::WriteCurrentProgram() {
    if (m_state.CurrentProgramNo < 1)
        return false;
    if (m_core.store.writeProgram(companyId(), m_state.CurrentProgramNo, m_core.program))
        return true;
    reportWriteFailure(m_core, QStringLiteral("The program"));
    return false;
}

void ProgramCommands::LoadProgramList() {
    const int selector = m_core.id(u"cboProgramName");
    if (!m_core.store.programFile(companyId()).exists()) {
        if (!m_state.ImportInProgress && m_core.screen.at(selector).items.isEmpty())
            m_state.CurrentProgramNo = 0;
        return;
    }
    m_state.ProgramCount = GetProgramCount();
    // Only the names are read, all at once, so a company with many programs lists quickly.
    m_core.screen.setItems(selector, m_core.store.programNames(companyId()));
    const int entries = static_cast<int>(m_core.screen.at(selector).items.size());
    if (entries > 1) {
        m_navigation.SetProgramClean();
        m_core.screen.setListIndex(selector, m_state.NewProgramPending ? entries - 1 : 0);
    }
    // The program number always names the program that is shown; an import goes on with
    // the last one, its new program.
    if (m_state.ImportInProgress)
        m_state.CurrentProgramNo = entries;
    else if (m_core.screen.at(selector).listIndex >= 0)
        m_state.CurrentProgramNo = m_core.screen.at(selector).listIndex + 1;
    else
        m_state.CurrentProgramNo = entries > 0 ? 1 : 0;
}

void ProgramCommands::ShowSelectedProgram() {
    if (!m_core.store.programFile(companyId()).exists())
        return;
    m_state.ProgramCount = GetProgramCount();
    m_core.store.readProgram(companyId(), m_state.CurrentProgramNo, m_core.program);
    m_transfer.ProgramToScreen();
    ShowProgramPosition();
}

void ProgramCommands::ShowProgramPosition() {
    m_side.showPosition(m_state.CurrentProgramNo, m_core.screen.at(u"cboProgramName").items.size());
}

void ProgramCommands::OpenPrograms() {
    LoadProgramList();
    ReadCurrentProgram();
    m_transfer.ProgramToScreen();
    m_transfer.EnableProgramFields(!m_core.screen.at(u"cboProgramName").items.isEmpty());
}

CommandResult ProgramCommands::NewProgram() {
    if (!m_navigation.isProgramDirty())
        return CommandResult::failed(m_core.store.errorString());
    const auto name = m_side.askName();
    if (!name)
        return CommandResult::declined();
    CreateProgram(*name);
    return CommandResult::done();
}

void ProgramCommands::CreateProgram(const QString& name) {
    m_side.create(name, GetProgramCount());
}

CommandResult ProgramCommands::SaveProgram() {
    if (m_state.CurrentProgramNo < 1)
        return CommandResult::refused(QStringLiteral("no program is shown"));
    m_transfer.ScreenToProgram();
    if (!WriteCurrentProgram())
        return CommandResult::failed(m_core.store.errorString());
    if (m_state.NewProgramPending)
        LoadProgramList();
    m_navigation.SetProgramClean();
    m_core.screen.setListIndex(m_core.id(u"cboProgramName"), m_state.CurrentProgramNo - 1);
    m_state.NewProgramPending = false;
    return CommandResult::done();
}

CommandResult ProgramCommands::DeleteProgram() {
    if (m_core.screen.at(u"cboProgramName").items.isEmpty())
        return CommandResult::refused(QStringLiteral("no program is shown"));
    const QString name = m_core.program.trimText(ProgramField::ProgramName);
    if (!confirmDelete(m_core, name))
        return CommandResult::declined();
    const int id = companyId();
    if (!m_core.store.programFile(id).exists())
        return CommandResult::refused(QStringLiteral("the company has no program file"));
    const int doomed = m_state.CurrentProgramNo;
    if (doomed >= 1 && doomed <= GetProgramCount() && !m_core.store.deleteProgram(id, doomed))
        return reportDeleteFailure(m_core, name);
    m_state.NewProgramPending = false;
    m_state.ProgramDirty = false;
    m_navigation.LoadCompanyProgramOnly();
    if (GetProgramCount() == 0)
        m_state.CurrentProgramNo = 0;
    ShowProgramPosition();
    m_navigation.SetProgramClean();
    return CommandResult::done();
}

} // namespace brevaro
