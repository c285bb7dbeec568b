#include "platform/FontWarmUp.h"

#include <QByteArray>
#include <QtGlobal>
#include <gtest/gtest.h>

using namespace brevaro;

// Where Qt's fonts come from the font configuration library (loaded here with Qt's graphics
// library), the warm-up reads the configuration on its thread; not while a launcher's start-up
// token is in the environment, which the platform takes out as the application starts.
TEST(FontWarmUp, ReadsTheConfigurationUnlessALauncherTokenIsSet) {
#if defined(Q_OS_LINUX)
    {
        FontWarmUp fonts;
        EXPECT_TRUE(fonts.wait());
        EXPECT_TRUE(fonts.wait());
    }
    for (const char* token : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        qputenv(token, QByteArrayLiteral("launcher-1"));
        FontWarmUp fonts;
        EXPECT_FALSE(fonts.wait()) << token;
        qunsetenv(token);
    }
#endif
    FontWarmUp unwaited; // its thread ends with it
}
