#pragma once

#include "pad/PadCheck.h"
#include "records/CompanyRecord.h"
#include "session/CommandResult.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace brevaro {

struct SessionCore;
class CompanyCommands;
class ProgramCommands;
class ScreenTransfer;
class SessionNavigation;

// The PAD commands of the window: Verify PAD, Create PAD and Import PAD.
class PadCommands {
public:
    PadCommands(SessionCore& core, CompanyCommands& companies, ProgramCommands& programs,
                ScreenTransfer& transfer, SessionNavigation& navigation);

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
    // What the last import could not keep in the 1.15 records, one plain line each.
    const QStringList& notKeptByImport() const { return m_notKept; }
    // The PAD check over what the screen shows now, saved or not.
    std::vector<PadFinding> checkScreen();
    // Takes the user to the field of a finding: its tab (and language) chosen, the field
    // focused. False when there is no such field or the tab rule refused the tab.
    bool goToField(const PadFinding& finding);

private:
    // A PAD import: the save prompts are off while it runs; finishing saves what it set
    // (accepted) or puts the shown company back (refused).
    void beginImport();
    void finishImport(bool accepted);
    // Saves what the import set without reloading the fields over it.
    void saveImported();

    SessionCore& m_core;
    CompanyCommands& m_companies;
    ProgramCommands& m_programs;
    ScreenTransfer& m_transfer;
    SessionNavigation& m_navigation;
    CompanyRecord m_shownBeforeImport;
    QStringList m_notKept;
};

} // namespace brevaro
