#include "pad/CreatePad.h"
#include "SessionFixture.h"
#include "pad/PadText.h"
#include "pad/VerificationReport.h"
#include "pad/WebInfo.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QDirIterator>
#include <QUrl>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

TEST(CreatePadNames, ProposedAndCompanionNames) {
    EXPECT_EQ(proposedPadFileName(u" http://x.example/pad/MyProg.xml "_s, QString()), u"myprog"_s);
    EXPECT_EQ(proposedPadFileName(u"http://x.example/pad/noext"_s, u"P"_s), QString());
    EXPECT_EQ(proposedPadFileName(QString(), u" My Program 2 "_s), u"my_program_2"_s);
    EXPECT_EQ(companionFileName(u"/home/u/Tools/pad/Acme/MyProg.xml"_s),
              u"/home/u/Tools/pad/Acme/myprog.htm"_s);
    EXPECT_EQ(companionFileName(u"/home/u/pad/README"_s), u"/home/u/pad/.htm"_s);
}

namespace {

class CreatePadTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(u"../../x"_s);
        addProgram(u"My Widget"_s);
        type(u"txtProgramVersion", u"2.5"_s);
        command(ControlAction::SaveProgram);
    }
};

} // namespace

TEST_F(CreatePadTest, WritesBothFilesInsideThePadFolder) {
    const QString folder = home.file(u"pad/.._.._x"_s);
    prompts.files.push_back(folder + u"/Widget.XML"_s);
    command(ControlAction::CreatePAD);
    ASSERT_EQ(prompts.dialogs.size(), 1);
    EXPECT_EQ(prompts.dialogs[0].fileName, u"my_widget"_s);
    EXPECT_EQ(prompts.dialogs[0].initialFolder, folder);
    const QByteArray pad = readBytes(folder + u"/Widget.XML"_s);
    EXPECT_EQ(
        pad, toWin1252(QString(CreatePADText(session->company(), session->program()) + u"\r\n"_s)));
    EXPECT_TRUE(pad.endsWith("</XML_DIZ_INFO>\r\n\r\n"));
    EXPECT_TRUE(readBytes(folder + u"/widget.htm"_s).startsWith("<!-- Created By Brevaro"));
    // Nothing was written outside the home.
    QStringList written;
    QDirIterator it(QFileInfo(home.path()).absolutePath(), QDir::Files | QDir::NoDotAndDotDot);
    while (it.hasNext())
        written << it.next();
    EXPECT_TRUE(written.filter(u".xml"_s, Qt::CaseInsensitive).isEmpty());
}

TEST_F(CreatePadTest, UnsavedChangesStopIt) {
    type(u"txtCostUS", u"10"_s);
    prompts.yesNo = {false};
    command(ControlAction::CreatePAD);
    EXPECT_EQ(status(), u"You MUST save before you can create your PAD file ..."_s);
    EXPECT_EQ(prompts.beeps, 1);
    EXPECT_TRUE(prompts.dialogs.isEmpty());
    // Saying Yes saves and goes on; cancelling the dialog writes nothing.
    prompts.yesNo = {true};
    prompts.files.push_back(std::nullopt);
    command(ControlAction::CreatePAD);
    EXPECT_EQ(prompts.dialogs.size(), 1);
    EXPECT_TRUE(QDir(home.file(u"pad/.._.._x"_s)).isEmpty());
    // A program that has no name: Create PAD says why it writes nothing.
    type(u"cboProgramName", QString());
    command(ControlAction::SaveProgram);
    EXPECT_EQ(command(ControlAction::CreatePAD).outcome, CommandResult::Outcome::Refused);
    EXPECT_TRUE(status().contains(u"no PAD file was written"_s)) << status().toStdString();
    EXPECT_EQ(prompts.dialogs.size(), 1);
}

TEST_F(CreatePadTest, VerifyWritesThePageAndOpensIt) {
    type(u"txtCostUS", u"10"_s); // unsaved values show as they stand in memory
    command(ControlAction::VerifyPAD);
    const QString page = home.file(u"temp1.htm"_s);
    EXPECT_EQ(readBytes(page), toWin1252(verificationPage(session->company(), session->program(),
                                                          text(u"lblOrganization", 0))));
    EXPECT_EQ(prompts.opened, QStringList{QUrl::fromLocalFile(page).toString()});
    EXPECT_FALSE(readBytes(page).contains("USD 10"));
    EXPECT_TRUE(readBytes(page).contains(
        "<b>Program Version: </b><FONT color=\"#000099\"><b>2.5</b></FONT><BR><BR>"));
}
