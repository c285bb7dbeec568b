#pragma once

#include "records/RecordField.h"
#include "session/CommandResult.h"

#include <QString>
#include <optional>

namespace brevaro {

struct SessionCore;
class ScreenTransfer;

// The steps of New, Create and the position label that the company and the program commands
// share; only the side they act on differs: its selector, its first field, its question, its
// count and its pending flag.
class RecordSideCommands {
public:
    RecordSideCommands(SessionCore& core, ScreenTransfer& transfer, RecordSide side);

    // Asks for the new record's name: trimmed, nothing when none is given.
    std::optional<QString> askName();
    // Starts a new record named name after the storedCount records on disk: the fields are
    // cleared and enabled, the name is shown in the selector, and the first field is focused.
    void create(const QString& name, int storedCount);
    // "n of m" beside the selector.
    void showPosition(int current, qsizetype count);

private:
    SessionCore& m_core;
    ScreenTransfer& m_transfer;
    RecordSide m_side;
};

} // namespace brevaro
