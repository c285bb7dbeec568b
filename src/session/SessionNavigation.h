#pragma once

#include "session/SessionState.h"

#include <QString>

namespace brevaro {

struct SessionCore;
class CompanyCommands;
class ProgramCommands;
class ScreenTransfer;

// Choosing companies, programs and tabs, and the modified state: the selectors are locked
// while a record is modified, the caption says so, and leaving a modified record asks first.
class SessionNavigation {
public:
    SessionNavigation(SessionCore& core, CompanyCommands& companies, ProgramCommands& programs,
                      ScreenTransfer& transfer);

    // Offer to save a modified record. True when the caller may go on: nothing was modified,
    // the user said No, or the save succeeded; false when the save the user asked for failed.
    bool isCompanyDirty();
    bool isProgramDirty();
    void SetCompanyDirty();
    void SetCompanyClean();
    void SetProgramDirty();
    void SetProgramClean();
    void UpdateCaption(QString& extra);
    void UpdateCaption();
    void SimpleText(const QString& text);
    void LoadCompanyProgramOnly();

    // The selection handlers of the two selectors and the main tabs.
    void companySelected();
    void programSelected();
    void tabSelected();
    // Enables the commands in one place: those that act on a company or its programs wait
    // for a company to exist, and once a tab has been chosen, each record's commands follow
    // the tab rule.
    void EnableCommands();

private:
    int m_tabRule = -1; // the tab whose rule the commands follow; none before a tab is chosen
    void setModified(QStringView selector, bool& flag, bool modified);

    SessionCore& m_core;
    SessionState& m_state;
    CompanyCommands& m_companies;
    ProgramCommands& m_programs;
    ScreenTransfer& m_transfer;
};

} // namespace brevaro
