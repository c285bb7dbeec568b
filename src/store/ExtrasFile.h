#pragma once

#include "records/FixedRecord.h"

#include <QByteArray>
#include <QStringList>
#include <vector>

namespace brevaro {

// The companion of one record file ("N.dta" has "N.extra.json"): for the records that have
// any, the values their bytes cannot hold. An entry names its record by number and by the
// record's name, so that an entry whose record went (a deletion by a program that does not
// know the companion) is never taken for another record's.
struct ExtrasEntry {
    int number = 0;
    QString name; // the record's name as the record holds it, trimmed
    FixedRecord::Extras later;
    FixedRecord::Extras whole;
};

struct ExtrasFile {
    int recordCount = 0; // how many records the record file held when this was written
    std::vector<ExtrasEntry> entries;

    static constexpr qint64 kMaxBytes = qint64(64) * 1024 * 1024;
    static constexpr int kMaxValueLength = 100'000;

    // UTF-8 JSON; the entries in record order.
    QByteArray toBytes() const;
    // Reads leniently: what cannot be an entry (a bad number, a value that is not text, a
    // name twice) is left out and said in *problems, one plain line each; bytes that are not
    // a companion at all give no entries and one line.
    static ExtrasFile parse(const QByteArray& bytes, QStringList* problems);

    // Gives every entry the number of its record among names (the trimmed record names, in
    // record order): the record of its number when the names agree, else the one record of
    // its name. Entries that find no record are left out and returned.
    std::vector<ExtrasEntry> matchRecords(const QStringList& names);
    // The entry of record n, or nullptr.
    const ExtrasEntry* entry(int n) const;
    // Sets (or with empty values removes) the entry of record n.
    void setEntry(int n, const QString& name, const FixedRecord& record);
    // Record n went: its entry goes, and the later entries move down by one.
    void removeRecord(int n);
};

} // namespace brevaro
