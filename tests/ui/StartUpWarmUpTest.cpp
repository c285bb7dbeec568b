#include "window/StartUpWarmUp.h"

#include <QByteArray>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;

namespace {

// Sets an environment variable for the life of the object, then puts back what was there.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const QByteArray& value)
        : m_name(name)
        , m_had(qEnvironmentVariableIsSet(name))
        , m_old(qgetenv(name)) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    ~ScopedEnv() { m_had ? qputenv(m_name, m_old) : qunsetenv(m_name); }

private:
    const char* m_name;
    bool m_had;
    QByteArray m_old;
};

} // namespace

// The fonts are read beside the application's start only where a session bus is found where
// D-Bus looks for it, and never while a launcher's start-up token is in the environment.
TEST(StartUpWarmUp, ReadsBeforeTheApplicationOnlyWhereASessionBusRuns) {
#if defined(Q_OS_LINUX)
    QTemporaryDir runtime;
    ScopedEnv noStartup("DESKTOP_STARTUP_ID", QByteArray());
    ScopedEnv noToken("XDG_ACTIVATION_TOKEN", QByteArray());
    ScopedEnv runtimeDir("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    {
        ScopedEnv noAddress("DBUS_SESSION_BUS_ADDRESS", QByteArray());
        EXPECT_FALSE(StartUpWarmUp::readsBeforeApplication());
        QFile socket(runtime.filePath(QStringLiteral("bus")));
        ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
        EXPECT_TRUE(StartUpWarmUp::readsBeforeApplication());
    }
    ScopedEnv address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/run/user/1000/bus");
    EXPECT_TRUE(StartUpWarmUp::readsBeforeApplication());
    for (const char* token : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        ScopedEnv launched(token, "launcher-1");
        EXPECT_FALSE(StartUpWarmUp::readsBeforeApplication()) << token;
    }
#else
    EXPECT_FALSE(StartUpWarmUp::readsBeforeApplication());
#endif
}

// Either way the fonts are ready once it has been waited for; waiting twice, or not at all,
// neither blocks nor leaves the thread behind.
TEST(StartUpWarmUp, TheFontsAreReadyAfterTheWait) {
    for (const QByteArray& address : {QByteArray(), QByteArray("unix:path=/nowhere/bus")}) {
        ScopedEnv bus("DBUS_SESSION_BUS_ADDRESS", address);
        StartUpWarmUp warmUp;
        warmUp.applicationStarted();
        warmUp.wait();
        warmUp.wait();
        EXPECT_FALSE(QFontDatabase::families().isEmpty());
        EXPECT_GT(QFontMetrics(QGuiApplication::font()).height(), 0);
    }
    StartUpWarmUp unwaited; // its thread ends with it
    unwaited.applicationStarted();
}
