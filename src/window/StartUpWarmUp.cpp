#include "window/StartUpWarmUp.h"

#include "platform/Threads.h"

#include <QAccessible>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <dlfcn.h>
#include <locale.h>
#endif

namespace brevaro {

namespace {

// Before the application object, the font configuration library is used only when it is
// already loaded (with Qt's graphics library), so nothing is loaded that Qt would not load.
// Its numbers are read in a locale of this thread's own: the application sets the program's
// locale meanwhile.
void readFontConfiguration() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    void* library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return;
    // Reading it twice at once (here and for a first text) is safe: the library keeps one.
    if (auto init = reinterpret_cast<int (*)()>(dlsym(library, "FcInit"))) {
        locale_t plain = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
        if (plain)
            uselocale(plain);
        init();
        if (plain) {
            uselocale(LC_GLOBAL_LOCALE);
            freelocale(plain);
        }
    }
    dlclose(library);
#endif
}

// With the application object: the list of fonts and the styles of the window's font family are
// shared by all threads; the font itself is loaded again by the window's thread.
void readFonts() {
    QFontDatabase::families();
    QFontMetrics(QGuiApplication::font()).height();
}

} // namespace

bool StartUpWarmUp::readsBeforeApplication() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID") ||
        qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
        return false;
    // The places D-Bus looks for the session's bus before it would start one.
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus"));
#else
    return false;
#endif
}

StartUpWarmUp::StartUpWarmUp() {
    if (readsBeforeApplication())
        m_fonts = std::async(kThreadOrHere, readFontConfiguration);
}

StartUpWarmUp::~StartUpWarmUp() {
    wait();
}

void StartUpWarmUp::applicationStarted() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (!m_fonts.valid())
        m_fonts = std::async(kThreadOrHere, readFonts);
#endif
    QAccessible::isActive();
}

void StartUpWarmUp::wait() {
    if (m_fonts.valid())
        m_fonts.get();
}

} // namespace brevaro
