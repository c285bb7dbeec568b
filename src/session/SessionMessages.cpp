#include "session/SessionMessages.h"

#include "AppVersion.h"
#include "session/SessionCore.h"

namespace brevaro {

bool confirmDelete(SessionCore& s, const QString& name) {
    return s.prompts.askYesNo(QStringLiteral("Delete ") + name,
                              QStringLiteral("Do you want to delete ") + name + u'?',
                              Prompts::Icon::Question, Prompts::Default::No);
}

CommandResult reportDeleteFailure(SessionCore& s, const QString& name) {
    s.prompts.message(QStringLiteral("Delete ") + name,
                      name + QStringLiteral(" could not be deleted.\n\n") + s.store.errorString());
    return CommandResult::failed(s.store.errorString());
}

CommandResult reportWriteFailure(SessionCore& s, const QString& what) {
    s.prompts.message(QLatin1String(kAppTitle),
                      what +
                          QStringLiteral(" could not be saved, and your changes are still on "
                                         "the screen.\n\n") +
                          s.store.errorString());
    return CommandResult::failed(s.store.errorString());
}

} // namespace brevaro
