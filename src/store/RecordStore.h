#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "store/AppHome.h"
#include "store/DeletionIntent.h"
#include "store/RecordFile.h"
#include "store/SaveIntent.h"

#include <QStringList>

namespace brevaro {

// The company file and the per-company program files of one home. A company's CompanyID is
// its record number and names its program file; deleting a company renumbers the companies
// after it and moves their program files along, so every company keeps its own programs.
class RecordStore {
public:
    explicit RecordStore(AppHome home);

    const AppHome& home() const { return m_home; }

    // From here on, changes are gathered in memory (reads see them) until commitBatch writes
    // them all at once, so that a command changes all its files or none, and writes each
    // file once. A company deletion first commits what is gathered.
    void beginBatch();
    // Puts every gathered change in place through the save intent; false (with nothing
    // changed, or everything, after the next start) when a file cannot be written.
    bool commitBatch();
    // Forgets the gathered changes.
    void discardBatch();
    // Writes go straight to the files again (what is gathered and not committed is dropped).
    void endBatch();
    RecordFile companyFile() const;
    RecordFile programFile(int companyId) const;
    static QString programFileName(int companyId);

    int companyCount() const { return companyFile().count(); }
    // Reads company n into record; false (record unchanged) when there is no such company.
    bool readCompany(int n, CompanyRecord& record) const;
    bool writeCompany(int n, const CompanyRecord& record);
    // Trimmed names of every company, in record order, reading only the name fields.
    QStringList companyNames() const;

    int programCount(int companyId) const { return programFile(companyId).count(); }
    bool readProgram(int companyId, int n, ProgramRecord& record) const;
    bool writeProgram(int companyId, int n, const ProgramRecord& record);
    QStringList programNames(int companyId) const;
    // Removes program n; the file goes when its last program goes.
    bool deleteProgram(int companyId, int n);

    // Removes company n and its program file, renumbering the companies after it.
    bool deleteCompany(int n);
    // Completes a company deletion that a crash interrupted; true when there was none left.
    // An intent file that does not fit the files is refused and nothing is changed.
    // A save that a crash interrupted is finished first.
    bool completeInterruptedDeletion();
    // Records the intent and runs its phases up to lastPhase only, leaving the rest to the
    // next start as a crash would.
    bool runDeletionPhases(const DeletionIntent& intent, int lastPhase);

    const QString& errorString() const { return m_error; }

    // What is wrong with the company file and the program files of its companies (or only
    // that of company id when it is above 0, none below 0), one plain line each; empty when
    // nothing is.
    QStringList damage(int companyId = 0) const;
    // Clears what a killed writer leaves behind: temporary files of unfinished saves, and
    // program files that belong to no company (set aside as N.dta.orphaned, so that a new
    // company never takes over another's programs). Call it holding the home lock, after
    // completeInterruptedDeletion. Returns what was set aside, one plain line each.
    QStringList clearCrashLeftovers();

private:
    bool deleteCompanyNow(int n);
    bool completeDeletionNow();
    bool completeInterruptedSave();
    bool applySave(const SaveIntent& intent);
    std::vector<int> companyIds() const;
    QString checkIntentAgainstFiles(const DeletionIntent& intent) const;
    bool runDeletion(DeletionIntent intent, int lastPhase);
    bool saveIntent(const DeletionIntent& intent);
    bool compactCompanies(const DeletionIntent& intent);
    bool finishMove(const DeletionIntent::Move& m);
    QString setAsidePath(int fileNumber, bool doomed) const;
    bool setAside(int fileNumber, bool doomed);

    AppHome m_home;
    QString m_error;
    bool m_batching = false;
    mutable PendingFiles m_pending;
    mutable std::map<int, QStringList> m_programNames; // by company id, while batching
};

} // namespace brevaro
