#pragma once

namespace brevaro {

class EditingSession;

// Gives the session its Verify PAD, Create PAD and Import PAD commands.
void installPadCommands(EditingSession& session);
// Verify PAD: writes temp1.htm in the home and opens it.
void VerifyPAD(EditingSession& session);

} // namespace brevaro
