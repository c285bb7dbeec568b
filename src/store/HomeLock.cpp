#include "store/HomeLock.h"

#include <QDir>
#include <QSysInfo>
#include <QThread>

namespace brevaro {

HomeLock::HomeLock(const AppHome& home)
    : m_home(home) {}

std::optional<HomeLock::Owner> HomeLock::readOwner() const {
    Owner owner;
    if (!m_lock->getLockInfo(&owner.pid, &owner.host, &owner.application))
        return std::nullopt;
    return owner;
}

bool HomeLock::acquire(QString* message) {
    if (!m_home.createFolders()) {
        *message =
            QStringLiteral("The data folder %1 cannot be created or written.").arg(m_home.root());
        return false;
    }
    m_lock = std::make_unique<QLockFile>(m_home.lockFile());
    // Qt takes over a lock of this computer whose process is gone; the rest is decided here.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0))
        return true;
    if (m_lock->error() != QLockFile::LockFailedError) {
        *message = QStringLiteral("The data folder %1 cannot be written.").arg(m_home.root());
        return false;
    }
    auto owner = readOwner();
    if (!owner) {
        // A writer writes its lock file right after creating it: look once more, then take
        // the unreadable lock over (Qt removes it only when no living process holds it).
        QThread::msleep(100);
        owner = readOwner();
        if (!owner && m_lock->removeStaleLockFile() && m_lock->tryLock(0))
            return true;
    }
    const QString thisHost = QSysInfo::machineHostName();
    if (owner && !owner->host.isEmpty() && owner->host != thisHost) {
        *message = QStringLiteral("The data in %1 is in use by Brevaro on the computer %2 "
                                  "(process %3). Close it there; if it no longer runs, delete "
                                  "%4 and try again.")
                       .arg(m_home.root(), owner->host)
                       .arg(owner->pid)
                       .arg(QDir::toNativeSeparators(m_home.lockFile()));
        return false;
    }
    *message = QStringLiteral("The data in %1 is in use by another Brevaro window or "
                              "command%2. Close it and try again.")
                   .arg(m_home.root(),
                        owner ? QStringLiteral(" (process %1)").arg(owner->pid) : QString());
    return false;
}

} // namespace brevaro
