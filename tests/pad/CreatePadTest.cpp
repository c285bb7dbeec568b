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
using namespace brevaro::test;

TEST(CreatePadNames, ProposedAndCompanionNames) {
    EXPECT_EQ(proposedPadFileName(QStringLiteral(" http://x.example/pad/MyProg.xml "), QString()),
              QStringLiteral("myprog"));
    EXPECT_EQ(
        proposedPadFileName(QStringLiteral("http://x.example/pad/noext"), QStringLiteral("P")),
        QString());
    EXPECT_EQ(proposedPadFileName(QString(), QStringLiteral(" My Program 2 ")),
              QStringLiteral("my_program_2"));
    EXPECT_EQ(companionFileName(QStringLiteral("/home/u/Tools/pad/Acme/MyProg.xml")),
              QStringLiteral("/home/u/Tools/pad/Acme/myprog.htm"));
    EXPECT_EQ(companionFileName(QStringLiteral("/home/u/pad/README")),
              QStringLiteral("/home/u/pad/.htm"));
}

namespace {

class CreatePadTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(QStringLiteral("../../x"));
        addProgram(QStringLiteral("My Widget"));
        type(u"txtProgramVersion", QStringLiteral("2.5"));
        command(ControlAction::SaveProgram);
    }
};

} // namespace

TEST_F(CreatePadTest, WritesBothFilesInsideThePadFolder) {
    const QString folder = home.file(QStringLiteral("pad/.._.._x"));
    prompts.files.push_back(folder + QStringLiteral("/Widget.XML"));
    command(ControlAction::CreatePAD);
    ASSERT_EQ(prompts.dialogs.size(), 1);
    EXPECT_EQ(prompts.dialogs[0].fileName, QStringLiteral("my_widget"));
    EXPECT_EQ(prompts.dialogs[0].initialFolder, folder);
    const QByteArray pad = readBytes(folder + QStringLiteral("/Widget.XML"));
    EXPECT_EQ(pad, toWin1252(QString(CreatePADText(session->company(), session->program()) +
                                     QStringLiteral("\r\n"))));
    EXPECT_TRUE(pad.endsWith("</XML_DIZ_INFO>\r\n\r\n"));
    EXPECT_TRUE(
        readBytes(folder + QStringLiteral("/widget.htm")).startsWith("<!-- Created By Brevaro"));
    // Nothing was written outside the home.
    QStringList written;
    QDirIterator it(QFileInfo(home.path()).absolutePath(), QDir::Files | QDir::NoDotAndDotDot);
    while (it.hasNext())
        written << it.next();
    EXPECT_TRUE(written.filter(QStringLiteral(".xml"), Qt::CaseInsensitive).isEmpty());
}

TEST_F(CreatePadTest, UnsavedChangesStopIt) {
    type(u"txtCostUS", QStringLiteral("10"));
    prompts.yesNo = {false};
    command(ControlAction::CreatePAD);
    EXPECT_EQ(status(), QStringLiteral("You MUST save before you can create your PAD file ..."));
    EXPECT_EQ(prompts.beeps, 1);
    EXPECT_TRUE(prompts.dialogs.isEmpty());
    // Saying Yes saves and goes on; cancelling the dialog writes nothing.
    prompts.yesNo = {true};
    prompts.files.push_back(std::nullopt);
    command(ControlAction::CreatePAD);
    EXPECT_EQ(prompts.dialogs.size(), 1);
    EXPECT_TRUE(QDir(home.file(QStringLiteral("pad/.._.._x"))).isEmpty());
}

TEST_F(CreatePadTest, VerifyWritesThePageAndOpensIt) {
    type(u"txtCostUS", QStringLiteral("10")); // unsaved values show as they stand in memory
    command(ControlAction::VerifyPAD);
    const QString page = home.file(QStringLiteral("temp1.htm"));
    EXPECT_EQ(readBytes(page), toWin1252(verificationPage(session->company(), session->program(),
                                                          text(u"lblOrganization", 0))));
    EXPECT_EQ(prompts.opened, QStringList{QUrl::fromLocalFile(page).toString()});
    EXPECT_FALSE(readBytes(page).contains("USD 10"));
    EXPECT_TRUE(readBytes(page).contains(
        "<b>Program Version: </b><FONT color=\"#000099\"><b>2.5</b></FONT><BR><BR>"));
}
