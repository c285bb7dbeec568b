#pragma once

#include "session/CommandResult.h"

#include <QString>

namespace brevaro {

class EditingSession;

// The questions and messages that the record commands share.
bool confirmDelete(EditingSession& session, const QString& name);
// The user is told that a deletion failed; the failed result carries the store's reason.
CommandResult reportDeleteFailure(EditingSession& session, const QString& name);
// A record could not be written: the user is told, and the edits stay on screen; the failed
// result carries the store's reason.
CommandResult reportWriteFailure(EditingSession& session, const QString& what);

} // namespace brevaro
