#include "platform/DayNumbers.h"
#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

#include <QStringDecoder>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

// Positions count from 1, 0 meaning not found; control characters escaped for a terminal.
TEST(StringHelpers, FindFromAndEscapeControls) {
    EXPECT_EQ(findFrom(1, u"abcabc", u"bc"), 2);
    EXPECT_EQ(findFrom(3, u"abcabc", u"bc"), 5);
    EXPECT_EQ(findFrom(6, u"abcabc", u"bc"), 0);
    EXPECT_EQ(findFrom(99, u"abc", u"a"), 0);
    EXPECT_EQ(findFrom(0, u"abc", u"a"), 1);
    EXPECT_EQ(findFrom(1, u"abc", u""), 0);
    EXPECT_EQ(escapeControls(u"a\nb\tc\rd\x1b[0m\\ \u0085 \u00e9"),
              u"a\\nb\\tc\\rd\\x1b[0m\\\\ \\x85 \u00e9"_s);
}

TEST(DayNumbers, DifferencesAndForms) {
    EXPECT_EQ(dayNumber(QDate(2026, 3, 1)) - dayNumber(QDate(2026, 2, 28)), 1);
    EXPECT_EQ(dayNumber(u"2024-03-01"_s) - dayNumber(u"02/28/2024"_s), 2);
    EXPECT_EQ(dayNumber(u"1970-01-02"_s), 1);
    EXPECT_EQ(dayNumber(u"yesterday"_s), 0);
    EXPECT_EQ(dayNumber(u"2024-02-30"_s), 0);
    EXPECT_EQ(dateText(QDate(2026, 1, 5)), u"2026-01-05"_s);
}

// The quick reader takes back every date the program writes and nothing else.
TEST(DayNumbers, DateFromTextTakesOnlyTheWrittenForm) {
    for (QDate d(1999, 12, 25); d < QDate(2001, 3, 5); d = d.addDays(1))
        ASSERT_EQ(dateFromText(dateText(d)), d) << qPrintable(dateText(d));
    for (const QString& bad :
         {u"2026-1-05"_s, u"2026-02-30"_s, u"2026-13-01"_s, u"2026-01-05 "_s, u"2026/01/05"_s,
          u"20x6-01-05"_s, u"\u0662\u0660\u0662\u0666-01-05"_s, QString()})
        EXPECT_FALSE(dateFromText(bad).isValid()) << qPrintable(bad);
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
    const QString path = dir.filePath(u"f"_s);
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
    EXPECT_FALSE(readRegularFile(u"/dev/zero"_s, 100, &out, &error));
    EXPECT_FALSE(readRegularFile(dir.filePath(u"none"_s), 100, &out, &error));
    ByteBlock block;
    EXPECT_TRUE(readRegularFile(path, 5, &block, &error));
    EXPECT_EQ(QByteArray(block.data(), qsizetype(block.size())), QByteArray("12345"));
    EXPECT_FALSE(readRegularFile(path, 4, &block, &error));
    EXPECT_TRUE(block.empty());
    EXPECT_FALSE(readRegularFile(u"/dev/zero"_s, 100, &block, &error));

    QFile full(u"/dev/full"_s);
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_NE(full.write(QByteArray(100, 'x')), 100);
    EXPECT_EQ(plainWriteError(full, 100), u"the disk is full"_s);
    EXPECT_TRUE(writeFileAtomically(path, "new", &error));
    EXPECT_FALSE(writeFileAtomically(dir.filePath(u"no/f"_s), "x", &error));
    EXPECT_TRUE(error.contains(u"does not exist"_s)) << error.toStdString();

    // Several at once: one that cannot be written does not keep the others from being written.
    const QByteArray first("first"), second("second"), third("third");
    std::vector<FileToWrite> files{{dir.filePath(u"a"_s), &first, {}},
                                   {dir.filePath(u"no/b"_s), &second, {}},
                                   {path, &third, {}}};
    EXPECT_FALSE(writeFilesAtomically(files));
    EXPECT_TRUE(files[0].error.isEmpty());
    EXPECT_TRUE(files[1].error.contains(u"does not exist"_s)) << files[1].error.toStdString();
    EXPECT_TRUE(files[2].error.isEmpty());
    EXPECT_TRUE(readRegularFile(dir.filePath(u"a"_s), 100, &out, &error));
    EXPECT_EQ(out, first);
    EXPECT_TRUE(readRegularFile(path, 100, &out, &error));
    EXPECT_EQ(out, third);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 2); // no temporary files are left
}
