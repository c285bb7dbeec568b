#pragma once

#include "session/CommandResult.h"
#include "session/RecordSideCommands.h"
#include "session/SessionState.h"

#include <QString>

namespace brevaro {

struct SessionCore;
class ProgramCommands;
class ScreenTransfer;
class SessionNavigation;

// The company file as the window uses it: reading, listing, creating, saving, finding and
// deleting companies.
class CompanyCommands {
public:
    CompanyCommands(SessionCore& core, SessionNavigation& navigation, ProgramCommands& programs,
                    ScreenTransfer& transfer);

    int GetCompanyCount() const;
    void ReadCurrentCompany();
    // Writes the current record at its number; false, after telling the user, on failure.
    bool WriteCurrentCompany();
    void LoadCompanyList();
    void ShowCurrentCompany();
    void ShowCompanyPosition();
    void OpenCompanies();
    // Asks for a name (after offering to save the shown company) and starts a new company.
    CommandResult NewCompany();
    void CreateCompany(const QString& name);
    // Failed when the record could not be written: it stays modified.
    CommandResult SaveCompany();
    bool FindCompany(const QString& name);
    CommandResult DeleteCompany();

private:
    SessionCore& m_core;
    SessionState& m_state;
    SessionNavigation& m_navigation;
    ProgramCommands& m_programs;
    ScreenTransfer& m_transfer;
    RecordSideCommands m_side;
};

} // namespace brevaro
