#pragma once

#include <future>

namespace brevaro {

// Reads the desktop's fonts on another thread while the first window's other slow preparations
// go on, so that its first text does not wait for them. What it reads, and beside what, depends
// on the desktop:
// - where a session bus runs, the font configuration (dozens of files), beside the application
//   object's start (connecting to the display);
// - where none runs, the configuration and the list of fonts, beside connecting to the
//   accessibility service, which first starts a bus (milliseconds of waiting that the reading
//   fills, where beside the application's start it would only compete for the processor).
// Elsewhere than Linux the first text reads the fonts; where no thread can be made, wait() does.
class StartUpWarmUp {
public:
    // Made before the application object.
    StartUpWarmUp();
    ~StartUpWarmUp();
    StartUpWarmUp(const StartUpWarmUp&) = delete;
    StartUpWarmUp& operator=(const StartUpWarmUp&) = delete;

    // Called once the application object exists: starts the reading if the constructor did
    // not, then connects to the accessibility service (which can wait while D-Bus starts a bus).
    void applicationStarted();
    // Returns once the fonts have been read; build the window after it, and call it before the
    // application object is destroyed.
    void wait();

    // Whether the fonts are read before the application object exists: a session bus runs,
    // and no launcher's start-up token is in the environment (the platform takes it out while
    // the application starts, and the environment must not change while another thread reads).
    static bool readsBeforeApplication();

private:
    std::future<void> m_fonts;
};

} // namespace brevaro
