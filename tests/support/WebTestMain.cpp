#include <QApplication>
#include <gtest/gtest.h>

// Web tests start like the program: the shared OpenGL contexts the web engine needs are set
// before main() by the browser's loader (linked here) or by the web engine itself.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
