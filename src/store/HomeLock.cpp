#include "store/HomeLock.h"

namespace brevaro {

HomeLock::HomeLock(const AppHome& home)
    : m_home(home) {}

bool HomeLock::acquire(QString* message) {
    if (!m_home.createFolders()) {
        *message =
            QStringLiteral("The data folder %1 cannot be created or written.").arg(m_home.root());
        return false;
    }
    m_lock = std::make_unique<QLockFile>(m_home.lockFile());
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0))
        return true;
    if (m_lock->error() == QLockFile::LockFailedError) {
        qint64 pid = 0;
        QString host, app;
        m_lock->getLockInfo(&pid, &host, &app);
        *message = QStringLiteral("The data in %1 is in use by another Brevaro window or "
                                  "command (process %2). Close it and try again.")
                       .arg(m_home.root())
                       .arg(pid);
    } else {
        *message = QStringLiteral("The data folder %1 cannot be written.").arg(m_home.root());
    }
    return false;
}

} // namespace brevaro
