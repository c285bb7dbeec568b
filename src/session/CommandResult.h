#pragma once

#include <QString>

namespace brevaro {

// What a command of the session did: it was done; the user declined (answered No, cancelled
// a dialog); it was refused, with the reason in plain words (nothing to delete, nothing to
// write); or it failed, with the message the user was shown.
struct CommandResult {
    enum class Outcome { Done, Declined, Refused, Failed };

    Outcome outcome = Outcome::Done;
    QString reason;

    static CommandResult done() { return {}; }
    static CommandResult declined() { return {Outcome::Declined, QString()}; }
    static CommandResult refused(const QString& why) { return {Outcome::Refused, why}; }
    static CommandResult failed(const QString& message) { return {Outcome::Failed, message}; }
    bool isDone() const { return outcome == Outcome::Done; }
};

} // namespace brevaro
