#pragma once

#include "controls/ControlTable.h"

#include <QHash>
#include <QObject>
#include <QPalette>
#include <QSet>
#include <vector>

class QAction;
class QWidget;

namespace brevaro {

class EditingSession;

// Builds the widget of every control in the control table and keeps it in step with the
// screen model: user signals (textEdited, activated, clicked, user selection changes) reach
// the model, the model's change notifications repaint only what changed, and a repaint never
// comes back as an edit. Where a widget is placed is left to the tab and bar widgets.
class ControlBindingView : public QObject {
    Q_OBJECT
public:
    // window is the main window: it receives the caption and holds the controls kept out of
    // sight.
    ControlBindingView(EditingSession& session, QWidget* window);

    EditingSession& session() { return m_session; }
    // The widget of a control (nullptr for menu items and controls the model holds alone).
    QWidget* widget(int id) const;
    QWidget* widget(QStringView name, int index = -1) const;
    QAction* action(int id) const;
    // The one action of a command (New Company, Save Program, Create PAD, ...): the File menu
    // entry that runs it, which the button bar and the keyboard share; nullptr for none.
    QAction* command(ControlAction action) const { return m_commands.value(action); }
    const ControlRow& row(int id) const;
    // Every control id, in table order.
    const std::vector<int>& ids() const { return m_ids; }
    // The label shown beside a field (made on first use, its buddy the field); nullptr when
    // the field has none.
    QWidget* labelFor(int id);

    // Paints the whole model once (after the window is built).
    void repaintAll();
    // The widgets of the tabs are made when their page is built (createTab, completeWidgets),
    // so that the window shows without waiting for the tabs it does not show.
    static bool isDeferred(const ControlRow& row);
    void createTab(int tab);
    void completeWidgets();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createCommand(int id);
    void create(int id);
    void bindUserSignals(int id, QWidget* w);
    void repaint(int id, unsigned what);
    void repaintValue(int id, QWidget* w, unsigned what);
    void focusChanged(QWidget* now);
    void caret(int id, int position);
    void flash(int id);

    EditingSession& m_session;
    QWidget* m_window;
    std::vector<int> m_ids;
    QSet<int> m_created;
    QHash<int, QWidget*> m_widgets;
    QHash<int, QWidget*> m_labels;
    QHash<int, QAction*> m_actions;
    QHash<ControlAction, QAction*> m_commands;
    QHash<QWidget*, int> m_idOf;
    QSet<QWidget*> m_hiddenByModel;
    struct Flash {
        QPalette normal;
        int pending = 0;
    };
    QHash<QWidget*, Flash> m_flashing;
    int m_painting = 0; // above 0 while the model is being shown: widget signals are not edits
};

} // namespace brevaro
