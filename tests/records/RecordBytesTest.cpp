#include "platform/StringHelpers.h"
#include "platform/Win1252.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;

namespace {

// Puts text at an offset, blank-padded, the way another program would write it from the table.
void put(QByteArray& bytes, int offset, int width, const char* text) {
    QByteArray field(text);
    field = field.leftJustified(width, ' ', true);
    bytes.replace(offset, width, field);
}

void put16(QByteArray& bytes, int offset, int value) {
    bytes[offset] = static_cast<char>(value & 0xFF);
    bytes[offset + 1] = static_cast<char>((value >> 8) & 0xFF);
}

} // namespace

TEST(RecordBytes, ProgramFlagsLandAtTheirOffsets) {
    ProgramRecord p;
    p.setNumber(ProgramField::OSSupported, -1, 1); // Win95
    p.setNumber(ProgramField::IncludesJavaVM, 1);
    p.setNumber(ProgramField::DescriptionActive, 1, 8);
    p.setNumber(ProgramField::TPAActivated, 1);
    const QByteArray& b = p.bytes();
    ASSERT_EQ(b.size(), 32319);
    EXPECT_EQ(static_cast<unsigned char>(b[142]), 0xFF);
    EXPECT_EQ(static_cast<unsigned char>(b[143]), 0xFF);
    EXPECT_EQ(b[140], 0);
    EXPECT_EQ(b[975], 1);
    EXPECT_EQ(b[976], 0);
    EXPECT_EQ(b[981 + 16], 1);
    EXPECT_EQ(b[32265], 1);
    p.setNumber(ProgramField::IncludesJavaVM, 0);
    EXPECT_EQ(p.bytes()[975], 0);
}

TEST(RecordBytes, ForeignBytesReadFieldByField) {
    QByteArray c(842, ' ');
    put16(c, 0, 7);
    c[2] = c[3] = 0;
    put(c, 4, 40, "Acme Tools");
    put(c, 184, 30, "Germany");
    put(c, 817, 25, "+49 30 1234");
    CompanyRecord company;
    company.setBytes(c);
    EXPECT_EQ(company.number(CompanyField::CompanyID), 7);
    EXPECT_EQ(company.text(CompanyField::CompanyName), u"Acme Tools"_s);
    EXPECT_EQ(company.text(CompanyField::Country), u"Germany"_s);
    EXPECT_EQ(company.text(CompanyField::FaxPhone), u"+49 30 1234"_s);

    QByteArray p(32319, ' ');
    // Numeric fields (offset, size) are zero; everything else starts blank.
    const std::pair<int, int> numeric[] = {{0, 4},      {140, 54}, {194, 18}, {410, 2},
                                           {422, 8},    {975, 6},  {981, 18}, {32228, 4},
                                           {32257, 12}, {32267, 2}};
    for (auto [offset, size] : numeric)
        p.replace(offset, size, QByteArray(size, '\0'));
    put(p, 4, 40, "Widget");
    put(p, 999 + 128 * 2, 128, "french words");
    put(p, 9576 + 2000 * 8, 2000, "russian long");
    put(p, 29228, 3000, "licence");
    put(p, 32294, 25, "Trialware");
    put16(p, 140 + 2 * 26, -1);
    put16(p, 422 + 2 * 3, -1);
    ProgramRecord program;
    program.setBytes(p);
    EXPECT_EQ(program.text(ProgramField::ProgramName), u"Widget"_s);
    EXPECT_EQ(program.text(ProgramField::Keywords, 2), u"french words"_s);
    EXPECT_EQ(program.text(ProgramField::CharDesc2000, 8), u"russian long"_s);
    EXPECT_EQ(program.text(ProgramField::EULA), u"licence"_s);
    EXPECT_EQ(program.text(ProgramField::TrialLicenseType), u"Trialware"_s);
    EXPECT_EQ(program.number(ProgramField::OSSupported, 26), -1);
    EXPECT_EQ(program.number(ProgramField::OSSupported, 25), 0);
    EXPECT_EQ(program.number(ProgramField::ExpireBasedOn, 3), -1);
}

TEST(RecordBytes, TextsAreCutOrBlankPadded) {
    CompanyRecord c;
    c.setText(CompanyField::CompanyName, QString(41, u'x'));
    EXPECT_EQ(c.rawText(CompanyField::CompanyName), QString(40, u'x'));
    c.setText(CompanyField::CompanyName, u"abc");
    EXPECT_EQ(c.rawText(CompanyField::CompanyName), u"abc"_s + QString(37, u' '));
    EXPECT_EQ(c.text(CompanyField::CompanyName), u"abc"_s);
    // The next field is untouched by either assignment.
    EXPECT_EQ(c.rawText(CompanyField::Address1), QString(30, u' '));

    c.setText(CompanyField::Address1, u"  two blanks\tand tab ");
    EXPECT_EQ(c.trimText(CompanyField::Address1), u"two blanks\tand tab"_s);
    EXPECT_EQ(c.rawText(CompanyField::Address1).left(19), u"two blanks\tand tab "_s);
}

// Whatever bytes another program left in a field (blanks anywhere, every byte value), the
// trimmed text is the raw text without its outer blanks, and trimming the field in place
// leaves exactly that text, blank-padded, with the rest of the record untouched and no stale
// whole text.
TEST(RecordBytes, TrimmingMatchesTheDecodedField) {
    QRandomGenerator random(1252);
    const char pool[] = {' ',  ' ',    ' ',    'a',    'Z',    '?',
                         '\t', '\x80', '\x81', '\x9f', '\xa0', '\xff'};
    for (int round = 0; round < 400; ++round) {
        ProgramRecord p;
        QByteArray bytes = p.bytes();
        const RecordField& f = programLayout().field(int(ProgramField::CharDesc450));
        const int entry = random.bounded(f.count);
        const int length = random.bounded(f.width + 1);
        for (int i = 0; i < length; ++i)
            bytes[f.entryOffset(entry) + i] = pool[random.bounded(int(sizeof pool))];
        // Half the rounds hold a whole text from before that the new bytes no longer start.
        if (round % 2)
            p.setText(ProgramField::CharDesc450, QString(f.width + 9, u'w'), entry);
        p.setBytes(bytes);
        const QString raw = p.rawText(ProgramField::CharDesc450, entry);
        ASSERT_EQ(p.text(ProgramField::CharDesc450, entry), trimBlanks(raw));

        const QString trimmed = p.trimText(ProgramField::CharDesc450, entry);
        EXPECT_EQ(trimmed, trimBlanks(raw));
        QByteArray expected = bytes;
        expected.replace(f.entryOffset(entry), f.width,
                         toWin1252(trimmed).leftJustified(f.width, ' '));
        ASSERT_EQ(p.bytes(), expected) << "round " << round;
        EXPECT_EQ(p.wholeText(int(ProgramField::CharDesc450), entry), trimmed);
        EXPECT_TRUE(p.wholeTexts().isEmpty());
    }
}

TEST(RecordBytes, Windows1252OnDisk) {
    CompanyRecord c;
    c.setText(CompanyField::CompanyName, u"Caf\u00e9 \u20ac \u0416"_s);
    const QByteArray name = c.bytes().mid(4, 8);
    EXPECT_EQ(name, QByteArray("Caf\xE9 \x80 ?"));
    EXPECT_EQ(c.text(CompanyField::CompanyName), u"Caf\u00e9 \u20ac ?"_s);

    // A character outside the basic plane is one character: one "?", one place of a width;
    // a lone surrogate is one "?" too.
    QString lone = u"a\U0001F600b c"_s;
    lone[4] = QChar(0xD800);
    EXPECT_EQ(toWin1252(lone), QByteArray("a?b?c"));
    c.setText(CompanyField::CompanyName, QString(QString(39, u'x') + u"\U0001F600z"_s));
    EXPECT_EQ(c.rawText(CompanyField::CompanyName), QString(39, u'x') + u'?');
}

TEST(RecordBytes, ClearingKeepsIdentityAndUnlistedFlags) {
    ProgramRecord p;
    p.setNumber(ProgramField::CompanyID, 12);
    p.setNumber(ProgramField::OSSupported, -1, 26);
    p.setNumber(ProgramField::OSSupported, -1, 3);
    p.setNumber(ProgramField::LanguageSupported, -1, 8);
    p.setNumber(ProgramField::MSNIs32Bit, 1);
    p.setText(ProgramField::EULA, u"text");
    p.setNumber(ProgramField::DescriptionActive, 1, 5);
    p.clear(26, 9);
    EXPECT_EQ(p.number(ProgramField::CompanyID), 12);
    EXPECT_EQ(p.number(ProgramField::OSSupported, 26), -1);
    EXPECT_EQ(p.number(ProgramField::OSSupported, 3), 0);
    EXPECT_EQ(p.number(ProgramField::LanguageSupported, 8), 0);
    EXPECT_EQ(p.number(ProgramField::MSNIs32Bit), 0);
    EXPECT_EQ(p.text(ProgramField::EULA), QString());
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 0), 1);
    for (int i = 1; i < 9; ++i)
        EXPECT_EQ(p.number(ProgramField::DescriptionActive, i), 0);

    CompanyRecord c;
    c.setNumber(CompanyField::CompanyID, 4);
    c.setText(CompanyField::FaxPhone, u"123");
    c.clear();
    EXPECT_EQ(c.number(CompanyField::CompanyID), 4);
    EXPECT_EQ(c.bytes().mid(4), QByteArray(838, ' '));
}

TEST(RecordBytes, ShortBufferCompletesWithBlanksAndZeros) {
    ProgramRecord p;
    p.setBytes(QByteArray("\x05\x00\x00\x00Half", 8));
    EXPECT_EQ(p.number(ProgramField::CompanyID), 5);
    EXPECT_EQ(p.text(ProgramField::ProgramName), u"Half"_s);
    EXPECT_EQ(p.number(ProgramField::TPAMember), 0);
    EXPECT_EQ(p.rawText(ProgramField::TrialLicenseType), QString(25, u' '));
}
