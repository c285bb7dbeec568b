#pragma once

#include "session/CommandResult.h"
#include "session/RecordSideCommands.h"
#include "session/SessionState.h"

#include <QString>

namespace brevaro {

struct SessionCore;
class ScreenTransfer;
class SessionNavigation;

// The current company's program file as the window uses it.
class ProgramCommands {
public:
    ProgramCommands(SessionCore& core, SessionNavigation& navigation, ScreenTransfer& transfer);

    QString ProgramFileName();
    int GetProgramCount();
    void ReadCurrentProgram();
    // Writes the current record at its number; false, after telling the user, on failure.
    bool WriteCurrentProgram();
    void LoadProgramList();
    void ShowSelectedProgram();
    void ShowProgramPosition();
    void OpenPrograms();
    // Asks for a name (after offering to save the shown program) and starts a new program.
    CommandResult NewProgram();
    void CreateProgram(const QString& name);
    // Failed when the record could not be written: it stays modified.
    CommandResult SaveProgram();
    CommandResult DeleteProgram();

private:
    int companyId() const;

    SessionCore& m_core;
    SessionState& m_state;
    SessionNavigation& m_navigation;
    ScreenTransfer& m_transfer;
    RecordSideCommands m_side;
};

} // namespace brevaro
