#include "platform/FontWarmUp.h"

#include <QtGlobal>
#include <system_error>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <dlfcn.h>
#include <locale.h>
#endif

namespace brevaro {

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)

namespace {

// The font configuration library is loaded with Qt's own graphics library; it is used only
// when it is already there, so nothing is loaded that Qt would not load. Its numbers are read
// in a locale of this thread's own: the application sets the program's locale meanwhile.
bool readFontConfiguration() {
    void* library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return false;
    bool read = false;
    // Reading it twice at once (here and for a first text) is safe: the library keeps one.
    if (auto init = reinterpret_cast<int (*)()>(dlsym(library, "FcInit"))) {
        locale_t plain = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
        if (plain)
            uselocale(plain);
        read = init() != 0;
        if (plain) {
            uselocale(LC_GLOBAL_LOCALE);
            freelocale(plain);
        }
    }
    dlclose(library);
    return read;
}

} // namespace

FontWarmUp::FontWarmUp() {
    // The display's platform removes these from the environment while the application starts.
    if (qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID") ||
        qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
        return;
    try {
        m_thread = std::thread([this] { m_read = readFontConfiguration(); });
    } catch (const std::system_error&) {
        // No thread to spare: the first text reads the configuration.
    }
}

#else

FontWarmUp::FontWarmUp() = default;

#endif

FontWarmUp::~FontWarmUp() {
    wait();
}

bool FontWarmUp::wait() {
    if (m_thread.joinable())
        m_thread.join();
    return m_read;
}

} // namespace brevaro
