#include "SessionFixture.h"

#include <QDir>
#include <QFile>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

// A record file that cannot be replaced: a folder stands where the file would be renamed to.
class FailedSaveTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(u"Acme"_s);
        addProgram(u"Widget"_s);
        addCompany(u"Beta"_s);
        selectCompany(1);
    }
    void blockWrites(const QString& file) {
        const QString path = home.file(u"data/"_s + file);
        ASSERT_TRUE(QFile::rename(path, path + u".kept"_s));
        ASSERT_TRUE(QDir().mkdir(path));
    }
    void allowWrites(const QString& file) {
        const QString path = home.file(u"data/"_s + file);
        ASSERT_TRUE(QDir(path).removeRecursively());
        ASSERT_TRUE(QFile::rename(path + u".kept"_s, path));
    }
    bool companySelectorLocked() { return !at(u"cboCompanyName").enabled; }
    void expectOnlyCouldNotBeSaved() {
        ASSERT_FALSE(prompts.messages.isEmpty());
        for (const QString& message : prompts.messages)
            EXPECT_TRUE(message.contains(u"could not be saved"_s)) << message.toStdString();
    }
};

} // namespace

TEST_F(FailedSaveTest, ACompanyThatCannotBeWrittenStaysModified) {
    type(u"txtCity", u"Springfield"_s);
    blockWrites(u"company.dta"_s);
    command(ControlAction::SaveCompany);
    expectOnlyCouldNotBeSaved();
    EXPECT_TRUE(session->state().CompanyDirty);
    EXPECT_TRUE(companySelectorLocked());
    EXPECT_TRUE(caption().contains(u"Acme (MODIFIED)"_s));

    // Choosing another company asks; a Yes whose save fails keeps the edit on screen.
    prompts.yesNo = {true};
    const auto asked = prompts.asked.size();
    selectCompany(2);
    EXPECT_EQ(prompts.asked.size(), asked + 1);
    EXPECT_EQ(text(u"cboCompanyName"), u"Acme"_s);
    EXPECT_EQ(text(u"txtCity"), u"Springfield"_s);
    EXPECT_TRUE(session->state().CompanyDirty);

    // New Company and closing the window do not throw the edit away either.
    prompts.yesNo = {true, true};
    command(ControlAction::NewCompany);
    EXPECT_TRUE(prompts.inputs.empty());
    EXPECT_FALSE(session->Shutdown());
    EXPECT_EQ(text(u"txtCity"), u"Springfield"_s);

    allowWrites(u"company.dta"_s);
    command(ControlAction::SaveCompany);
    EXPECT_FALSE(session->state().CompanyDirty);
    EXPECT_FALSE(companySelectorLocked());
    CompanyRecord stored;
    store.readCompany(1, stored);
    EXPECT_EQ(stored.text(CompanyField::CityTown), u"Springfield"_s);
}

TEST_F(FailedSaveTest, AProgramThatCannotBeWrittenStaysModified) {
    type(u"txtProgramVersion", u"2.0"_s);
    blockWrites(u"1.dta"_s);
    command(ControlAction::SaveProgram);
    EXPECT_TRUE(session->state().ProgramDirty);
    EXPECT_FALSE(at(u"cboProgramName").enabled);
    // The save prompt of Create PAD fails too: no file is written.
    prompts.yesNo = {true};
    command(ControlAction::CreatePAD);
    EXPECT_EQ(status(), u"You MUST save before you can create your PAD file ..."_s);
    EXPECT_TRUE(prompts.dialogs.isEmpty());
    allowWrites(u"1.dta"_s);
    command(ControlAction::SaveProgram);
    EXPECT_FALSE(session->state().ProgramDirty);
    EXPECT_TRUE(at(u"cboProgramName").enabled);
}

// An import writes its company and program together: when the program file cannot be
// written, neither is saved, and the imported values stay on screen, marked modified.
TEST_F(FailedSaveTest, AnImportThatCannotBeWrittenSavesNothing) {
    const QByteArray companies = readBytes(home.file(u"data/company.dta"_s));
    const QString file = home.file(u"in.xml"_s);
    writeBytes(file, "<?xml version=\"1.0\"?>\r\n<Company_Name>Gamma</Company_Name>\r\n"
                     "<City_Town>Oslo</City_Town>\r\n<Program_Name>Sled</Program_Name>\r\n");
    // Company 3 is new: its program file is 3.dta.
    ASSERT_TRUE(QDir().mkdir(home.file(u"data/3.dta"_s)));
    prompts.files.push_back(file);
    command(ControlAction::ImportPAD);
    EXPECT_EQ(readBytes(home.file(u"data/company.dta"_s)), companies);
    expectOnlyCouldNotBeSaved();
    EXPECT_TRUE(session->state().CompanyDirty);
    EXPECT_TRUE(session->state().ProgramDirty);
    EXPECT_EQ(text(u"txtCity"), u"Oslo"_s);

    // Once the file can be written, the next import goes through and is written straight away.
    ASSERT_TRUE(QDir(home.file(u"data/3.dta"_s)).removeRecursively());
    prompts.yesNo = {false, false};
    prompts.files.push_back(file);
    command(ControlAction::ImportPAD);
    EXPECT_EQ(store.companyNames().value(2), u"Gamma"_s);
    EXPECT_EQ(RecordStore(home.home()).programNames(3), QStringList{u"Sled"_s});
}

TEST_F(SessionTest, EachTabEnablesItsOwnButtonsAndMenuItems) {
    addCompany(u"Acme"_s);
    for (int tab = 0; tab < 9; ++tab) {
        screen().setListIndex(id(u"SSTab1"), tab);
        QString buttons, menu;
        for (int b = 0; b < 10; ++b)
            buttons += at(u"cmdButton", b).enabled ? u'1' : u'0';
        for (int m = 0; m < 16; ++m)
            menu += at(u"mnuPAD", m).enabled ? u'1' : u'0';
        const char* wantButtons = tab == 0 ? "1110001111" : tab == 1 ? "0001111111" : "0000101111";
        // New Release (the fourth from the end) waits for a program.
        const char* wantMenu = tab == 0   ? "1111000111111011"
                               : tab == 1 ? "0001111111111011"
                                          : "0001010111111011";
        EXPECT_EQ(buttons, QLatin1String(wantButtons)) << "tab " << tab;
        EXPECT_EQ(menu, QLatin1String(wantMenu)) << "tab " << tab;
    }
    // A disabled command does not run when triggered, as its button does not.
    const qsizetype asked = prompts.asked.size();
    EXPECT_EQ(command(ControlAction::DeleteCompany).outcome, CommandResult::Outcome::Refused);
    EXPECT_EQ(prompts.asked.size(), asked);
    EXPECT_EQ(store.companyCount(), 1);
}

// Showing a record from its file is not an edit: nothing is marked modified, whatever the
// record holds, and an edit afterwards still is.
TEST_F(SessionTest, ShowingARecordMarksNothing) {
    addCompany(u"Acme"_s);
    addProgram(u"Widget"_s);
    session->company().setText(CompanyField::CityTown, u"Springfield"_s);
    session->program().setText(ProgramField::ProgramVersion, u"2.0"_s);
    session->transfer().CompanyToScreen();
    session->transfer().ProgramToScreen();
    EXPECT_EQ(text(u"txtCity"), u"Springfield"_s);
    EXPECT_FALSE(session->state().CompanyDirty);
    EXPECT_FALSE(session->state().ProgramDirty);
    type(u"txtProgramVersion", u"2.1"_s);
    EXPECT_TRUE(session->state().ProgramDirty);
}

TEST(ScreenModelDeathTest, AControlThatDoesNotExistStopsTheProgram) {
    ScreenModel screen;
    screen.add(u"txtThere"_s, -1, ControlKind::TextBox);
    EXPECT_EQ(screen.id(u"txtThere"), 0);
    EXPECT_DEATH(screen.id(u"txtNotThere"), "txtNotThere");
    EXPECT_DEATH(screen.at(7), "");
    CompanyRecord company;
    EXPECT_DEATH(company.text(99), "");
    EXPECT_DEATH(company.setText(CompanyField::CompanyID, u"x"), "CompanyID");
}
