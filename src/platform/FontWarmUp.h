#pragma once

#include <thread>

namespace brevaro {

// Reads the desktop's font configuration on another thread while the program connects to the
// display and opens its data, so that the window's first text does not wait for it (on Linux,
// reading it parses some sixty files). Where the fonts come from elsewhere (Windows, macOS), no
// thread can be made, or the platform will take a launcher's start-up token out of the
// environment while the application starts (it must not change while another thread reads
// it), it does nothing and the first text reads the configuration itself.
class FontWarmUp {
public:
    FontWarmUp();
    ~FontWarmUp();
    FontWarmUp(const FontWarmUp&) = delete;
    FontWarmUp& operator=(const FontWarmUp&) = delete;

    // Returns once the configuration has been read; true if it was read here.
    bool wait();

private:
    std::thread m_thread;
    bool m_read = false;
};

} // namespace brevaro
