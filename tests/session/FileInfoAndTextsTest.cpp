#include "SessionFixture.h"

#include "platform/TextFiles.h"

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

class ProgramTabTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(u"Acme/../Tools"_s);
        addProgram(u"Widget"_s);
    }
    QString makeFile(const QString& name, qint64 size) {
        const QString path = home.file(name);
        writeBytes(path, QByteArray(size, 'x'));
        return path;
    }
};

} // namespace

TEST_F(ProgramTabTest, FileInfoProposesNamesAndSizes) {
    type(u"txtProgramVersion", u"1.25"_s);
    command(ControlAction::SaveProgram);
    prompts.files.push_back(makeFile(u"setup_widget.exe"_s, 2621440));
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtVersionedFilename"), u"setup_12.exe"_s);
    EXPECT_EQ(text(u"txtPreviousFilename"), u"setup_12.exe"_s);
    EXPECT_EQ(text(u"txtGenericFilename"), u"setup_.exe"_s);
    EXPECT_EQ(text(u"txtLongFilename"), u"setup_widget.exe"_s);
    EXPECT_EQ(text(u"txtSizeByte"), u"2621440"_s);
    EXPECT_EQ(text(u"txtSizeKB"), u"2560"_s);
    EXPECT_EQ(text(u"txtSizeMB"), u"2.50"_s);
    EXPECT_TRUE(session->state().ProgramDirty);
    // The dialog starts in the company's own folder under pad, made safe as one level.
    ASSERT_EQ(prompts.dialogs.size(), 1);
    EXPECT_EQ(prompts.dialogs[0].initialFolder, home.file(u"pad/Acme_.._Tools"_s));
    EXPECT_TRUE(QFileInfo(home.file(u"pad/Acme_.._Tools"_s)).isDir());

    type(u"txtProgramVersion", u"7"_s);
    prompts.files.push_back(makeFile(u"noextension"_s, 1536));
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtVersionedFilename"), u"7.noextensio"_s); // cut at 12
    EXPECT_EQ(text(u"txtGenericFilename"), u".noextensi"_s);
    EXPECT_EQ(text(u"txtSizeKB"), u"2"_s);
    EXPECT_EQ(text(u"txtSizeMB"), u"0.00"_s);

    prompts.files.push_back(makeFile(u"a.zip"_s, 131072)); // 0.125 MB
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtSizeMB"), u"0.13"_s);

    prompts.files.push_back(std::nullopt);
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtSizeByte"), u"131072"_s);
}

TEST_F(ProgramTabTest, ExpiryControlsFollowTheChoice) {
    EXPECT_FALSE(at(u"txtExpireAfter").enabled);
    EXPECT_FALSE(at(u"optExpire", 0).enabled);
    screen().setValue(id(u"chkHasExpiredInfo"), 1);
    EXPECT_TRUE(at(u"optExpire", 3).enabled);
    screen().setValue(id(u"optExpire", 3), 1);
    EXPECT_TRUE(at(u"cboExpireMonth").enabled);
    EXPECT_FALSE(at(u"txtExpireAfter").enabled);
    screen().setValue(id(u"optExpire", 0), 1);
    EXPECT_EQ(screen().value(u"optExpire", 3), 0);
    EXPECT_FALSE(at(u"cboExpireYear").enabled);
    EXPECT_TRUE(at(u"txtExpireAfter").enabled);
    screen().setValue(id(u"chkHasExpiredInfo"), 0);
    EXPECT_FALSE(at(u"txtExpireAfter").enabled);
    EXPECT_FALSE(at(u"txtExpireInfo").enabled);
    EXPECT_FALSE(at(u"cboExpireDay").enabled);

    // Saved with "this date:", the choice comes back as flags and screen state.
    screen().setValue(id(u"chkHasExpiredInfo"), 1);
    screen().setValue(id(u"optExpire", 3), 1);
    command(ControlAction::SaveProgram);
    EXPECT_EQ(session->program().number(ProgramField::ExpireBasedOn, 3), -1);
    EXPECT_EQ(session->program().number(ProgramField::ExpireBasedOn, 0), 0);
    EXPECT_EQ(session->program().number(ProgramField::HasExpireInfo), 1);
    restart();
    EXPECT_EQ(screen().value(u"optExpire", 3), 1);
    EXPECT_EQ(screen().value(u"chkHasExpiredInfo"), 1);
}

TEST_F(ProgramTabTest, DefaultPermissionTexts) {
    screen().setListIndex(id(u"cboType"), 2); // Freeware
    command(ControlAction::SaveProgram);
    click(u"cmdDefaultPermissions", 0);
    EXPECT_EQ(text(u"txtDistributionAgreements"),
              u"You may include WIDGET on any CD compilation.\r\n"
              "You may not sell WIDGET, it is FREEWARE!\r\n"_s);
    EXPECT_TRUE(prompts.asked.size() == 2);

    screen().setListIndex(id(u"cboType"), 1); // Shareware
    command(ControlAction::SaveProgram);
    prompts.yesNo = {false};
    click(u"cmdDefaultPermissions", 0);
    EXPECT_TRUE(
        prompts.asked.back().startsWith(u"Set Default Text|Your current text will be lost!"_s));
    EXPECT_TRUE(text(u"txtDistributionAgreements").contains(u"FREEWARE"_s));
    prompts.yesNo = {true};
    click(u"cmdDefaultPermissions", 0);
    EXPECT_EQ(text(u"txtDistributionAgreements"),
              u"You may include WIDGET on any CD compilation.\r\n"
              "You may not sell the evalution copy.\r\n"
              "You must disclose that WIDGET is SHAREWARE and the product is not free.\r\n"_s);

    click(u"cmdDefaultPermissions", 1);
    const QStringList lines = text(u"txtEULA").split(u"\r\n"_s);
    EXPECT_EQ(lines[0], u"WIDGET SOFTWARE LICENSE:"_s);
    EXPECT_TRUE(lines[3].startsWith(u"ACME/../TOOLS grants you a single"_s));
    EXPECT_TRUE(lines[9].startsWith(
        u"While we have attempted to ensure the reliability of the WIDGET, ACME/../TOOLS cannot"_s));
    EXPECT_TRUE(lines[12].endsWith(u"may not apply to you."_s));
    EXPECT_EQ(lines.size(), 14); // the text ends with CR LF
}

TEST_F(ProgramTabTest, PermissionTextsThroughFiles) {
    const QString in = home.file(u"in.txt"_s);
    writeBytes(in, "first\r\nsecond\nthird\rcaf\xE9");
    prompts.files.push_back(in);
    click(u"cmdPermission", 2);
    EXPECT_EQ(text(u"txtEULA"), u"first\r\nsecond\r\nthird\r\ncaf\u00e9\r\n"_s);
    const QString out = home.file(u"out.txt"_s);
    prompts.files.push_back(out);
    click(u"cmdPermission", 3);
    EXPECT_EQ(readBytes(out), QByteArray("first\r\nsecond\r\nthird\r\ncaf\xE9\r\n\r\n"));

    // Blank text: no dialog at all; a cancelled open changes nothing.
    type(u"txtDistributionAgreements", u"   "_s);
    click(u"cmdPermission", 1);
    prompts.files.push_back(std::nullopt);
    click(u"cmdPermission", 0);
    EXPECT_EQ(text(u"txtDistributionAgreements"), u"   "_s);
    EXPECT_EQ(prompts.dialogs.size(), 3);
    writeBytes(out, "abc");
    EXPECT_EQ(readTextLines(out), u"abc\r\n"_s);
    writeTextWithLineEnd(out, u"abc"_s);
    EXPECT_EQ(readBytes(out).size(), 5);
}

TEST_F(ProgramTabTest, TransferKeepsUnlistedFlagsAndTrims) {
    // Flag 26 has no list item: whatever the file holds survives a save.
    ProgramRecord stored;
    store.readProgram(1, 1, stored);
    stored.setNumber(ProgramField::OSSupported, -1, 26);
    store.writeProgram(1, 1, stored);
    restart();
    screen().setItemSelected(id(u"lstSupportedOS"), 1, true);
    screen().setItemSelected(id(u"lstSupportedOS"), 10, true);
    type(u"txtAddress1", u"  two blanks  "_s);
    prompts.yesNo = {true}; // saving the company offers to save the program first
    command(ControlAction::SaveCompany);
    ProgramRecord p;
    store.readProgram(1, 1, p);
    for (int i = 0; i < 26; ++i)
        EXPECT_EQ(p.number(ProgramField::OSSupported, i), i == 1 || i == 10 ? -1 : 0) << i;
    EXPECT_EQ(p.number(ProgramField::OSSupported, 26), -1);
    EXPECT_EQ(text(u"txtAddress1"), u"two blanks"_s);
    CompanyRecord c;
    store.readCompany(1, c);
    EXPECT_EQ(c.rawText(CompanyField::Address1).left(14), u"  two blanks  "_s);
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 0), 1);
}
