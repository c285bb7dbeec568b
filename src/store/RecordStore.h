#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "store/AppHome.h"
#include "store/RecordFile.h"

#include <QStringList>

namespace brevaro {

// The company file and the per-company program files of one home. A company's CompanyID is
// its record number and names its program file; deleting a company renumbers the companies
// after it and moves their program files along, so every company keeps its own programs.
class RecordStore {
public:
    explicit RecordStore(AppHome home);

    const AppHome& home() const { return m_home; }
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
    bool completeInterruptedDeletion();

    const QString& errorString() const { return m_error; }

private:
    bool runDeletion(QStringList steps, int phase);
    bool runDeletionStep(const QString& step);
    bool saveIntent(const QStringList& steps, int phase);

    AppHome m_home;
    QString m_error;
};

} // namespace brevaro
