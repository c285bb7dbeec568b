#include "session/ReleaseSave.h"

#include "session/EditingSession.h"

namespace brevaro {

CommandResult saveRelease(EditingSession& s, const ProgramRecord& released) {
    if (s.state().CurrentProgramNo < 1)
        return CommandResult::refused(QStringLiteral("no program is shown"));
    if (s.state().ProgramDirty || s.state().CompanyDirty)
        return CommandResult::refused(
            QStringLiteral("Save the company and the program before a release."));
    s.program() = released;
    s.transfer().ProgramToScreen();
    s.navigation().SetProgramDirty();
    return s.trigger(ControlAction::SaveProgram);
}

} // namespace brevaro
