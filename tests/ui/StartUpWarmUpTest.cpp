#include "window/StartUpWarmUp.h"

#include <QByteArray>
#include <QFile>
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
    ASSERT_TRUE(runtime.isValid());
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

// On either path, waiting twice, or not at all, neither blocks nor leaves the thread behind.
TEST(StartUpWarmUp, EndsItsThreadOnEveryPath) {
    QTemporaryDir runtime;
    ASSERT_TRUE(runtime.isValid());
    ScopedEnv runtimeDir("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    for (const QByteArray& address : {QByteArray(), QByteArray("unix:path=/nowhere/bus")}) {
        ScopedEnv bus("DBUS_SESSION_BUS_ADDRESS", address);
        StartUpWarmUp warmUp;
        warmUp.applicationStarted();
        warmUp.wait();
        warmUp.wait();
        StartUpWarmUp unwaited; // its thread ends with it
        unwaited.applicationStarted();
    }
}
