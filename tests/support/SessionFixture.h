#pragma once

#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "session/EditingSession.h"

namespace brevaro::test {

// A started session on a fresh home, driven the way a user drives the window.
class SessionTest : public ::testing::Test {
protected:
    TempHome home;
    RecordStore store{home.home()};
    ScriptedPrompts prompts;
    std::unique_ptr<EditingSession> session;

    void SetUp() override { restart(); }

    // The one-shot requests the session sent to the view.
    QHash<int, int> carets; // control id -> last caret position requested
    QList<int> flashes;
    QList<int> focusRequests;

    void restart() {
        session = std::make_unique<EditingSession>(store, prompts);
        QObject::connect(&session->screen(), &ScreenModel::caretRequested,
                         [this](int id, int position) { carets[id] = position; });
        QObject::connect(&session->screen(), &ScreenModel::flashRequested,
                         [this](int id) { flashes << id; });
        QObject::connect(&session->screen(), &ScreenModel::focusRequested,
                         [this](int id) { focusRequests << id; });
        session->Start();
    }

    ScreenModel& screen() { return session->screen(); }
    int id(QStringView name, int index = -1) { return screen().id(name, index); }
    const ControlState& at(QStringView name, int index = -1) { return screen().at(name, index); }
    QString text(QStringView name, int index = -1) { return screen().text(name, index); }
    void type(QStringView name, const QString& t, int index = -1) {
        screen().setText(id(name, index), t);
    }
    void click(QStringView name, int index = -1) { screen().click(id(name, index)); }
    // A command of the button bar and the menus, as a click on it runs it.
    CommandResult command(ControlAction action) { return session->trigger(action); }
    QString status() { return text(u"StatusBar1"); }
    QString caption() { return text(u"frmStart"); }

    void newCompany(const QString& name) {
        prompts.inputs.push_back(name);
        command(ControlAction::NewCompany);
    }
    void newProgram(const QString& name) {
        prompts.inputs.push_back(name);
        command(ControlAction::NewProgram);
    }
    void addCompany(const QString& name) {
        newCompany(name);
        command(ControlAction::SaveCompany);
    }
    void addProgram(const QString& name) {
        newProgram(name);
        command(ControlAction::SaveProgram);
    }
    void selectCompany(int n) { screen().setListIndex(id(u"cboCompanyName"), n - 1); }
    void selectProgram(int n) { screen().setListIndex(id(u"cboProgramName"), n - 1); }
};

} // namespace brevaro::test
