#pragma once

#include "records/ProgramRecord.h"
#include "session/CommandResult.h"

namespace brevaro {

class EditingSession;

// Saves a released program as the window's Save does: the program goes onto the screen, is
// marked modified and saved, with the company when it is modified too, so that the store
// writes both in one save. Refused while the shown records hold edits not saved, which the
// release would otherwise overwrite.
CommandResult saveRelease(EditingSession& session, const ProgramRecord& released);

} // namespace brevaro
