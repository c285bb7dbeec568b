#include <QApplication>
#include <gtest/gtest.h>

// Web view tests: the web engine wants OpenGL contexts shared before the application exists.
int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
