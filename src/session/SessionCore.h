#pragma once

#include "controls/ControlTable.h"
#include "controls/ScreenModel.h"
#include "platform/Prompts.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "session/SessionState.h"
#include "store/RecordStore.h"

#include <vector>

namespace brevaro {

// What every part of the editing session works on: the screen model and its control table,
// the two records shown, the session's state, the record store and the prompts. The parts
// reach each other only through the references they are given, never through the session.
struct SessionCore {
    ScreenModel& screen;
    const std::vector<ControlRow>& controls;
    RecordStore& store;
    Prompts& prompts;
    CompanyRecord& company;
    ProgramRecord& program;
    SessionState& state;
    const QString& appVersionText;

    int id(QStringView name, int index = -1) const { return screen.id(name, index); }
    // The control table row of control id.
    const ControlRow& row(int id) const {
        screen.at(id); // stops the program for an id that is not a control
        return controls[static_cast<std::size_t>(id)];
    }
    QString text(QStringView name, int index = -1) const { return screen.text(name, index); }
    void setText(QStringView name, const QString& text, int index = -1) {
        screen.setText(id(name, index), text);
    }
    // A command's new text for a box, undoable there.
    void replaceText(QStringView name, const QString& text, int index = -1) {
        screen.replaceText(id(name, index), text);
    }
    // Above 0 while a record is shown from its file: the screen's changes then are not edits,
    // and nothing is marked modified.
    int loadingRecords = 0;
    class RecordLoad {
    public:
        explicit RecordLoad(SessionCore& core)
            : m_core(core) {
            ++m_core.loadingRecords;
        }
        ~RecordLoad() { --m_core.loadingRecords; }
        RecordLoad(const RecordLoad&) = delete;
        RecordLoad& operator=(const RecordLoad&) = delete;

    private:
        SessionCore& m_core;
    };

    // Enables or disables a command: every control that runs it (button and menu items).
    void setCommandEnabled(ControlAction action, bool enabled) {
        for (std::size_t i = 0; i < controls.size(); ++i)
            if (controls[i].action == action)
                screen.setEnabled(static_cast<int>(i), enabled);
    }
};

} // namespace brevaro
