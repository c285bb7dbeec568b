#include "controls/ScreenModel.h"

namespace brevaro {

QString ControlState::objectName() const {
    return index < 0 ? name : name + u'_' + QString::number(index);
}

ScreenModel::ScreenModel(QObject* parent)
    : QObject(parent) {}

static QString key(QStringView name, int index) {
    return index < 0 ? name.toString() : name + u'_' + QString::number(index);
}

int ScreenModel::add(const QString& name, int index, ControlKind kind) {
    ControlState s;
    s.name = name;
    s.index = index;
    s.kind = kind;
    const int id = count();
    m_controls.push_back(s);
    m_ids.insert(key(name, index), id);
    return id;
}

int ScreenModel::id(QStringView name, int index) const {
    const int found = m_ids.value(key(name, index), -1);
    if (found < 0)
        qFatal("the screen has no control %s", qPrintable(key(name, index)));
    return found;
}

ControlState& ScreenModel::state(int id) {
    if (id < 0 || id >= count())
        qFatal("the screen has no control number %d", id);
    return m_controls[static_cast<std::size_t>(id)];
}

bool ScreenModel::has(QStringView name, int index) const {
    return m_ids.contains(key(name, index));
}

void ScreenModel::setText(int id, const QString& text) {
    changeText(id, text, 0);
}

void ScreenModel::replaceText(int id, const QString& text) {
    changeText(id, text, kReplacedByCommand);
}

void ScreenModel::changeText(int id, const QString& text, unsigned how) {
    ControlState& s = state(id);
    if (s.text == text)
        return;
    if (s.kind == ControlKind::ComboBox) {
        const int item = static_cast<int>(s.items.indexOf(text));
        if (s.keepsItem && text.isEmpty()) {
            // Refused: the view shows the kept entry again.
            changed(id, kChangedText);
            return;
        }
        s.listIndex = item;
    }
    s.text = text;
    changed(id, kChangedText | kChangedSelection | how);
    if (m_events)
        m_events->onChange(id);
}

void ScreenModel::setListIndex(int id, int index) {
    if (index >= state(id).items.size())
        return;
    restoreListIndex(id, index);
    if (m_events)
        m_events->onClick(id);
}

void ScreenModel::setValue(int id, int value) {
    ControlState& s = state(id);
    if (s.kind == ControlKind::OptionButton && value) {
        // Selecting one option of an array clears the others, as option buttons do.
        for (auto& other : m_controls)
            if (other.name == s.name && other.index != s.index && other.value) {
                other.value = 0;
                changed(this->id(other.name, other.index), kChangedValue);
            }
    }
    if (s.value == value)
        return;
    s.value = value;
    changed(id, kChangedValue);
    if (m_events)
        m_events->onClick(id);
}

void ScreenModel::setItemSelected(int id, int item, bool selected) {
    ControlState& s = state(id);
    if (item < 0 || item >= s.selected.size() || s.selected[item] == selected)
        return;
    s.selected[item] = selected;
    changed(id, kChangedSelection);
    if (m_events)
        m_events->onClick(id);
}

void ScreenModel::click(int id) {
    if (m_events && state(id).enabled)
        m_events->onClick(id);
}

void ScreenModel::focus(int id) {
    m_focused = id;
    if (m_events)
        m_events->onFocus(id);
}

void ScreenModel::restoreListIndex(int id, int index) {
    ControlState& s = state(id);
    if (index >= s.items.size())
        return;
    s.listIndex = index;
    if (s.kind == ControlKind::ComboBox && index >= 0)
        s.text = s.items[index];
    changed(id, kChangedSelection | kChangedText);
}

void ScreenModel::setEnabled(int id, bool enabled) {
    if (state(id).enabled != enabled) {
        state(id).enabled = enabled;
        changed(id, kChangedEnabled);
    }
}

void ScreenModel::setVisible(int id, bool visible) {
    if (state(id).visible != visible) {
        state(id).visible = visible;
        changed(id, kChangedVisible);
    }
}

void ScreenModel::setToolTip(int id, const QString& tip) {
    if (state(id).toolTip != tip) {
        state(id).toolTip = tip;
        changed(id, kChangedToolTip);
    }
}

void ScreenModel::setMaxLength(int id, int length) {
    state(id).maxLength = length;
}

void ScreenModel::setKeepsItem(int id, bool keepsItem) {
    state(id).keepsItem = keepsItem;
}

void ScreenModel::requestFocus(int id) {
    emit focusRequested(id);
    focus(id);
}

void ScreenModel::requestCaret(int id, int position) {
    emit caretRequested(id, position);
}

void ScreenModel::flash(int id) {
    emit flashRequested(id);
}

void ScreenModel::setItems(int id, const QStringList& items) {
    ControlState& s = state(id);
    s.items = items;
    s.selected = QList<bool>(items.size(), false);
    s.listIndex = -1;
    if (s.kind == ControlKind::ComboBox)
        s.text.clear();
    changed(id, kChangedItems | kChangedSelection | kChangedText);
}

void ScreenModel::addItem(int id, const QString& item) {
    ControlState& s = state(id);
    s.items << item;
    s.selected << false;
    changed(id, kItemAdded);
}

void ScreenModel::setCaption(int id, const QString& text) {
    if (state(id).text != text) {
        state(id).text = text;
        changed(id, kChangedCaption);
    }
}

} // namespace brevaro
