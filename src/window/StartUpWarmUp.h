#pragma once

#include <thread>

namespace brevaro {

// The two slow preparations of the first window, made side by side once the application object
// exists: the desktop's fonts (their configuration, some sixty files, and their list) are read
// on another thread while this thread connects to the desktop's accessibility service (over
// D-Bus, which is started on demand where no session bus runs: milliseconds of waiting that
// the first control would otherwise spend idle). Where no thread can be made, the first text
// reads the fonts itself.
class StartUpWarmUp {
public:
    StartUpWarmUp();
    ~StartUpWarmUp();
    StartUpWarmUp(const StartUpWarmUp&) = delete;
    StartUpWarmUp& operator=(const StartUpWarmUp&) = delete;

    // Returns once the fonts have been read; build the window after it.
    void wait();

private:
    std::thread m_fonts;
};

} // namespace brevaro
