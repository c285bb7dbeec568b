#include <QApplication>
#include <gtest/gtest.h>

// Widget tests run inside a QApplication (offscreen under CTest).
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
