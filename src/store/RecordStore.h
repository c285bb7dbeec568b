#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "store/AppHome.h"
#include "store/DeletionIntent.h"
#include "store/ExtrasFile.h"
#include "store/RecordFile.h"
#include "store/SaveIntent.h"

#include <QStringList>
#include <functional>

namespace brevaro {

// The company file and the per-company program files of one home. A company's CompanyID is
// its record number and names its program file; deleting a company renumbers the companies
// after it and moves their program files along, so every company keeps its own programs.
// Each record file may have a companion (ExtrasFile) with the values its records cannot hold;
// it is read, written, renumbered and moved with the records, so a record read from the
// store carries its extra values, and one written keeps them.
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
    struct CachedExtras {
        qint64 size = -1;
        qint64 modified = 0;
        ExtrasFile file;
    };
    // The companion of a record file as the store sees it (gathered changes included).
    ExtrasFile extrasOf(const QString& recordPath) const;
    bool putExtras(const QString& recordPath, const ExtrasFile& file);
    void attachExtras(const QString& recordPath, int n, FixedRecord& record,
                      const std::function<QStringList()>& names) const;
    bool updateExtras(const QString& recordPath, int n, const FixedRecord& record,
                      const std::function<QStringList()>& names);
    QStringList extrasDamage(const QString& recordPath,
                             const std::function<QStringList()>& names) const;
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
    QString setAsidePath(const QString& path, bool doomed) const;
    bool setAside(const QString& path, bool doomed);
    bool compactCompanyExtras(const DeletionIntent& intent);

    AppHome m_home;
    QString m_error;
    bool m_batching = false;
    mutable PendingFiles m_pending;
    mutable std::map<int, QStringList> m_programNames; // by company id, while batching
    std::map<QString, ExtrasFile> m_pendingExtras;     // by record file, while batching
    mutable std::map<QString, CachedExtras> m_extrasCache;
};

} // namespace brevaro
