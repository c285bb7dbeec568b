#include "window/SubmissionPluginLoader.h"

#include <QApplication>
#include <gtest/gtest.h>

// Web tests start like the program: what the web engine needs is set before the application.
int main(int argc, char** argv) {
    brevaro::prepareForSubmissionBrowser();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
