#include "mainwindow/EditingSession.h"

#include "platform/StringHelpers.h"

namespace brevaro {

namespace {
int companyIdOf(const CompanyRecord& c) {
    return c.number(CompanyField::CompanyID);
}
} // namespace

QString EditingSession::ProgramFileName() {
    const QString name = RecordStore::programFileName(companyIdOf(m_company));
    m_screen.setCaption(id(u"lblProgramDBname"), name);
    return name;
}

int EditingSession::GetProgramCount() {
    ProgramFileName();
    return m_store.programCount(companyIdOf(m_company));
}

void EditingSession::ReadCurrentProgram() {
    if (!m_store.programFile(companyIdOf(m_company)).exists())
        return;
    ProgramCount = GetProgramCount();
    if (!m_store.readProgram(companyIdOf(m_company), CurrentProgramNo, m_program))
        return;
    if (m_program.number(ProgramField::CompanyID) != companyIdOf(m_company)) {
        ClearProgramScreen();
        m_program.setNumber(ProgramField::CompanyID, CurrentCompanyNo);
    }
}

bool EditingSession::WriteCurrentProgram() {
    if (CurrentProgramNo < 1)
        return false;
    if (m_store.writeProgram(companyIdOf(m_company), CurrentProgramNo, m_program))
        return true;
    reportWriteFailure(QStringLiteral("The program"));
    return false;
}

void EditingSession::LoadProgramList() {
    const int selector = id(u"cboProgramName");
    if (!m_store.programFile(companyIdOf(m_company)).exists()) {
        if (!ImportInProgress && m_screen.at(selector).items.isEmpty())
            CurrentProgramNo = 0;
        return;
    }
    m_screen.setItems(selector, {});
    ProgramCount = GetProgramCount();
    // Only the names are read, so a company with many programs lists quickly.
    for (const QString& name : m_store.programNames(companyIdOf(m_company)))
        m_screen.addItem(selector, name);
    const int entries = static_cast<int>(m_screen.at(selector).items.size());
    if (entries > 1) {
        SetProgramClean();
        m_screen.setListIndex(selector, NewProgramPending ? entries - 1 : 0);
    }
    // The program number always names the program that is shown; an import goes on with
    // the last one, its new program.
    if (ImportInProgress)
        CurrentProgramNo = entries;
    else if (m_screen.at(selector).listIndex >= 0)
        CurrentProgramNo = m_screen.at(selector).listIndex + 1;
    else
        CurrentProgramNo = entries > 0 ? 1 : 0;
}

void EditingSession::ShowSelectedProgram() {
    if (!m_store.programFile(companyIdOf(m_company)).exists())
        return;
    ProgramCount = GetProgramCount();
    m_store.readProgram(companyIdOf(m_company), CurrentProgramNo, m_program);
    ProgramToScreen();
    ShowProgramPosition();
}

void EditingSession::ShowProgramPosition() {
    m_screen.setCaption(id(u"lblProgramRecord"),
                        QStringLiteral("%1 of %2")
                            .arg(CurrentProgramNo)
                            .arg(m_screen.at(u"cboProgramName").items.size()));
}

void EditingSession::OpenPrograms() {
    LoadProgramList();
    ReadCurrentProgram();
    ProgramToScreen();
    EnableProgramFields(!m_screen.at(u"cboProgramName").items.isEmpty());
}

void EditingSession::NewProgram() {
    isProgramDirty();
    const auto answer = m_prompts.inputBox(QStringLiteral("Enter new Program Name:"),
                                           QStringLiteral("New Program"), QString());
    const QString name = trimBlanks(answer.value_or(QString()));
    if (name.isEmpty())
        return;
    CreateProgram(name);
}

void EditingSession::CreateProgram(const QString& name) {
    if (trimBlanks(name).isEmpty())
        return;
    EnableProgramFields(true);
    NewProgramPending = true;
    ProgramCount = GetProgramCount() + 1;
    CurrentProgramNo = ProgramCount;
    ClearProgramScreen();
    ClearProgramRecord();
    const int selector = id(u"cboProgramName");
    m_screen.addItem(selector, name);
    m_screen.setText(selector, name);
    ShowProgramPosition();
    m_screen.focus(id(u"txtProgramVersion"));
}

void EditingSession::SaveProgram() {
    if (CurrentProgramNo < 1)
        return;
    ScreenToProgram();
    if (!WriteCurrentProgram())
        return;
    if (NewProgramPending)
        LoadProgramList();
    SetProgramClean();
    m_screen.setListIndex(id(u"cboProgramName"), CurrentProgramNo - 1);
    NewProgramPending = false;
}

void EditingSession::DeleteProgram() {
    if (m_screen.at(u"cboProgramName").items.isEmpty())
        return;
    const QString name = m_program.trimText(ProgramField::ProgramName);
    if (!confirmDelete(name))
        return;
    const int companyId = companyIdOf(m_company);
    if (!m_store.programFile(companyId).exists())
        return;
    const int doomed = CurrentProgramNo;
    if (doomed >= 1 && doomed <= GetProgramCount() && !m_store.deleteProgram(companyId, doomed)) {
        reportDeleteFailure(name);
        return;
    }
    NewProgramPending = false;
    ProgramDirty = false;
    LoadCompanyProgramOnly();
    if (GetProgramCount() == 0)
        CurrentProgramNo = 0;
    ShowProgramPosition();
    SetProgramClean();
}

} // namespace brevaro
