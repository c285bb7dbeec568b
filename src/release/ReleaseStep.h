#pragma once

#include "records/ProgramRecord.h"
#include "release/DistributionFile.h"

#include <QDate>
#include <QStringList>
#include <optional>
#include <vector>

namespace brevaro {

// What an author gives for a release: the new version, the distribution files (the first is
// the primary download, then the secondary and the two additional ones), the release date and
// the change notes (none: the change information stays as it is).
struct ReleaseInput {
    QString version;
    std::vector<DistributionFile> files;
    QDate date;
    std::optional<QString> changes;
};

// The most distribution files a release takes: one per download address of a program.
inline constexpr int kReleaseFiles = 4;

// One field a release changes, with its caption and its texts before and after.
struct ReleaseChange {
    QString field;
    QString caption;
    QString before;
    QString after;
};

// The program as a release leaves it, what changes, and what it leaves as it is, in words.
struct ReleasePlan {
    ProgramRecord program;
    std::vector<ReleaseChange> changes;
    QStringList notes;
};

// What is wrong with the input, in plain words; empty when a release can be planned.
QString releaseInputProblem(const ReleaseInput& input);

// Computes every field the release changes (version, date, file names and sizes as File Info
// fills them from the first file, the SHA-256 of each file, the download addresses from the
// program's address pattern, the change information and the release history). Planning the
// same input again over its result changes nothing.
ReleasePlan planRelease(const ProgramRecord& program, const ReleaseInput& input);

// The download address fields in the order of the distribution files, and the extra field
// holding the SHA-256 of each.
int downloadAddressField(int slot);
QString downloadHashField(int slot);

// The version a release proposes after current: its last number counted up ("2.4.1" gives
// "2.4.2", "2.9" gives "2.10"); "1.0" when there is none; current itself when it does not end
// in a number.
QString proposedVersion(const QString& current);

// The address pattern with {version} and {file} replaced.
QString downloadAddress(const QString& pattern, const QString& version, const QString& file);

// The release history: one "VERSION DATE" line each, newest first.
struct ReleaseEntry {
    QString version;
    QDate date;
};
std::vector<ReleaseEntry> releaseHistory(const ProgramRecord& program);

} // namespace brevaro
