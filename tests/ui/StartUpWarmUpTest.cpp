#include "window/StartUpWarmUp.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <gtest/gtest.h>

using namespace brevaro;

// The warm-up's thread reads the fonts with the application object in place; waiting for it
// twice, or not at all, neither blocks nor leaves the thread behind, and the window's thread
// finds the fonts ready.
TEST(StartUpWarmUp, ReadsTheFontsBesideTheWindowsThread) {
    {
        StartUpWarmUp warmUp;
        warmUp.wait();
        warmUp.wait();
        EXPECT_FALSE(QFontDatabase::families().isEmpty());
        EXPECT_GT(QFontMetrics(QGuiApplication::font()).height(), 0);
    }
    StartUpWarmUp unwaited; // its thread ends with it
}
