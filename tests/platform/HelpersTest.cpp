#include "platform/DayNumbers.h"
#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QStringDecoder>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;

// Positions count from 1; 0 means not found.
TEST(StringHelpers, FindFromCountsFromOne) {
    EXPECT_EQ(findFrom(1, u"abcabc", u"bc"), 2);
    EXPECT_EQ(findFrom(3, u"abcabc", u"bc"), 5);
    EXPECT_EQ(findFrom(6, u"abcabc", u"bc"), 0);
    EXPECT_EQ(findFrom(99, u"abc", u"a"), 0);
    EXPECT_EQ(findFrom(0, u"abc", u"a"), 1);
    EXPECT_EQ(findFrom(1, u"abc", u""), 0);
}

TEST(DayNumbers, DifferencesAndForms) {
    EXPECT_EQ(dayNumber(QDate(2026, 3, 1)) - dayNumber(QDate(2026, 2, 28)), 1);
    EXPECT_EQ(dayNumber(QStringLiteral("2024-03-01")) - dayNumber(QStringLiteral("02/28/2024")), 2);
    EXPECT_EQ(dayNumber(QStringLiteral("1970-01-02")), 1);
    EXPECT_EQ(dayNumber(QStringLiteral("yesterday")), 0);
    EXPECT_EQ(dayNumber(QStringLiteral("2024-02-30")), 0);
    EXPECT_EQ(dateText(QDate(2026, 1, 5)), QStringLiteral("2026-01-05"));
}

// Our table agrees with Qt's own codec on every byte, both ways; the five bytes the set leaves
// undefined stay themselves.
TEST(Win1252, AgreesWithQtOnEveryByte) {
    QStringDecoder decoder("windows-1252");
    ASSERT_TRUE(decoder.isValid());
    for (int b = 0; b < 256; ++b) {
        const char byte = static_cast<char>(b);
        const QString ours = fromWin1252(&byte, 1);
        const QString qts = decoder.decode(QByteArray(1, byte));
        const bool undefined = b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 || b == 0x9D;
        if (undefined)
            EXPECT_EQ(ours, QString(QChar(char16_t(b)))) << b;
        else
            EXPECT_EQ(ours, qts) << b;
        EXPECT_EQ(toWin1252(ours), QByteArray(1, byte)) << b;
    }
    EXPECT_EQ(toWin1252(u"\u0100\u20AC"), QByteArray("?\x80"));
}

// Bounded reads take regular files only; a full disk is called that.
TEST(FileHelpers, BoundedReadsAndPlainWriteErrors) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("f"));
    QByteArray bytes, out;
    QString error;
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("12345");
    }
    EXPECT_TRUE(readRegularFile(path, 5, &out, &error));
    EXPECT_EQ(out, QByteArray("12345"));
    EXPECT_FALSE(readRegularFile(path, 4, &out, &error));
    EXPECT_FALSE(readRegularFile(dir.path(), 100, &out, &error));
    EXPECT_FALSE(readRegularFile(QStringLiteral("/dev/zero"), 100, &out, &error));
    EXPECT_FALSE(readRegularFile(dir.filePath(QStringLiteral("none")), 100, &out, &error));
    ByteBlock block;
    EXPECT_TRUE(readRegularFile(path, 5, &block, &error));
    EXPECT_EQ(QByteArray(block.data(), qsizetype(block.size())), QByteArray("12345"));
    EXPECT_FALSE(readRegularFile(path, 4, &block, &error));
    EXPECT_TRUE(block.empty());
    EXPECT_FALSE(readRegularFile(QStringLiteral("/dev/zero"), 100, &block, &error));

    QFile full(QStringLiteral("/dev/full"));
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_NE(full.write(QByteArray(100, 'x')), 100);
    EXPECT_EQ(plainWriteError(full, 100), QStringLiteral("the disk is full"));
    EXPECT_TRUE(writeFileAtomically(path, "new", &error));
    EXPECT_FALSE(writeFileAtomically(dir.filePath(QStringLiteral("no/f")), "x", &error));
    EXPECT_TRUE(error.contains(QStringLiteral("does not exist"))) << error.toStdString();
}

TEST(StringHelpers, EscapeControls) {
    EXPECT_EQ(escapeControls(u"a\nb\tc\rd\x1b[0m\\ \u0085 \u00e9"),
              QStringLiteral("a\\nb\\tc\\rd\\x1b[0m\\\\ \\x85 \u00e9"));
}
