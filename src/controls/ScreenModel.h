#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <vector>

namespace brevaro {

enum class ControlKind {
    TextBox,
    ComboBox,
    ListBox,      // several items selectable
    CheckBox,     // value 0 or 1
    OptionButton, // value 0 or 1
    Button,
    Label,
    TabStrip, // listIndex is the selected tab
    MenuItem,
    StatusBar,
    Form, // text is the window caption
};

// The state of one control of a window, as a view shows it.
struct ControlState {
    QString name;
    int index = -1; // -1: not a member of a control array
    ControlKind kind = ControlKind::Label;
    QString text;
    QStringList items;
    int listIndex = -1;
    QList<bool> selected;
    int value = 0;
    bool enabled = true;
    bool visible = true;
    QString toolTip;
    int maxLength = 0;      // 0: no limit
    bool keepsItem = false; // a combo box whose text cannot be cleared: it keeps its item

    // "name" or, for an array member, "name_i": the widget's objectName.
    QString objectName() const;
};

// What a change notification is about, so a view repaints only that.
enum ControlChange : unsigned {
    kChangedText = 1,
    kChangedItems = 2,
    kChangedSelection = 4,
    kChangedValue = 8,
    kChangedEnabled = 16,
    kChangedVisible = 32,
    kChangedToolTip = 64,
    kChangedCaption = 128,
    kItemAdded = 256, // one entry appended to the list (the others are as they were)
    kReplacedByCommand =
        512, // with kChangedText: a command replaced the text, as one undoable step
};

// Receives the events that a control raises, whether the user or the program changed it.
class ControlEvents {
public:
    virtual ~ControlEvents() = default;
    virtual void onChange(int id) = 0;
    virtual void onClick(int id) = 0;
    virtual void onFocus(int id) = 0;
};

// Every control of one window, addressed by name and index. Setters raise the same events
// a real control raises (Change for a new text, Click for a selection or a value), so
// handlers run alike for typing, loading and importing. Views follow controlChanged.
class ScreenModel : public QObject {
    Q_OBJECT
public:
    explicit ScreenModel(QObject* parent = nullptr);

    int add(const QString& name, int index, ControlKind kind);
    void setEvents(ControlEvents* events) { m_events = events; }

    // The control's id; a name that is not in the table is a programming error and stops
    // the program.
    int id(QStringView name, int index = -1) const;
    bool has(QStringView name, int index = -1) const;
    int count() const { return static_cast<int>(m_controls.size()); }
    const ControlState& at(int id) const { return const_cast<ScreenModel*>(this)->state(id); }
    const ControlState& at(QStringView name, int index = -1) const { return at(id(name, index)); }

    // Raise events.
    void setText(int id, const QString& text);
    // The same for a command that replaces what the user sees in a box (a copy, a default
    // text, the keywords, File Info): the view keeps it undoable in the box.
    void replaceText(int id, const QString& text);
    void setListIndex(int id, int index);
    void setValue(int id, int value);
    void setItemSelected(int id, int item, bool selected);
    void click(int id);
    // The control got the focus (GotFocus).
    void focus(int id);

    // One-shot requests to the view: move the focus (the control's GotFocus runs at once),
    // put the caret, show the control white on black for a moment.
    void requestFocus(int id);
    void requestCaret(int id, int position);
    void flash(int id);

    // Quiet changes: no event.
    // Puts a list's selection back after a refused change.
    void restoreListIndex(int id, int index);
    void setEnabled(int id, bool enabled);
    void setVisible(int id, bool visible);
    void setToolTip(int id, const QString& tip);
    void setMaxLength(int id, int length);
    void setKeepsItem(int id, bool keepsItem);
    void setItems(int id, const QStringList& items); // empties the selection and the text
    void addItem(int id, const QString& item);
    void setCaption(int id, const QString& text); // labels, buttons, form caption, status bar

    // Shorthands by name.
    QString text(QStringView name, int index = -1) const { return at(name, index).text; }
    void setText(QStringView name, const QString& t, int index = -1) {
        setText(id(name, index), t);
    }
    void replaceText(QStringView name, const QString& t, int index = -1) {
        replaceText(id(name, index), t);
    }
    bool enabled(QStringView name, int index = -1) const { return at(name, index).enabled; }
    int value(QStringView name, int index = -1) const { return at(name, index).value; }

    int focused() const { return m_focused; }

signals:
    void controlChanged(int id, unsigned what);
    void focusRequested(int id);
    void caretRequested(int id, int position);
    void flashRequested(int id);

private:
    ControlState& state(int id);
    void changeText(int id, const QString& text, unsigned how);
    void changed(int id, unsigned what) { emit controlChanged(id, what); }

    std::vector<ControlState> m_controls;
    QHash<QString, int> m_ids;
    ControlEvents* m_events = nullptr;
    int m_focused = -1;
};

} // namespace brevaro
