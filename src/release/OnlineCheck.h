#pragma once

#include "records/ProgramRecord.h"
#include "release/DistributionFile.h"

#include <QObject>
#include <QString>
#include <vector>

namespace brevaro {

class HttpTransfer;

// What a release put online, to be fetched and compared: an address and the local file its
// bytes must equal.
struct OnlineTarget {
    QString url;
    QString localPath;
};

// What a fetch found at an address.
struct OnlineResult {
    enum class Outcome { Matches, DiffersSize, DiffersHash, Unreachable, Cancelled };
    Outcome outcome = Outcome::Unreachable;
    QString url;
    QString detail; // in plain words: the sizes, or why the address could not be read
};

// "matches", "differs (size)", "differs (hash)", "unreachable" or "cancelled".
QString outcomeName(OnlineResult::Outcome outcome);

// Fetches each address in turn (redirects followed, bounded in time and size as every
// transfer is: at most one byte more than the local file is taken) and compares the size and
// SHA-256 of what arrived with the local file. cancel() stops the transfer under way at once
// and skips the rest.
class OnlineCheck : public QObject {
    Q_OBJECT
public:
    explicit OnlineCheck(QObject* parent = nullptr);
    ~OnlineCheck() override;

    // Time without data before an address counts as unreachable; 30 s unless set (for tests).
    void setIdleLimit(int milliseconds) { m_idleMs = milliseconds; }
    std::vector<OnlineResult> run(const std::vector<OnlineTarget>& targets);
    void cancel();

signals:
    // Before each address: its number (from 0) and how many there are.
    void progress(int index, int count, const QString& url);

private:
    OnlineResult fetchOne(const OnlineTarget& target);

    HttpTransfer* m_transfer;
    int m_idleMs = 30000;
    bool m_cancelled = false;
};

// What a release put online: each download address that has a distribution file with that
// file, and the PAD file's own address with the PAD file as written at padPath.
std::vector<OnlineTarget> onlineTargets(const ProgramRecord& program,
                                        const std::vector<DistributionFile>& files,
                                        const QString& padPath);

// True when every result matches.
bool allMatch(const std::vector<OnlineResult>& results);

} // namespace brevaro
