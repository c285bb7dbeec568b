#include "store/RecordFile.h"
#include "TestSupport.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

// Records of 8 bytes: 4 blanks of text and a 4-byte number, as blanks and zeros when empty.
QByteArray emptyRecord() {
    return QByteArray("    \0\0\0\0", 8);
}
QByteArray rec(char c) {
    return QByteArray(8, c);
}

} // namespace

TEST(RecordFile, CountRoundsHalfToEven) {
    // Records of a company's size, then of a program's: bytes, record size, records.
    const int cases[][3] = {{0, 842, 0},    {421, 842, 0},  {422, 842, 1},    {1263, 842, 2},
                            {1684, 842, 2}, {2105, 842, 2}, {64638, 32319, 2}};
    for (const auto& [bytes, size, count] : cases)
        EXPECT_EQ(RecordFile::countFor(bytes, size), count) << bytes; // 2.5 rounds to 2
    TempHome t;
    RecordFile missing(t.file(u"none.dta"_s), emptyRecord());
    EXPECT_EQ(missing.count(), 0);
    EXPECT_FALSE(missing.read(1).has_value());
}

TEST(RecordFile, WriteInPlaceTouchesOnlyThatRecordRemoveCompacts) {
    TempHome t;
    RecordFile f(t.file(u"x.dta"_s), emptyRecord());
    ASSERT_TRUE(f.append(rec('a')));
    ASSERT_TRUE(f.append(rec('b')));
    ASSERT_TRUE(f.append(rec('c')));
    ASSERT_TRUE(f.write(2, rec('B')));
    EXPECT_EQ(readBytes(f.path()), rec('a') + rec('B') + rec('c'));
    EXPECT_EQ(f.read(3).value(), rec('c'));
    EXPECT_FALSE(f.write(5, rec('z'))); // no gaps
    EXPECT_EQ(f.count(), 3);
    // No temporary file is left beside it.
    EXPECT_EQ(QDir(t.path()).entryList(QDir::Files), QStringList{u"x.dta"_s});

    // Removing compacts; the last removal leaves an empty file.
    f.writeAll({rec('1'), rec('2'), rec('3')});
    ASSERT_TRUE(f.remove(2));
    EXPECT_EQ(readBytes(f.path()), rec('1') + rec('3'));
    EXPECT_FALSE(f.remove(3));
    ASSERT_TRUE(f.remove(1));
    ASSERT_TRUE(f.remove(1));
    EXPECT_TRUE(f.exists());
    EXPECT_EQ(readBytes(f.path()).size(), 0);
}

TEST(RecordFile, DamagedFilesReadWithoutCrashing) {
    TempHome t;
    const QString path = t.file(u"x.dta"_s);
    RecordFile f(path, emptyRecord());
    // One and a half records: the partial one reads as blanks and zeros after its bytes.
    writeBytes(path, rec('a') + QByteArray("ab\xff\xfe", 4));
    ASSERT_EQ(f.count(), 2);
    EXPECT_EQ(f.read(2).value(), QByteArray("ab\xff\xfe\0\0\0\0", 8));
    const auto slices = [&f](int offset, int length) {
        std::vector<QByteArray> out;
        f.forEachSlice(offset, length,
                       [&](QByteArrayView slice) { out.push_back(slice.toByteArray()); });
        return out;
    };
    EXPECT_EQ(slices(0, 4).at(1), QByteArray("ab\xff\xfe"));
    EXPECT_EQ(slices(4, 4).at(1), QByteArray(4, '\0'));
    // A write leaves whole records only.
    ASSERT_TRUE(f.write(1, rec('z')));
    EXPECT_EQ(readBytes(path).size(), 16);

    // Trailing bytes under half a record are dropped by the next write.
    writeBytes(path, rec('a') + QByteArray(3, '\x01'));
    EXPECT_EQ(f.count(), 1);
    ASSERT_TRUE(f.append(rec('b')));
    EXPECT_EQ(readBytes(path), rec('a') + rec('b'));

    // Binary garbage of any length is still counted and read.
    QByteArray garbage;
    for (int i = 0; i < 1000; ++i)
        garbage += static_cast<char>(i * 37);
    writeBytes(path, garbage);
    EXPECT_EQ(f.count(), 125);
    EXPECT_EQ(f.readAll()->size(), 125u);
}

// A cut file is reported; a file far larger than any record file (a sparse one costs no disk)
// is never read whole nor rewritten; an unwritable place is an error.
TEST(RecordFile, DamageHugeFilesAndUnwritablePlaces) {
    TempHome t;
    const QString path = t.file(u"x.dta"_s);
    RecordFile f(path, emptyRecord());
    EXPECT_TRUE(f.damage().isEmpty()) << "a missing file is no damage";
    writeBytes(path, rec('a') + rec('b'));
    EXPECT_TRUE(f.damage().isEmpty());
    writeBytes(path, rec('a') + QByteArray(3, 'x'));
    EXPECT_TRUE(f.damage().contains(u"middle of a record"_s));

    QFile huge(path);
    ASSERT_TRUE(huge.open(QIODevice::ReadWrite));
    ASSERT_TRUE(huge.resize(qint64(4) * 1024 * 1024 * 1024));
    huge.close();
    EXPECT_TRUE(f.damage().contains(u"far larger"_s));
    EXPECT_EQ(f.read(1).value(), QByteArray(8, 'a')) << "one record is still read in place";
    EXPECT_FALSE(f.write(1, rec('z')));
    EXPECT_FALSE(f.errorString().isEmpty());
    EXPECT_FALSE(f.remove(1));
    EXPECT_FALSE(f.readAll().has_value());
    EXPECT_EQ(QFileInfo(path).size(), qint64(4) * 1024 * 1024 * 1024);

    // A place that cannot hold a file reports an error.
    writeBytes(t.file(u"plain"_s), "not a folder");
    RecordFile unwritable(t.file(u"plain/x.dta"_s), emptyRecord());
    EXPECT_FALSE(unwritable.append(rec('a')));
    EXPECT_FALSE(unwritable.errorString().isEmpty());
    EXPECT_EQ(unwritable.count(), 0);
}
