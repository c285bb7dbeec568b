#include "SessionFixture.h"

#include <QSignalSpy>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

TEST_F(SessionTest, FirstCompanyAndProgramFromAnEmptyHome) {
    // Labels are shown beside fields, never as their text.
    for (const ControlRow& r : mainWindowControls())
        EXPECT_TRUE((r.kind != ControlKind::TextBox && r.kind != ControlKind::ListBox) ||
                    text(r.name, r.index).isEmpty())
            << r.objectName().toStdString();
    EXPECT_EQ(text(u"cboCompanyName") + text(u"cboProgramName"), QString());
    EXPECT_TRUE(at(u"cboCompanyName").items.isEmpty() && at(u"cboProgramName").items.isEmpty());
    EXPECT_FALSE(at(u"txtAddress1").enabled || at(u"cboCompanyName").enabled);
    EXPECT_EQ(text(u"lblCompanyRecord"), u"0 of 0"_s);
    EXPECT_EQ(text(u"cboCountry"), u"United States"_s);
    EXPECT_EQ(text(u"cboStatus"), u"Major Update"_s);
    EXPECT_EQ(status(), u"Welcome to Brevaro"_s);
    EXPECT_EQ(caption(), u"Brevaro 1.0.0 - [ -  ] "_s);
    // A cancelled or blank name changes nothing.
    prompts.inputs.push_back(std::nullopt);
    command(ControlAction::NewCompany);
    newCompany(u"   "_s);
    EXPECT_FALSE(session->state().NewCompanyPending || at(u"txtAddress1").enabled);
    EXPECT_EQ(text(u"lblCompanyRecord"), u"0 of 0"_s);

    newCompany(u"  Acme Tools  "_s);
    EXPECT_TRUE(at(u"txtAddress1").enabled);
    EXPECT_EQ(text(u"lblCompanyRecord"), u"1 of 1"_s);
    EXPECT_EQ(screen().focused(), id(u"txtAddress1"));
    EXPECT_FALSE(QFile::exists(home.file(u"data/company.dta"_s)));

    screen().setListIndex(id(u"SSTab1"), 1);
    EXPECT_EQ(status(), u"Please SAVE your Company Data before you try to add products!"_s);
    EXPECT_EQ(at(u"SSTab1").listIndex, 0);

    type(u"txtCity", u"Springfield"_s);
    command(ControlAction::SaveCompany);
    EXPECT_EQ(store.companyNames(), QStringList{u"Acme Tools"_s});
    EXPECT_FALSE(session->state().NewCompanyPending);
    EXPECT_TRUE(at(u"cboCompanyName").enabled);
    screen().setListIndex(id(u"SSTab1"), 1);
    EXPECT_EQ(status(), u"Program Info"_s); // the tab's buttons: EachTabEnablesItsOwnButtons...

    newProgram(u"Widget"_s);
    EXPECT_EQ(text(u"lblProgramRecord"), u"1 of 1"_s);
    type(u"txtProgramVersion", u"1"_s);
    EXPECT_FALSE(at(u"cboProgramName").enabled);
    EXPECT_TRUE(caption().endsWith(u"(MODIFIED) ] "_s));
    type(u"txtProgramVersion", u"  1.25 buid 7777"_s);
    type(u"txtCostUS", u"29.95"_s);
    screen().setItemSelected(id(u"lstSupportedOS"), 1, true);
    screen().setValue(id(u"chkIncludeJava"), 1);
    command(ControlAction::SaveProgram);
    EXPECT_TRUE(at(u"cboProgramName").enabled);
    EXPECT_FALSE(caption().contains(u"MODIFIED"_s));

    restart();
    EXPECT_EQ(text(u"txtCity"), u"Springfield"_s);
    EXPECT_EQ(text(u"txtProgramVersion"), u"1.25 bui"_s); // cut to 10 while typing, trimmed
    EXPECT_EQ(text(u"txtCostUS"), u"29.95"_s);
    EXPECT_TRUE(at(u"lstSupportedOS").selected[1]);
    EXPECT_EQ(screen().value(u"chkIncludeJava"), 1);
    EXPECT_EQ(caption(), u"Brevaro 1.0.0 - [Acme Tools - Widget 1.25 bui] "_s);
    EXPECT_FALSE(session->state().CompanyDirty || session->state().ProgramDirty);
    const QByteArray bytes = readBytes(home.file(u"data/1.dta"_s));
    EXPECT_EQ(bytes.mid(142, 2), QByteArray("\xFF\xFF"));
    EXPECT_EQ(bytes.mid(975, 2), QByteArray("\x01\x00", 2));
    EXPECT_EQ(prompts.asked.size(), 4); // only the four name input boxes
}

TEST_F(SessionTest, ClosingWithBothModifiedAsksCompanyThenProgram) {
    addCompany(u"Acme"_s);
    addProgram(u"Widget"_s);
    const QByteArray before = readBytes(home.file(u"data/1.dta"_s));
    type(u"txtAddress1", u"Main Street"_s);
    type(u"txtEULA", u"terms"_s);
    QSignalSpy closed(session.get(), &EditingSession::closeRequested);
    prompts.yesNo = {false, false};
    command(ControlAction::Exit);
    ASSERT_EQ(prompts.asked.size(), 4);
    EXPECT_EQ(prompts.asked[2], u"Acme not saved|Do you want to save Acme?"_s);
    EXPECT_EQ(prompts.asked[3], u"Widget Company not saved|Do you want to save Widget?"_s);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(readBytes(home.file(u"data/1.dta"_s)), before);
    restart();
    EXPECT_EQ(text(u"txtAddress1"), QString());
}

// Saving the company, or an import, first offers to save the program shown.
TEST_F(SessionTest, SavingTheCompanyOrImportingNeverDropsProgramEdits) {
    addCompany(u"Acme"_s);
    addProgram(u"Widget"_s);
    const QString ask = u"Widget Company not saved|Do you want to save Widget?"_s;
    type(u"txtAddress1", u"Main Street"_s);
    type(u"txtProgramVersion", u"2.0"_s);
    prompts.yesNo = {true};
    command(ControlAction::SaveCompany);
    EXPECT_EQ(prompts.asked.back(), ask);
    EXPECT_EQ(text(u"txtProgramVersion"), u"2.0"_s);
    ProgramRecord p;
    store.readProgram(1, 1, p);
    EXPECT_EQ(p.text(ProgramField::ProgramVersion), u"2.0"_s);

    type(u"txtProgramVersion", u"3.1"_s);
    const QString file = home.file(u"in.xml"_s);
    writeBytes(file, "<?xml version=\"1.0\"?>\r\n<Company_Name>Acme</Company_Name>\r\n"
                     "<Program_Name>Other</Program_Name>\r\n");
    const qsizetype asked = prompts.asked.size();
    prompts.yesNo = {true};
    prompts.files.push_back(file);
    command(ControlAction::ImportPAD);
    ASSERT_GT(prompts.asked.size(), asked);
    EXPECT_EQ(prompts.asked.back(), ask);
    store.readProgram(1, 1, p);
    EXPECT_EQ(p.text(ProgramField::ProgramVersion), u"3.1"_s);
    EXPECT_EQ(store.programNames(1), (QStringList{u"Widget"_s, u"Other"_s}));
}

TEST_F(SessionTest, DeletingAsksAndCompacts) {
    for (auto name : {u"A", u"B", u"C"})
        addCompany(QString::fromUtf16(name));
    selectCompany(2);
    addProgram(u"b1"_s);
    selectCompany(3);
    addProgram(u"c1"_s);
    addProgram(u"c2"_s);
    EXPECT_EQ(text(u"lblProgramRecord"), u"2 of 2"_s);

    selectCompany(2);
    prompts.yesNo = {false};
    EXPECT_EQ(command(ControlAction::DeleteCompany).outcome, CommandResult::Outcome::Declined);
    EXPECT_EQ(prompts.asked.back(), u"Delete B|Do you want to delete B?"_s);
    EXPECT_EQ(prompts.defaults.back(), Prompts::Default::No); // Enter keeps the company
    EXPECT_EQ(store.companyCount(), 3);
    prompts.yesNo = {true};
    EXPECT_TRUE(command(ControlAction::DeleteCompany).isDone());
    EXPECT_EQ(store.companyNames(), (QStringList{u"A"_s, u"C"_s}));
    EXPECT_EQ(at(u"cboCompanyName").items, (QStringList{u"A"_s, u"C"_s}));
    EXPECT_EQ(text(u"lblCompanyRecord"), u"1 of 2"_s);
    selectCompany(2);
    EXPECT_EQ(at(u"cboProgramName").items, (QStringList{u"c1"_s, u"c2"_s}));

    selectProgram(1);
    prompts.yesNo = {true};
    command(ControlAction::DeleteProgram);
    EXPECT_EQ(store.programNames(2), QStringList{u"c2"_s});
    EXPECT_EQ(text(u"cboProgramName"), u"c2"_s);
    EXPECT_EQ(session->state().CurrentProgramNo, 1);
    // The program shown is the one a save writes.
    type(u"txtProgramVersion", u"9"_s);
    command(ControlAction::SaveProgram);
    EXPECT_EQ(store.programNames(2), QStringList{u"c2"_s});
    prompts.yesNo = {true};
    EXPECT_TRUE(command(ControlAction::DeleteProgram).isDone());
    EXPECT_FALSE(QFile::exists(home.file(u"data/2.dta"_s)));
    EXPECT_EQ(text(u"lblProgramRecord"), u"0 of 0"_s);
    // With no program left there is nothing to delete or save, and nothing is asked.
    const qsizetype asked = prompts.asked.size();
    EXPECT_EQ(command(ControlAction::DeleteProgram).outcome, CommandResult::Outcome::Refused);
    EXPECT_EQ(command(ControlAction::SaveProgram).outcome, CommandResult::Outcome::Refused);
    EXPECT_EQ(prompts.asked.size(), asked);
}

TEST_F(SessionTest, SelectingCompaniesShowsTheirOwnPrograms) {
    addCompany(u"A"_s);
    addProgram(u"a1"_s);
    addProgram(u"a2"_s);
    type(u"txt45char", u"second"_s, 0);
    command(ControlAction::SaveProgram);
    addCompany(u"B"_s);
    EXPECT_TRUE(at(u"cboProgramName").items.isEmpty());
    EXPECT_EQ(text(u"txtProgramVersion"), QString());
    EXPECT_FALSE(at(u"txtProgramVersion").enabled);
    EXPECT_EQ(session->state().CurrentProgramNo, 0);
    selectCompany(1);
    EXPECT_EQ(at(u"cboProgramName").items, (QStringList{u"a1"_s, u"a2"_s}));
    EXPECT_EQ(text(u"cboProgramName"), u"a1"_s);
    selectProgram(2);
    EXPECT_EQ(text(u"txt45char", 0), u"second"_s);
    EXPECT_EQ(text(u"lblProgramRecord"), u"2 of 2"_s);
    EXPECT_EQ(text(u"lblProgramDBname"), u"1.dta"_s);
    EXPECT_TRUE(session->companies().FindCompany(u"B"_s));
    EXPECT_FALSE(session->companies().FindCompany(u"b"_s));
}

// Commands that need a company wait for one; commands that live outside the session say so
// until they are supplied.
TEST_F(SessionTest, CommandsThatAreNotBuiltSaySo) {
    // An empty home has nothing to submit.
    EXPECT_EQ(command(ControlAction::Submit).outcome, CommandResult::Outcome::Refused);
    EXPECT_FALSE(at(u"cmdButton", 8).enabled);
    EXPECT_FALSE(at(u"cmdButton", 3).enabled);
    EXPECT_TRUE(at(u"cmdButton", 0).enabled);
    addCompany(u"Acme"_s);
    EXPECT_TRUE(at(u"cmdButton", 3).enabled);
    command(ControlAction::Submit);
    EXPECT_TRUE(prompts.messages.isEmpty());
    EXPECT_EQ(status(), u"Submit is not available yet."_s);
    bool ran = false;
    session->setCommandHandler(ControlAction::Submit, [&] { ran = true; });
    command(ControlAction::Submit);
    EXPECT_TRUE(ran);
}
