#pragma once

#include "session/CommandResult.h"

#include <QString>

namespace brevaro {

struct SessionCore;

// The questions and messages that the record commands share.
bool confirmDelete(SessionCore& session, const QString& name);
// The user is told that a deletion failed; the failed result carries the store's reason.
CommandResult reportDeleteFailure(SessionCore& session, const QString& name);
// A record could not be written: the user is told, and the edits stay on screen; the failed
// result carries the store's reason.
CommandResult reportWriteFailure(SessionCore& session, const QString& what);

} // namespace brevaro
