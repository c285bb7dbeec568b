#pragma once

#include "controls/ControlTable.h"
#include "controls/ScreenModel.h"
#include "platform/Prompts.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "session/CompanyCommands.h"
#include "session/FieldAssistance.h"
#include "session/PadCommands.h"
#include "session/ProgramCommands.h"
#include "session/ProgramTabTools.h"
#include "session/ScreenTransfer.h"
#include "session/SessionCore.h"
#include "session/SessionNavigation.h"
#include "session/SessionState.h"
#include "store/RecordStore.h"

#include <QObject>
#include <functional>
#include <map>
#include <optional>

namespace brevaro {

// The main window without widgets: one current company and program, the screen model that
// shows them, the modified state, and every command of the button bar and the menus. The
// Qt window is a view over it; tests and the command-line tool drive it directly. Its work
// is done by the parts it owns; a click runs the action the control table gives the control.
class EditingSession : public QObject, private ControlEvents {
    Q_OBJECT
public:
    EditingSession(RecordStore& store, Prompts& prompts, QObject* parent = nullptr);

    ScreenModel& screen() { return m_screen; }
    const ScreenModel& screen() const { return m_screen; }
    // The control table row of control id.
    const ControlRow& row(int id) const;
    RecordStore& store() { return m_store; }
    Prompts& prompts() { return m_prompts; }
    CompanyRecord& company() { return m_company; }
    ProgramRecord& program() { return m_program; }
    const SessionState& state() const { return m_state; }
    const QString& appVersionText() const { return m_appVersionText; }

    SessionNavigation& navigation() { return m_navigation; }
    CompanyCommands& companies() { return m_companies; }
    ProgramCommands& programs() { return m_programs; }
    ScreenTransfer& transfer() { return m_transfer; }
    FieldAssistance& assistance() { return m_assistance; }
    ProgramTabTools& programTab() { return m_programTab; }
    PadCommands& pad() { return m_pad; }

    // Runs a command of the button bar and the menus as a click on any control of it does,
    // and says what it did. Commands that only show something are done once shown.
    CommandResult trigger(ControlAction action);
    // Enables or disables a command: every control that runs it (button and menu items).
    void setCommandEnabled(ControlAction action, bool enabled);

    // Supplies an action that lives outside the session (Submit, Keywords, About, the
    // banners); without one the action says it is not available yet.
    void setCommandHandler(ControlAction action, std::function<void()> handler);

    // Start-up sequence of the main window.
    void Start();
    // Closing the window: offers to save, then asks the view to close. False, with the
    // window left open, when a save the user asked for failed.
    bool Shutdown();

    // Shorthands for the screen model.
    int id(QStringView name, int index = -1) const { return m_screen.id(name, index); }
    void setText(QStringView name, const QString& text, int index = -1) {
        m_screen.setText(id(name, index), text);
    }
    QString text(QStringView name, int index = -1) const { return m_screen.text(name, index); }

signals:
    void closeRequested();

private:
    void buildScreen();
    void onChange(int id) override;
    void onClick(int id) override;
    void onFocus(int id) override;
    void runAction(const ControlRow& row);
    // The commands that report what they did; nothing for the other actions.
    std::optional<CommandResult> runRecordCommand(ControlAction action);
    void runCommand(ControlAction action, const QString& name);
    void markModified(const ControlRow& control, unsigned event);
    void openLink(LinkTarget target);

    RecordStore& m_store;
    Prompts& m_prompts;
    ScreenModel m_screen;
    std::vector<ControlRow> m_controls;
    CompanyRecord m_company;
    ProgramRecord m_program;
    SessionState m_state;
    QString m_appVersionText;
    std::map<ControlAction, std::function<void()>> m_handlers;
    SessionCore m_core;
    SessionNavigation m_navigation;
    CompanyCommands m_companies;
    ProgramCommands m_programs;
    ScreenTransfer m_transfer;
    FieldAssistance m_assistance;
    ProgramTabTools m_programTab;
    PadCommands m_pad;
};

} // namespace brevaro
