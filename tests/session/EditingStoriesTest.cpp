#include "SessionFixture.h"

#include <QSignalSpy>

using namespace brevaro;
using namespace brevaro::test;

TEST_F(SessionTest, FirstCompanyAndProgramFromAnEmptyHome) {
    EXPECT_EQ(text(u"lblCompanyRecord"), QStringLiteral("0 of 0"));
    EXPECT_TRUE(at(u"cboCompanyName").items.isEmpty());
    EXPECT_TRUE(at(u"cboProgramName").items.isEmpty());
    EXPECT_FALSE(at(u"txtAddress1").enabled);
    EXPECT_FALSE(at(u"cboCompanyName").enabled);
    EXPECT_EQ(text(u"cboCountry"), QStringLiteral("United States"));
    EXPECT_EQ(text(u"cboStatus"), QStringLiteral("Major Update"));
    EXPECT_EQ(status(), QStringLiteral("Welcome to Brevaro"));
    EXPECT_EQ(caption(), QStringLiteral("Brevaro 1.0.0 - [ -  ] "));

    newCompany(QStringLiteral("  Acme Tools  "));
    EXPECT_TRUE(at(u"txtAddress1").enabled);
    EXPECT_EQ(text(u"lblCompanyRecord"), QStringLiteral("1 of 1"));
    EXPECT_EQ(screen().focused(), id(u"txtAddress1"));
    EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("data/company.dta"))));

    screen().setListIndex(id(u"SSTab1"), 1);
    EXPECT_EQ(status(),
              QStringLiteral("Please SAVE your Company Data before you try to add products!"));
    EXPECT_EQ(at(u"SSTab1").listIndex, 0);

    type(u"txtCity", QStringLiteral("Springfield"));
    command(ControlAction::SaveCompany);
    EXPECT_EQ(store.companyNames(), QStringList{QStringLiteral("Acme Tools")});
    EXPECT_FALSE(session->state().NewCompanyPending);
    EXPECT_TRUE(at(u"cboCompanyName").enabled);
    screen().setListIndex(id(u"SSTab1"), 1);
    EXPECT_EQ(status(), QStringLiteral("Program Info"));
    EXPECT_TRUE(at(u"cmdButton", 3).enabled);
    EXPECT_FALSE(at(u"cmdButton", 0).enabled);
    EXPECT_FALSE(at(u"mnuPAD", 2).enabled);
    EXPECT_TRUE(at(u"mnuPAD", 6).enabled);

    newProgram(QStringLiteral("Widget"));
    EXPECT_EQ(text(u"lblProgramRecord"), QStringLiteral("1 of 1"));
    type(u"txtProgramVersion", QStringLiteral("1"));
    EXPECT_FALSE(at(u"cboProgramName").enabled);
    EXPECT_TRUE(caption().endsWith(QStringLiteral("(MODIFIED) ] ")));
    type(u"txtProgramVersion", QStringLiteral("  1.25 buid 7777"));
    type(u"txtCostUS", QStringLiteral("29.95"));
    screen().setItemSelected(id(u"lstSupportedOS"), 1, true);
    screen().setValue(id(u"chkIncludeJava"), 1);
    command(ControlAction::SaveProgram);
    EXPECT_TRUE(at(u"cboProgramName").enabled);
    EXPECT_FALSE(caption().contains(QStringLiteral("MODIFIED")));

    restart();
    EXPECT_EQ(text(u"txtCity"), QStringLiteral("Springfield"));
    EXPECT_EQ(text(u"txtProgramVersion"),
              QStringLiteral("1.25 bui")); // cut to 10 while typing, then trimmed
    EXPECT_EQ(text(u"txtCostUS"), QStringLiteral("29.95"));
    EXPECT_TRUE(at(u"lstSupportedOS").selected[1]);
    EXPECT_EQ(screen().value(u"chkIncludeJava"), 1);
    EXPECT_EQ(caption(), QStringLiteral("Brevaro 1.0.0 - [Acme Tools - Widget 1.25 bui] "));
    EXPECT_FALSE(session->state().CompanyDirty || session->state().ProgramDirty);
    const QByteArray bytes = readBytes(home.file(QStringLiteral("data/1.dta")));
    EXPECT_EQ(bytes.mid(142, 2), QByteArray("\xFF\xFF"));
    EXPECT_EQ(bytes.mid(975, 2), QByteArray("\x01\x00", 2));
    EXPECT_TRUE(prompts.asked.size() == 2); // only the two name input boxes
}

TEST_F(SessionTest, BlankOrCancelledNamesChangeNothing) {
    prompts.inputs.push_back(std::nullopt);
    command(ControlAction::NewCompany);
    newCompany(QStringLiteral("   "));
    EXPECT_FALSE(session->state().NewCompanyPending);
    EXPECT_EQ(text(u"lblCompanyRecord"), QStringLiteral("0 of 0"));
    EXPECT_FALSE(at(u"txtAddress1").enabled);
}

TEST_F(SessionTest, ClosingWithBothModifiedAsksCompanyThenProgram) {
    addCompany(QStringLiteral("Acme"));
    addProgram(QStringLiteral("Widget"));
    const QByteArray before = readBytes(home.file(QStringLiteral("data/1.dta")));
    type(u"txtAddress1", QStringLiteral("Main Street"));
    type(u"txtEULA", QStringLiteral("terms"));
    QSignalSpy closed(session.get(), &EditingSession::closeRequested);
    prompts.yesNo = {false, false};
    command(ControlAction::Exit);
    ASSERT_EQ(prompts.asked.size(), 4);
    EXPECT_EQ(prompts.asked[2], QStringLiteral("Acme not saved|Do you want to save Acme?"));
    EXPECT_EQ(prompts.asked[3],
              QStringLiteral("Widget Company not saved|Do you want to save Widget?"));
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(readBytes(home.file(QStringLiteral("data/1.dta"))), before);
    restart();
    EXPECT_EQ(text(u"txtAddress1"), QString());
}

TEST_F(SessionTest, SavingTheCompanyNeverDropsProgramEdits) {
    addCompany(QStringLiteral("Acme"));
    addProgram(QStringLiteral("Widget"));
    type(u"txtAddress1", QStringLiteral("Main Street"));
    type(u"txtProgramVersion", QStringLiteral("2.0"));
    prompts.yesNo = {true};
    command(ControlAction::SaveCompany);
    EXPECT_EQ(prompts.asked.back(),
              QStringLiteral("Widget Company not saved|Do you want to save Widget?"));
    EXPECT_EQ(text(u"txtProgramVersion"), QStringLiteral("2.0"));
    ProgramRecord p;
    store.readProgram(1, 1, p);
    EXPECT_EQ(p.text(ProgramField::ProgramVersion), QStringLiteral("2.0"));
}

TEST_F(SessionTest, DeletingAsksAndCompacts) {
    for (auto name : {u"A", u"B", u"C"})
        addCompany(QString::fromUtf16(name));
    selectCompany(2);
    addProgram(QStringLiteral("b1"));
    selectCompany(3);
    addProgram(QStringLiteral("c1"));
    addProgram(QStringLiteral("c2"));
    EXPECT_EQ(text(u"lblProgramRecord"), QStringLiteral("2 of 2"));

    selectCompany(2);
    prompts.yesNo = {false};
    EXPECT_EQ(command(ControlAction::DeleteCompany).outcome, CommandResult::Outcome::Declined);
    EXPECT_EQ(prompts.asked.back(), QStringLiteral("Delete B|Do you want to delete B?"));
    EXPECT_EQ(prompts.defaults.back(), Prompts::Default::No); // Enter keeps the company
    EXPECT_EQ(store.companyCount(), 3);
    prompts.yesNo = {true};
    EXPECT_TRUE(command(ControlAction::DeleteCompany).isDone());
    EXPECT_EQ(store.companyNames(), (QStringList{QStringLiteral("A"), QStringLiteral("C")}));
    EXPECT_EQ(at(u"cboCompanyName").items, (QStringList{QStringLiteral("A"), QStringLiteral("C")}));
    EXPECT_EQ(text(u"lblCompanyRecord"), QStringLiteral("1 of 2"));
    selectCompany(2);
    EXPECT_EQ(at(u"cboProgramName").items,
              (QStringList{QStringLiteral("c1"), QStringLiteral("c2")}));

    selectProgram(1);
    prompts.yesNo = {true};
    command(ControlAction::DeleteProgram);
    EXPECT_EQ(store.programNames(2), QStringList{QStringLiteral("c2")});
    EXPECT_EQ(text(u"cboProgramName"), QStringLiteral("c2"));
    EXPECT_EQ(session->state().CurrentProgramNo, 1);
    // The program shown is the one a save writes.
    type(u"txtProgramVersion", QStringLiteral("9"));
    command(ControlAction::SaveProgram);
    EXPECT_EQ(store.programNames(2), QStringList{QStringLiteral("c2")});
    prompts.yesNo = {true};
    EXPECT_TRUE(command(ControlAction::DeleteProgram).isDone());
    EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("data/2.dta"))));
    EXPECT_EQ(text(u"lblProgramRecord"), QStringLiteral("0 of 0"));
    // With no program left there is nothing to delete or save, and nothing is asked.
    const qsizetype asked = prompts.asked.size();
    EXPECT_EQ(command(ControlAction::DeleteProgram).outcome, CommandResult::Outcome::Refused);
    EXPECT_EQ(command(ControlAction::SaveProgram).outcome, CommandResult::Outcome::Refused);
    EXPECT_EQ(prompts.asked.size(), asked);
}

TEST_F(SessionTest, SelectingCompaniesShowsTheirOwnPrograms) {
    addCompany(QStringLiteral("A"));
    addProgram(QStringLiteral("a1"));
    addProgram(QStringLiteral("a2"));
    type(u"txt45char", QStringLiteral("second"), 0);
    command(ControlAction::SaveProgram);
    addCompany(QStringLiteral("B"));
    EXPECT_TRUE(at(u"cboProgramName").items.isEmpty());
    EXPECT_EQ(text(u"txtProgramVersion"), QString());
    EXPECT_FALSE(at(u"txtProgramVersion").enabled);
    EXPECT_EQ(session->state().CurrentProgramNo, 0);
    selectCompany(1);
    EXPECT_EQ(at(u"cboProgramName").items,
              (QStringList{QStringLiteral("a1"), QStringLiteral("a2")}));
    EXPECT_EQ(text(u"cboProgramName"), QStringLiteral("a1"));
    selectProgram(2);
    EXPECT_EQ(text(u"txt45char", 0), QStringLiteral("second"));
    EXPECT_EQ(text(u"lblProgramRecord"), QStringLiteral("2 of 2"));
    EXPECT_EQ(text(u"lblProgramDBname"), QStringLiteral("1.dta"));
    EXPECT_TRUE(session->companies().FindCompany(QStringLiteral("B")));
    EXPECT_FALSE(session->companies().FindCompany(QStringLiteral("b")));
}

// Commands that need a company wait for one; commands that live outside the session say so
// until they are supplied.
TEST_F(SessionTest, CommandsThatAreNotBuiltSaySo) {
    // An empty home has nothing to submit.
    EXPECT_EQ(command(ControlAction::Submit).outcome, CommandResult::Outcome::Refused);
    EXPECT_FALSE(at(u"cmdButton", 8).enabled);
    EXPECT_FALSE(at(u"cmdButton", 3).enabled);
    EXPECT_TRUE(at(u"cmdButton", 0).enabled);
    addCompany(QStringLiteral("Acme"));
    EXPECT_TRUE(at(u"cmdButton", 3).enabled);
    command(ControlAction::Submit);
    EXPECT_TRUE(prompts.messages.isEmpty());
    EXPECT_EQ(status(), QStringLiteral("Submit is not available yet."));
    bool ran = false;
    session->setCommandHandler(ControlAction::Submit, [&] { ran = true; });
    command(ControlAction::Submit);
    EXPECT_TRUE(ran);
}
