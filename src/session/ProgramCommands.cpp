#include "session/ProgramCommands.h"

#include "session/EditingSession.h"
#include "session/SessionMessages.h"

#include "platform/StringHelpers.h"

namespace brevaro {

ProgramCommands::ProgramCommands(EditingSession& session, SessionState& state)
    : m_s(session)
    , m_state(state) {}

int ProgramCommands::companyId() const {
    return m_s.company().number(CompanyField::CompanyID);
}

QString ProgramCommands::ProgramFileName() {
    const QString name = RecordStore::programFileName(companyId());
    m_s.screen().setCaption(m_s.id(u"lblProgramDBname"), name);
    return name;
}

int ProgramCommands::GetProgramCount() {
    ProgramFileName();
    return m_s.store().programCount(companyId());
}

void ProgramCommands::ReadCurrentProgram() {
    if (!m_s.store().programFile(companyId()).exists())
        return;
    m_state.ProgramCount = GetProgramCount();
    if (!m_s.store().readProgram(companyId(), m_state.CurrentProgramNo, m_s.program()))
        return;
    if (m_s.program().number(ProgramField::CompanyID) != companyId()) {
        m_s.transfer().ClearProgramScreen();
        m_s.program().setNumber(ProgramField::CompanyID, m_state.CurrentCompanyNo);
    }
}

bool ProgramCommands::WriteCurrentProgram() {
    if (m_state.CurrentProgramNo < 1)
        return false;
    if (m_s.store().writeProgram(companyId(), m_state.CurrentProgramNo, m_s.program()))
        return true;
    reportWriteFailure(m_s, QStringLiteral("The program"));
    return false;
}

void ProgramCommands::LoadProgramList() {
    const int selector = m_s.id(u"cboProgramName");
    if (!m_s.store().programFile(companyId()).exists()) {
        if (!m_state.ImportInProgress && m_s.screen().at(selector).items.isEmpty())
            m_state.CurrentProgramNo = 0;
        return;
    }
    m_s.screen().setItems(selector, {});
    m_state.ProgramCount = GetProgramCount();
    // Only the names are read, so a company with many programs lists quickly.
    for (const QString& name : m_s.store().programNames(companyId()))
        m_s.screen().addItem(selector, name);
    const int entries = static_cast<int>(m_s.screen().at(selector).items.size());
    if (entries > 1) {
        m_s.navigation().SetProgramClean();
        m_s.screen().setListIndex(selector, m_state.NewProgramPending ? entries - 1 : 0);
    }
    // The program number always names the program that is shown; an import goes on with
    // the last one, its new program.
    if (m_state.ImportInProgress)
        m_state.CurrentProgramNo = entries;
    else if (m_s.screen().at(selector).listIndex >= 0)
        m_state.CurrentProgramNo = m_s.screen().at(selector).listIndex + 1;
    else
        m_state.CurrentProgramNo = entries > 0 ? 1 : 0;
}

void ProgramCommands::ShowSelectedProgram() {
    if (!m_s.store().programFile(companyId()).exists())
        return;
    m_state.ProgramCount = GetProgramCount();
    m_s.store().readProgram(companyId(), m_state.CurrentProgramNo, m_s.program());
    m_s.transfer().ProgramToScreen();
    ShowProgramPosition();
}

void ProgramCommands::ShowProgramPosition() {
    m_s.screen().setCaption(m_s.id(u"lblProgramRecord"),
                            QStringLiteral("%1 of %2")
                                .arg(m_state.CurrentProgramNo)
                                .arg(m_s.screen().at(u"cboProgramName").items.size()));
}

void ProgramCommands::OpenPrograms() {
    LoadProgramList();
    ReadCurrentProgram();
    m_s.transfer().ProgramToScreen();
    m_s.transfer().EnableProgramFields(!m_s.screen().at(u"cboProgramName").items.isEmpty());
}

CommandResult ProgramCommands::NewProgram() {
    if (!m_s.navigation().isProgramDirty())
        return CommandResult::failed(m_s.store().errorString());
    const auto answer = m_s.prompts().inputBox(QStringLiteral("Enter new Program Name:"),
                                               QStringLiteral("New Program"), QString());
    const QString name = trimBlanks(answer.value_or(QString()));
    if (name.isEmpty())
        return CommandResult::declined();
    CreateProgram(name);
    return CommandResult::done();
}

void ProgramCommands::CreateProgram(const QString& name) {
    if (trimBlanks(name).isEmpty())
        return;
    m_s.transfer().EnableProgramFields(true);
    m_state.NewProgramPending = true;
    m_state.ProgramCount = GetProgramCount() + 1;
    m_state.CurrentProgramNo = m_state.ProgramCount;
    m_s.transfer().ClearProgramScreen();
    m_s.transfer().ClearProgramRecord();
    const int selector = m_s.id(u"cboProgramName");
    m_s.screen().addItem(selector, name);
    m_s.screen().setText(selector, name);
    ShowProgramPosition();
    m_s.screen().requestFocus(m_s.id(u"txtProgramVersion"));
}

CommandResult ProgramCommands::SaveProgram() {
    if (m_state.CurrentProgramNo < 1)
        return CommandResult::refused(QStringLiteral("no program is shown"));
    m_s.transfer().ScreenToProgram();
    if (!WriteCurrentProgram())
        return CommandResult::failed(m_s.store().errorString());
    if (m_state.NewProgramPending)
        LoadProgramList();
    m_s.navigation().SetProgramClean();
    m_s.screen().setListIndex(m_s.id(u"cboProgramName"), m_state.CurrentProgramNo - 1);
    m_state.NewProgramPending = false;
    return CommandResult::done();
}

CommandResult ProgramCommands::DeleteProgram() {
    if (m_s.screen().at(u"cboProgramName").items.isEmpty())
        return CommandResult::refused(QStringLiteral("no program is shown"));
    const QString name = m_s.program().trimText(ProgramField::ProgramName);
    if (!confirmDelete(m_s, name))
        return CommandResult::declined();
    const int id = companyId();
    if (!m_s.store().programFile(id).exists())
        return CommandResult::refused(QStringLiteral("the company has no program file"));
    const int doomed = m_state.CurrentProgramNo;
    if (doomed >= 1 && doomed <= GetProgramCount() && !m_s.store().deleteProgram(id, doomed))
        return reportDeleteFailure(m_s, name);
    m_state.NewProgramPending = false;
    m_state.ProgramDirty = false;
    m_s.navigation().LoadCompanyProgramOnly();
    if (GetProgramCount() == 0)
        m_state.CurrentProgramNo = 0;
    ShowProgramPosition();
    m_s.navigation().SetProgramClean();
    return CommandResult::done();
}

} // namespace brevaro
