#include "platform/FontWarmUp.h"

#include <QtGlobal>
#include <system_error>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <dlfcn.h>
#endif

namespace brevaro {

namespace {

// The font configuration library is loaded with Qt's own graphics library; it is used only
// when it is already there, so nothing is loaded that Qt would not load.
void readFontConfiguration() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    void* library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return;
    // Reading it twice at once (here and for the first text) is safe: the library keeps one.
    if (auto init = reinterpret_cast<int (*)()>(dlsym(library, "FcInit")))
        init();
    dlclose(library);
#endif
}

} // namespace

FontWarmUp::FontWarmUp() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    try {
        m_thread = std::thread(readFontConfiguration);
    } catch (const std::system_error&) {
        // No thread to spare: the first text reads the configuration.
    }
#endif
}

FontWarmUp::~FontWarmUp() {
    wait();
}

void FontWarmUp::wait() {
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace brevaro
