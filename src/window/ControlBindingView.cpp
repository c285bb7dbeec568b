#include "window/ControlBindingView.h"

#include "controls/ControlIcons.h"
#include "window/ControlWidget.h"
#include "window/DeferredIcon.h"

#include "session/EditingSession.h"
#include "window/LinkLabelWidget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStringListModel>
#include <QTabWidget>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <algorithm>

namespace brevaro {

namespace {

// Multi-line boxes hold CR LF line ends in the records; the editor shows LF.
QString toEditor(const QString& text) {
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

// The editor's text as typed (no-break spaces kept), with LF line ends.
QString editorText(const QPlainTextEdit* e) {
    QString text = e->document()->toRawText();
    for (QChar& c : text)
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator)
            c = u'\n';
    return text;
}

QString fromEditor(const QString& text) {
    QString stored = text;
    stored.replace(u'\n', QStringLiteral("\r\n"));
    return stored;
}

} // namespace

ControlBindingView::ControlBindingView(EditingSession& session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window) {
    const ScreenModel& screen = session.screen();
    for (int id = 0; id < screen.count(); ++id)
        createCommand(id);
    for (int id = 0; id < screen.count(); ++id)
        if (!isDeferred(row(id)))
            create(id);
    connect(&session.screen(), &ScreenModel::controlChanged, this, &ControlBindingView::repaint);
    connect(&session.screen(), &ScreenModel::focusRequested, this, [this](int id) {
        // After the tab changes that the same command asked for (they are shown from the
        // event loop too), so the field is on screen when it takes the focus.
        QTimer::singleShot(0, this, [this, id] {
            if (QWidget* w = widget(id); w && w->isEnabled()) {
                ++m_painting;
                w->setFocus(Qt::OtherFocusReason);
                --m_painting;
            }
        });
    });
    connect(&session.screen(), &ScreenModel::caretRequested, this, &ControlBindingView::caret);
    connect(&session.screen(), &ScreenModel::flashRequested, this, &ControlBindingView::flash);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { focusChanged(now); });
}

bool ControlBindingView::isDeferred(const ControlRow& row) {
    return row.place == Place::MainTab || row.place == Place::LanguagePage;
}

void ControlBindingView::createTab(int tab) {
    for (int id = 0; id < m_session.screen().count(); ++id)
        if (const ControlRow& r = row(id);
            r.place == Place::MainTab && r.placeIndex == tab && !m_created.contains(id))
            create(id);
    std::sort(m_ids.begin(), m_ids.end());
}

void ControlBindingView::completeWidgets() {
    for (int id = 0; id < m_session.screen().count(); ++id)
        if (isDeferred(row(id)) && !m_created.contains(id))
            create(id);
    std::sort(m_ids.begin(), m_ids.end());
}

QWidget* ControlBindingView::widget(int id) const {
    return m_widgets.value(id);
}

QWidget* ControlBindingView::widget(QStringView name, int index) const {
    return widget(m_session.id(name, index));
}

QAction* ControlBindingView::action(int id) const {
    return m_actions.value(id);
}

const ControlRow& ControlBindingView::row(int id) const {
    return m_session.row(id);
}

QWidget* ControlBindingView::labelFor(int id) {
    const ControlRow& r = row(id);
    QWidget* w = widget(id);
    if (r.label.isEmpty() || !w)
        return nullptr;
    QWidget*& label = m_labels[id];
    if (!label) {
        auto* l = new QLabel(r.label);
        l->setBuddy(w);
        label = l;
    }
    return label;
}

// A command is the first menu entry that runs it; the link entries open each their own page.
void ControlBindingView::createCommand(int id) {
    const ControlRow& r = row(id);
    if (r.widget != WidgetType::MenuItem || r.action == ControlAction::None ||
        r.action == ControlAction::OpenLink || m_commands.contains(r.action))
        return;
    auto* a = new QAction(r.caption, this);
    a->setObjectName(r.objectName());
    if (const QString icon = iconPath(r); !icon.isEmpty())
        a->setIcon(deferredIcon(icon));
    connect(a, &QAction::triggered, this, [this, action = r.action] { m_session.trigger(action); });
    m_commands.insert(r.action, a);
    m_actions.insert(id, a);
}

void ControlBindingView::create(int id) {
    const ControlRow& r = row(id);
    m_ids.push_back(id);
    m_created.insert(id);
    if (m_actions.contains(id))
        return;
    if (r.widget == WidgetType::MenuItem || r.widget == WidgetType::MenuSeparator) {
        // A separator has no text: screen readers would read its "-".
        const bool separator = r.widget == WidgetType::MenuSeparator;
        auto* a = new QAction(separator ? QString() : r.caption, this);
        a->setObjectName(r.objectName());
        a->setSeparator(separator);
        if (const QString icon = iconPath(r); !icon.isEmpty())
            a->setIcon(deferredIcon(icon));
        // A second entry of a command (Tools, Submit) runs the command's action.
        if (QAction* shared = command(r.action))
            connect(a, &QAction::triggered, shared, &QAction::trigger);
        else
            connect(a, &QAction::triggered, this, [this, id] { m_session.screen().click(id); });
        m_actions.insert(id, a);
        return;
    }
    QWidget* w = r.widget == WidgetType::Window ? m_window
                                                : createControlWidget(r, m_session.screen().at(id));
    if (qobject_cast<QComboBox*>(w))
        w->installEventFilter(this);
    if (!w)
        return;
    if (w != m_window) {
        w->setObjectName(r.objectName());
        if (r.place == Place::Hidden) {
            w->setParent(m_window);
            w->hide();
        }
    }
    m_widgets.insert(id, w);
    m_idOf.insert(w, id);
    if (auto* b = qobject_cast<QAbstractButton*>(w); b && !iconPath(r).isEmpty()) {
        b->setIcon(deferredIcon(iconPath(r)));
        // A picture button shows its down picture while it is held.
        if (const QString down = iconPath(r, true); down != iconPath(r)) {
            connect(b, &QAbstractButton::pressed, b, [b, down] { b->setIcon(QIcon(down)); });
            connect(b, &QAbstractButton::released, b,
                    [b, up = iconPath(r)] { b->setIcon(QIcon(up)); });
        }
    }
    const QString name = controlAccessibleName(r);
    if (!name.isEmpty() && w != m_window) {
        w->setAccessibleName(name);
        if (auto* c = qobject_cast<QComboBox*>(w); c && c->lineEdit())
            c->lineEdit()->setAccessibleName(name);
    }
    bindUserSignals(id, w);
}

void ControlBindingView::bindUserSignals(int id, QWidget* w) {
    ScreenModel& screen = m_session.screen();
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
        connect(e, &QLineEdit::textEdited, this,
                [&screen, id](const QString& t) { screen.setText(id, t); });
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(w)) {
        connect(e, &QPlainTextEdit::textChanged, this, [this, e, id] {
            if (m_painting)
                return;
            // The box's limit counts stored characters (a line end is two). What goes over it
            // is taken off what was just typed or pasted, before the caret, as one undoable
            // step; the rest of the text stays.
            QString text = fromEditor(editorText(e));
            const int limit = m_session.screen().at(id).maxLength;
            if (limit > 0 && text.size() > limit) {
                ++m_painting;
                QTextCursor cursor = e->textCursor();
                cursor.joinPreviousEditBlock();
                while (text.size() > limit && cursor.position() > 0) {
                    cursor.deletePreviousChar();
                    text = fromEditor(editorText(e));
                }
                cursor.endEditBlock();
                e->setTextCursor(cursor);
                --m_painting;
            }
            m_session.screen().setText(id, text);
        });
    } else if (auto* c = qobject_cast<QComboBox*>(w)) {
        connect(c, &QComboBox::activated, this, [&screen, id](int i) {
            // Picking the shown entry again still clicks, as a list does.
            screen.setListIndex(id, i);
        });
        if (c->lineEdit())
            connect(c->lineEdit(), &QLineEdit::textEdited, this,
                    [&screen, id](const QString& t) { screen.setText(id, t); });
    } else if (auto* l = qobject_cast<QListWidget*>(w)) {
        connect(l, &QListWidget::itemSelectionChanged, this, [this, l, id] {
            if (m_painting)
                return;
            ScreenModel& model = m_session.screen();
            // Read the whole selection first: each change repaints the list from the model.
            QList<bool> wanted;
            for (int i = 0; i < l->count(); ++i)
                wanted << l->item(i)->isSelected();
            for (int i = 0; i < wanted.size(); ++i)
                if (i < model.at(id).selected.size() && model.at(id).selected[i] != wanted[i])
                    model.setItemSelected(id, i, wanted[i]);
        });
    } else if (auto* b = qobject_cast<QCheckBox*>(w)) {
        connect(b, &QCheckBox::clicked, this,
                [&screen, id](bool on) { screen.setValue(id, on ? 1 : 0); });
    } else if (auto* b = qobject_cast<QRadioButton*>(w)) {
        connect(b, &QRadioButton::clicked, this, [this, &screen, b, id] {
            screen.setValue(id, 1);
            repaint(id, kChangedValue);
            b->setFocus();
        });
    } else if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        // A button of a command runs the command's action, as its menu entry does.
        if (QAction* shared = command(row(id).action))
            connect(b, &QAbstractButton::clicked, shared, &QAction::trigger);
        else
            connect(b, &QAbstractButton::clicked, this, [&screen, id] { screen.click(id); });
    } else if (auto* link = qobject_cast<LinkLabelWidget*>(w)) {
        connect(link, &LinkLabelWidget::clicked, this, [&screen, id] { screen.click(id); });
    } else if (row(id).widget == WidgetType::BannerImage) {
        w->installEventFilter(this);
    } else if (auto* t = qobject_cast<QTabWidget*>(w)) {
        connect(t, &QTabWidget::currentChanged, this, [this, &screen, id](int i) {
            if (m_painting || screen.at(id).listIndex == i)
                return;
            screen.setListIndex(id, i);
        });
    }
}

bool ControlBindingView::eventFilter(QObject* watched, QEvent* event) {
    // Scrolling a page over a drop-down does not change its entry.
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    // The banner image is a picture that clicks.
    if (event->type() == QEvent::MouseButtonRelease &&
        row(m_idOf.value(static_cast<QWidget*>(watched))).widget == WidgetType::BannerImage) {
        const auto found = m_idOf.constFind(static_cast<QWidget*>(watched));
        if (found != m_idOf.constEnd())
            m_session.screen().click(*found);
    }
    return QObject::eventFilter(watched, event);
}

void ControlBindingView::repaintAll() {
    for (int id : m_ids)
        repaint(id, ~0u);
}

void ControlBindingView::repaint(int id, unsigned what) {
    const ControlState& s = m_session.screen().at(id);
    if (QAction* a = action(id)) {
        if (what & kChangedEnabled)
            a->setEnabled(s.enabled);
        if (what & kChangedVisible)
            a->setVisible(s.visible);
        return;
    }
    QWidget* w = widget(id);
    if (!w)
        return;
    ++m_painting;
    if (w == m_window) {
        if (what & (kChangedCaption | kChangedText))
            w->setWindowTitle(s.text);
    } else {
        if (what & kChangedEnabled)
            w->setEnabled(s.enabled);
        // Only what the model hides is shown again: a page of a tab control that is not
        // on top stays hidden.
        if ((what & kChangedVisible) && row(id).place != Place::Hidden) {
            if (!s.visible && !w->isHidden()) {
                w->hide();
                m_hiddenByModel.insert(w);
            } else if (s.visible && m_hiddenByModel.remove(w)) {
                w->show();
            }
        }
        if ((what & kChangedToolTip) && !s.toolTip.isEmpty())
            w->setToolTip(s.toolTip);
        repaintValue(id, w, what);
    }
    --m_painting;
}

void ControlBindingView::repaintValue(int id, QWidget* w, unsigned what) {
    const ControlState& s = m_session.screen().at(id);
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
        if ((what & kChangedText) && e->text() != s.text) {
            if (what & kReplacedByCommand) {
                // As typed over a selection of everything: Ctrl+Z brings the old text back.
                e->selectAll();
                e->insert(s.text);
            } else {
                e->setText(s.text);
            }
            // A loaded text shows from its start, as a freshly filled box does.
            e->setCursorPosition(0);
        }
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(w)) {
        if ((what & kChangedText) && fromEditor(editorText(e)) != s.text) {
            if (what & kReplacedByCommand) {
                QTextCursor all(e->document());
                all.select(QTextCursor::Document);
                all.insertText(toEditor(s.text)); // one undoable step
            } else {
                e->setPlainText(toEditor(s.text));
            }
        }
    } else if (auto* c = qobject_cast<QComboBox*>(w)) {
        const QSignalBlocker block(c);
        if (what & kChangedItems) {
            if (auto* strings = qobject_cast<QStringListModel*>(c->model())) {
                strings->setStringList(s.items);
            } else {
                c->clear();
                c->addItems(s.items);
            }
        } else if (what & kItemAdded) {
            // A list filled one entry at a time grows by one entry at a time.
            c->addItem(s.items.constLast());
        }
        // What the user is typing stays as it is (caret included): the model took it.
        const bool typed = c->isEditable() && c->lineEdit()->text() == s.text &&
                           !(what & (kChangedItems | kItemAdded));
        if ((what & (kChangedSelection | kChangedText | kChangedItems | kItemAdded)) && !typed) {
            if (c->currentIndex() != s.listIndex)
                c->setCurrentIndex(s.listIndex);
            if (c->isEditable() && c->currentText() != s.text) {
                c->setEditText(s.text);
                c->lineEdit()->setCursorPosition(0);
            }
        }
    } else if (auto* l = qobject_cast<QListWidget*>(w)) {
        if (what & kChangedItems) {
            l->clear();
            l->addItems(s.items);
        } else if (what & kItemAdded) {
            l->addItem(s.items.constLast());
        }
        if (what & (kChangedSelection | kChangedItems))
            for (int i = 0; i < l->count() && i < s.selected.size(); ++i)
                if (l->item(i)->isSelected() != s.selected[i])
                    l->item(i)->setSelected(s.selected[i]);
    } else if (auto* b = qobject_cast<QCheckBox*>(w)) {
        if (what & kChangedValue)
            b->setChecked(s.value != 0);
        if ((what & kChangedCaption) && !s.text.isEmpty())
            b->setText(s.text);
    } else if (auto* b = qobject_cast<QRadioButton*>(w)) {
        if (what & kChangedValue)
            b->setChecked(s.value != 0);
    } else if (auto* t = qobject_cast<QTabWidget*>(w)) {
        if ((what & kChangedSelection) && s.listIndex >= 0 && t->currentIndex() != s.listIndex) {
            // A refused tab change is put back after the click that asked for it has ended.
            QTimer::singleShot(0, t, [this, t, id] {
                ++m_painting;
                t->setCurrentIndex(m_session.screen().at(id).listIndex);
                --m_painting;
            });
        }
    } else if (auto* bar = qobject_cast<QStatusBar*>(w)) {
        if (what & (kChangedCaption | kChangedText))
            bar->findChild<QLabel*>(QStringLiteral("StatusText"))->setText(s.text);
    } else if (auto* link = qobject_cast<LinkLabelWidget*>(w)) {
        if ((what & (kChangedCaption | kChangedText)) && !s.text.isEmpty())
            link->setText(s.text);
    } else if (auto* label = qobject_cast<QLabel*>(w)) {
        if ((what & (kChangedCaption | kChangedText)) && !row(id).caption.isEmpty())
            label->setText(s.text.isEmpty() ? row(id).caption : s.text);
        else if (what & (kChangedCaption | kChangedText))
            label->setText(s.text);
    } else if (auto* box = qobject_cast<QGroupBox*>(w)) {
        if ((what & kChangedCaption) && !s.text.isEmpty())
            box->setTitle(s.text);
    }
}

void ControlBindingView::focusChanged(QWidget* now) {
    // Focus moved by a repaint (a tab put back) is not the user entering a field.
    if (m_painting)
        return;
    for (QWidget* w = now; w; w = w->parentWidget()) {
        const auto found = m_idOf.constFind(w);
        if (found == m_idOf.constEnd())
            continue;
        if (w != m_window && m_session.screen().focused() != *found)
            m_session.screen().focus(*found);
        return;
    }
}

void ControlBindingView::caret(int id, int position) {
    QWidget* w = widget(id);
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
        e->setCursorPosition(position);
    } else if (auto* e = qobject_cast<QPlainTextEdit*>(w)) {
        // Positions count stored characters; the editor has one character per line end.
        const QString before = m_session.screen().at(id).text.left(position);
        QTextCursor cursor = e->textCursor();
        cursor.setPosition(static_cast<int>(toEditor(before).size()));
        e->setTextCursor(cursor);
    } else if (auto* c = qobject_cast<QComboBox*>(w); c && c->lineEdit()) {
        c->lineEdit()->setCursorPosition(position);
    }
}

void ControlBindingView::flash(int id) {
    QWidget* w = widget(id);
    if (!w)
        return;
    // White on black for a moment: the copy has happened. A second flash before the first has
    // ended keeps the palette saved by the first.
    if (!m_flashing.contains(w))
        m_flashing.insert(w, {w->palette(), 0});
    ++m_flashing[w].pending;
    QPalette inverted = m_flashing[w].normal;
    for (auto role : {QPalette::Base, QPalette::Window})
        inverted.setColor(role, Qt::black);
    for (auto role : {QPalette::Text, QPalette::WindowText})
        inverted.setColor(role, Qt::white);
    w->setPalette(inverted);
    w->repaint();
    QTimer::singleShot(250, w, [this, w] {
        auto found = m_flashing.find(w);
        if (found == m_flashing.end() || --found->pending > 0)
            return;
        w->setPalette(found->normal);
        m_flashing.erase(found);
    });
}

} // namespace brevaro
