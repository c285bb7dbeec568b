#pragma once

#include "store/AppHome.h"

#include <QLockFile>
#include <memory>
#include <optional>

namespace brevaro {

// Keeps a second window or command-line writer off the same home while this one runs.
class HomeLock {
public:
    explicit HomeLock(const AppHome& home);

    // Takes the lock; false with a message for the user when another writer holds it or the
    // home cannot be written. A lock whose owner is gone, or whose file cannot be read (a
    // writer killed while creating it), is stale and taken over.
    bool acquire(QString* message);
    bool isLocked() const { return m_lock && m_lock->isLocked(); }

private:
    // Who holds the lock, as its file says; nothing when the file does not say so.
    struct Owner {
        qint64 pid = 0;
        QString application;
        QString host;
    };
    std::optional<Owner> readOwner() const;

    AppHome m_home;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace brevaro
