#include "SessionFixture.h"

#include "platform/TextFiles.h"

using namespace brevaro;
using namespace brevaro::test;

namespace {

class ProgramTabTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(QStringLiteral("Acme/../Tools"));
        addProgram(QStringLiteral("Widget"));
    }
    QString makeFile(const QString& name, qint64 size) {
        const QString path = home.file(name);
        writeBytes(path, QByteArray(size, 'x'));
        return path;
    }
};

} // namespace

TEST_F(ProgramTabTest, FileInfoProposesNamesAndSizes) {
    type(u"txtProgramVersion", QStringLiteral("1.25"));
    command(ControlAction::SaveProgram);
    prompts.files.push_back(makeFile(QStringLiteral("setup_widget.exe"), 2621440));
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtVersionedFilename"), QStringLiteral("setup_12.exe"));
    EXPECT_EQ(text(u"txtPreviousFilename"), QStringLiteral("setup_12.exe"));
    EXPECT_EQ(text(u"txtGenericFilename"), QStringLiteral("setup_.exe"));
    EXPECT_EQ(text(u"txtLongFilename"), QStringLiteral("setup_widget.exe"));
    EXPECT_EQ(text(u"txtSizeByte"), QStringLiteral("2621440"));
    EXPECT_EQ(text(u"txtSizeKB"), QStringLiteral("2560"));
    EXPECT_EQ(text(u"txtSizeMB"), QStringLiteral("2.50"));
    EXPECT_TRUE(session->state().ProgramDirty);
    // The dialog starts in the company's own folder under pad, made safe as one level.
    ASSERT_EQ(prompts.dialogs.size(), 1);
    EXPECT_EQ(prompts.dialogs[0].initialFolder, home.file(QStringLiteral("pad/Acme_.._Tools")));
    EXPECT_TRUE(QFileInfo(home.file(QStringLiteral("pad/Acme_.._Tools"))).isDir());

    type(u"txtProgramVersion", QStringLiteral("7"));
    prompts.files.push_back(makeFile(QStringLiteral("noextension"), 1536));
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtVersionedFilename"), QStringLiteral("7.noextensio")); // cut at 12
    EXPECT_EQ(text(u"txtGenericFilename"), QStringLiteral(".noextensi"));
    EXPECT_EQ(text(u"txtSizeKB"), QStringLiteral("2"));
    EXPECT_EQ(text(u"txtSizeMB"), QStringLiteral("0.00"));

    prompts.files.push_back(makeFile(QStringLiteral("a.zip"), 131072)); // 0.125 MB
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtSizeMB"), QStringLiteral("0.13"));

    prompts.files.push_back(std::nullopt);
    click(u"cmdOpenFileInfo");
    EXPECT_EQ(text(u"txtSizeByte"), QStringLiteral("131072"));
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
              QStringLiteral("You may include WIDGET on any CD compilation.\r\n"
                             "You may not sell WIDGET, it is FREEWARE!\r\n"));
    EXPECT_TRUE(prompts.asked.size() == 2);

    screen().setListIndex(id(u"cboType"), 1); // Shareware
    command(ControlAction::SaveProgram);
    prompts.yesNo = {false};
    click(u"cmdDefaultPermissions", 0);
    EXPECT_TRUE(prompts.asked.back().startsWith(
        QStringLiteral("Set Default Text|Your current text will be lost!")));
    EXPECT_TRUE(text(u"txtDistributionAgreements").contains(QStringLiteral("FREEWARE")));
    prompts.yesNo = {true};
    click(u"cmdDefaultPermissions", 0);
    EXPECT_EQ(text(u"txtDistributionAgreements"),
              QStringLiteral(
                  "You may include WIDGET on any CD compilation.\r\n"
                  "You may not sell the evalution copy.\r\n"
                  "You must disclose that WIDGET is SHAREWARE and the product is not free.\r\n"));

    click(u"cmdDefaultPermissions", 1);
    const QStringList lines = text(u"txtEULA").split(QStringLiteral("\r\n"));
    EXPECT_EQ(lines[0], QStringLiteral("WIDGET SOFTWARE LICENSE:"));
    EXPECT_EQ(lines[2], QStringLiteral("1) GRANT OF LICENSE:"));
    EXPECT_TRUE(lines[3].startsWith(QStringLiteral("ACME/../TOOLS grants you a single")));
    EXPECT_TRUE(lines[9].startsWith(QStringLiteral(
        "While we have attempted to ensure the reliability of the WIDGET, ACME/../TOOLS cannot")));
    EXPECT_TRUE(lines[12].endsWith(QStringLiteral("may not apply to you.")));
    EXPECT_EQ(lines.size(), 14); // the text ends with CR LF
}

TEST_F(ProgramTabTest, PermissionTextsThroughFiles) {
    const QString in = home.file(QStringLiteral("in.txt"));
    writeBytes(in, "first\r\nsecond\nthird\rcaf\xE9");
    prompts.files.push_back(in);
    click(u"cmdPermission", 2);
    EXPECT_EQ(text(u"txtEULA"), QStringLiteral("first\r\nsecond\r\nthird\r\ncaf\u00e9\r\n"));
    const QString out = home.file(QStringLiteral("out.txt"));
    prompts.files.push_back(out);
    click(u"cmdPermission", 3);
    EXPECT_EQ(readBytes(out), QByteArray("first\r\nsecond\r\nthird\r\ncaf\xE9\r\n\r\n"));

    // Blank text: no dialog at all; a cancelled open changes nothing.
    type(u"txtDistributionAgreements", QStringLiteral("   "));
    click(u"cmdPermission", 1);
    prompts.files.push_back(std::nullopt);
    click(u"cmdPermission", 0);
    EXPECT_EQ(text(u"txtDistributionAgreements"), QStringLiteral("   "));
    EXPECT_EQ(prompts.dialogs.size(), 3);
    writeBytes(out, "abc");
    EXPECT_EQ(readTextLines(out), QStringLiteral("abc\r\n"));
    writeTextWithLineEnd(out, QStringLiteral("abc"));
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
    type(u"txtAddress1", QStringLiteral("  two blanks  "));
    prompts.yesNo = {true}; // saving the company offers to save the program first
    command(ControlAction::SaveCompany);
    ProgramRecord p;
    store.readProgram(1, 1, p);
    for (int i = 0; i < 26; ++i)
        EXPECT_EQ(p.number(ProgramField::OSSupported, i), i == 1 || i == 10 ? -1 : 0) << i;
    EXPECT_EQ(p.number(ProgramField::OSSupported, 26), -1);
    EXPECT_EQ(text(u"txtAddress1"), QStringLiteral("two blanks"));
    CompanyRecord c;
    store.readCompany(1, c);
    EXPECT_EQ(c.rawText(CompanyField::Address1).left(14), QStringLiteral("  two blanks  "));
    EXPECT_EQ(p.number(ProgramField::DescriptionActive, 0), 1);
}
