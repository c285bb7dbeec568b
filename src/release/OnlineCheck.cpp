#include "release/OnlineCheck.h"

#include "platform/HttpTransfer.h"
#include "release/DistributionFile.h"
#include "release/ReleaseStep.h"

#include <QDir>
#include <QTemporaryDir>

namespace brevaro {

QString outcomeName(OnlineResult::Outcome outcome) {
    switch (outcome) {
    case OnlineResult::Outcome::Matches:
        return QStringLiteral("matches");
    case OnlineResult::Outcome::DiffersSize:
        return QStringLiteral("differs (size)");
    case OnlineResult::Outcome::DiffersHash:
        return QStringLiteral("differs (hash)");
    case OnlineResult::Outcome::Unreachable:
        return QStringLiteral("unreachable");
    case OnlineResult::Outcome::Cancelled:
        break;
    }
    return QStringLiteral("cancelled");
}

OnlineCheck::OnlineCheck(QObject* parent)
    : QObject(parent)
    , m_transfer(new HttpTransfer(this)) {}

OnlineCheck::~OnlineCheck() = default;

void OnlineCheck::cancel() {
    m_cancelled = true;
    m_transfer->stop();
}

std::vector<OnlineResult> OnlineCheck::run(const std::vector<OnlineTarget>& targets) {
    m_cancelled = false;
    std::vector<OnlineResult> results;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (m_cancelled) {
            results.push_back({OnlineResult::Outcome::Cancelled, targets[i].url, QString()});
            continue;
        }
        emit progress(static_cast<int>(i), static_cast<int>(targets.size()), targets[i].url);
        results.push_back(fetchOne(targets[i]));
    }
    return results;
}

OnlineResult OnlineCheck::fetchOne(const OnlineTarget& target) {
    using O = OnlineResult::Outcome;
    DistributionFile local;
    QString error;
    if (!readDistributionFile(target.localPath, &local, &error))
        return {O::Unreachable, target.url, error};
    QTemporaryDir folder;
    if (!folder.isValid())
        return {O::Unreachable, target.url,
                QStringLiteral("no temporary folder: %1").arg(folder.errorString())};
    // One byte more than the local file is enough to tell that the file online is larger.
    qint64 received = 0;
    const auto counting =
        connect(m_transfer, &HttpTransfer::dataReceived, this,
                [&received](int, qint64 bytes, const QString&) { received += bytes; });
    m_transfer->reset();
    m_transfer->setUrl(target.url);
    m_transfer->setLocalFile(folder.filePath(QStringLiteral("download")));
    m_transfer->setLimits(m_idleMs, local.size + 1);
    m_transfer->fetch();
    disconnect(counting);
    if (m_cancelled)
        return {O::Cancelled, target.url, QStringLiteral("stopped")};
    if (received > local.size)
        return {O::DiffersSize, target.url,
                QStringLiteral("larger than the %1 bytes of %2").arg(local.size).arg(local.name)};
    if (!m_transfer->succeeded())
        return {O::Unreachable, target.url, m_transfer->errorString()};
    DistributionFile online;
    if (!readDistributionFile(folder.filePath(QStringLiteral("download")), &online, &error))
        return {O::Unreachable, target.url, error};
    if (online.size != local.size)
        return {O::DiffersSize, target.url,
                QStringLiteral("%1 bytes online, %2 in %3")
                    .arg(online.size)
                    .arg(local.size)
                    .arg(local.name)};
    if (online.sha256 != local.sha256)
        return {O::DiffersHash, target.url,
                QStringLiteral("same size, another SHA-256 than %1").arg(local.name)};
    return {O::Matches, target.url,
            QStringLiteral("%1 bytes, SHA-256 %2").arg(local.size).arg(local.sha256)};
}

std::vector<OnlineTarget> onlineTargets(const ProgramRecord& program,
                                        const std::vector<DistributionFile>& files,
                                        const QString& padPath) {
    std::vector<OnlineTarget> targets;
    for (std::size_t slot = 0; slot < files.size() && slot < kReleaseFiles; ++slot)
        if (const QString url = program.wholeText(downloadAddressField(static_cast<int>(slot)));
            !url.isEmpty())
            targets.push_back({url, files[slot].path});
    if (const QString pad =
            program.wholeText(static_cast<int>(ProgramField::ApplicationXMLFileURL));
        !pad.isEmpty())
        targets.push_back({pad, padPath});
    return targets;
}

bool allMatch(const std::vector<OnlineResult>& results) {
    return std::all_of(results.begin(), results.end(), [](const OnlineResult& r) {
        return r.outcome == OnlineResult::Outcome::Matches;
    });
}

} // namespace brevaro
