#pragma once

#include "store/AppHome.h"

#include <QLockFile>
#include <memory>

namespace brevaro {

// Keeps a second window or command-line writer off the same home while this one runs.
class HomeLock {
public:
    explicit HomeLock(const AppHome& home);

    // Takes the lock; false with a message for the user when another writer holds it or the
    // home cannot be written.
    bool acquire(QString* message);

private:
    AppHome m_home;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace brevaro
