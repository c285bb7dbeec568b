#pragma once

#include <thread>

namespace brevaro {

// Reads the desktop's fonts (their configuration, some sixty files, and their list) on another
// thread while the first window's other slow preparations go on, so that its first text does
// not wait for them. Which preparation it runs beside depends on the desktop:
// - where a session bus runs, beside the application object's start (connecting to the display);
// - where none runs, beside connecting to the accessibility service, which first starts a bus
//   (milliseconds of waiting that the reading fills, where beside the application's start it
//   would only compete with it for the processor).
// Where no thread can be made, the first text reads the fonts itself.
class StartUpWarmUp {
public:
    // Made before the application object.
    StartUpWarmUp();
    ~StartUpWarmUp();
    StartUpWarmUp(const StartUpWarmUp&) = delete;
    StartUpWarmUp& operator=(const StartUpWarmUp&) = delete;

    // Called once the application object exists: connects to the accessibility service.
    void applicationStarted();
    // Returns once the fonts have been read; build the window after it.
    void wait();

    // Whether the fonts are read before the application object exists: a session bus runs,
    // and no launcher's start-up token is in the environment (the platform takes it out while
    // the application starts, and the environment must not change while another thread reads).
    static bool readsBeforeApplication();

private:
    std::thread m_fonts;
};

} // namespace brevaro
