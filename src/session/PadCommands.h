#pragma once

#include "pad/PadCheck.h"
#include "session/CommandResult.h"

#include <QString>
#include <vector>

namespace brevaro {

class EditingSession;

// The PAD commands of the window: Verify PAD, Create PAD and Import PAD.
class PadCommands {
public:
    explicit PadCommands(EditingSession& session);

    // Writes temp1.htm in the home and opens it.
    CommandResult VerifyPAD();
    // Saves what is modified (asking first), then writes the PAD file and its web info
    // block where the user chooses.
    CommandResult CreatePADFile();
    // Writes both files at path without asking; false with a message on failure.
    bool writePadFiles(const QString& path, QString* error);
    // Asks for a file and imports it.
    CommandResult ImportPAD();
    // Imports one file and saves what it set; false when the file was refused.
    bool importPadFile(const QString& path);
    // The PAD check over what the screen shows now, saved or not.
    std::vector<PadFinding> checkScreen();
    // Takes the user to the field of a finding: its tab (and language) chosen, the field
    // focused. False when there is no such field or the tab rule refused the tab.
    bool goToField(const PadFinding& finding);

private:
    EditingSession& m_s;
};

} // namespace brevaro
