#include "window/FormPageWidget.h"

#include "session/EditingSession.h"
#include "window/ControlBindingView.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace brevaro {

namespace {

// Static labels that caption the row of the control they sit beside.
bool captionsItsRow(const ControlRow& row) {
    return row.widget == WidgetType::Label && !row.beside.isEmpty() && !row.caption.isEmpty() &&
           row.caption != QLatin1String("0 of 0");
}

bool isTall(QWidget* w) {
    return qobject_cast<QAbstractScrollArea*>(w) != nullptr;
}

} // namespace

FormPageWidget::FormPageWidget(ControlBindingView& view, int tab, QWidget* parent)
    : QWidget(parent)
    , m_view(view)
    , m_tab(tab) {}

QWidget* FormPageWidget::control(QStringView name, int index) {
    return m_view.widget(name, index);
}

void FormPageWidget::showListRows(QStringView name, int rows) {
    auto* list = qobject_cast<QListWidget*>(control(name));
    if (!list)
        return;
    const int height = list->fontMetrics().height() * rows + 2 * list->frameWidth();
    list->setMinimumHeight(height);
    if (rows < 5)
        list->setMaximumHeight(height + 4);
}

QGroupBox* FormPageWidget::frame(const QString& name) {
    auto* box = qobject_cast<QGroupBox*>(m_view.widget(m_view.session().id(name)));
    if (!box)
        qFatal("%s is not a frame", qPrintable(name));
    if (!box->layout()) {
        auto* form = new QFormLayout(box);
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        fillRows(name, form);
    }
    return box;
}

void FormPageWidget::fillRows(const QString& frameName, QLayout* layout) {
    auto* form = qobject_cast<QFormLayout*>(layout);
    QHBoxLayout* frames = nullptr; // consecutive inner frames share one row
    for (int id : m_view.ids()) {
        const ControlRow& r = m_view.row(id);
        const bool onThisPage =
            r.place == Place::MainTab && r.placeIndex == m_tab && r.frame == frameName;
        if (!onThisPage || !r.beside.isEmpty() || !m_view.widget(id))
            continue;
        if (r.widget == WidgetType::Frame) {
            if (!frames) {
                frames = new QHBoxLayout;
                form ? form->addRow(frames) : static_cast<void>(layout->addItem(frames));
            }
            frames->addWidget(frame(r.objectName()));
            continue;
        }
        frames = nullptr;
        QWidget* w = rowWidget(id, frameName);
        // A field its frame already names needs no label of its own.
        auto* box = qobject_cast<QGroupBox*>(layout->parentWidget());
        QWidget* label = box && box->title() == r.label ? nullptr : m_view.labelFor(id);
        for (int other : m_view.ids())
            if (m_view.row(other).beside == r.name && captionsItsRow(m_view.row(other)))
                label = m_view.widget(other);
        if (auto* text = qobject_cast<QLabel*>(label); form && text && text->text().size() > 40) {
            // A sentence that introduces the field stands on its own line above it.
            text->setWordWrap(true);
            form->addRow(text);
            form->addRow(w);
        } else if (form && label)
            form->addRow(label, w);
        else if (form)
            form->addRow(w);
        else
            layout->addWidget(w);
    }
}

// The control with what sits beside it: buttons to the right of a line, stacked beside a box.
QWidget* FormPageWidget::rowWidget(int id, const QString& frameName) {
    const ControlRow& r = m_view.row(id);
    QWidget* main = m_view.widget(id);
    QList<QWidget*> beside;
    QList<QWidget*> nextSteps; // the second box of a choice made in two steps
    for (int other : m_view.ids()) {
        const ControlRow& o = m_view.row(other);
        if (o.beside == r.name && o.frame == frameName && o.place == Place::MainTab &&
            !captionsItsRow(o) && m_view.widget(other)) {
            beside << m_view.widget(other);
            if (o.source == r.name)
                nextSteps << m_view.widget(other);
        }
    }
    if (beside.isEmpty())
        return main;
    auto* row = new QWidget;
    auto* h = new QHBoxLayout(row);
    h->setContentsMargins(0, 0, 0, 0);
    // A check box keeps its size; the box beside it takes the room.
    const bool grows = !qobject_cast<QAbstractButton*>(main);
    h->addWidget(main, grows ? 1 : 0);
    if (isTall(main)) {
        auto* column = new QVBoxLayout;
        for (QWidget* b : beside)
            column->addWidget(b);
        column->addStretch();
        h->addLayout(column);
    } else {
        for (QWidget* b : beside)
            h->addWidget(
                b, nextSteps.contains(b) || (!grows && !qobject_cast<QAbstractButton*>(b)) ? 1 : 0);
    }
    return row;
}

} // namespace brevaro
