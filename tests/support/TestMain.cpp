#include <QCoreApplication>
#include <gtest/gtest.h>

// Tests run inside an application object, so that network transfers and timers work.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
