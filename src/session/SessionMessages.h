#pragma once

#include <QString>

namespace brevaro {

class EditingSession;

// The questions and messages that the record commands share.
bool confirmDelete(EditingSession& session, const QString& name);
void reportDeleteFailure(EditingSession& session, const QString& name);
// A record could not be written: the user is told, and the edits stay on screen.
void reportWriteFailure(EditingSession& session, const QString& what);

} // namespace brevaro
