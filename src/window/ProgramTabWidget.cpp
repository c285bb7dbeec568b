#include "window/ProgramTabWidget.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QResizeEvent>

namespace brevaro {

namespace {

// The width from which each column has room for a field and its label side by side.
int twoColumnWidth(const QWidget& page) {
    return page.fontMetrics().averageCharWidth() * 120;
}

} // namespace

ProgramTabWidget::ProgramTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 1, parent)
    , m_grid(new QGridLayout(this)) {
    for (auto name : {"Frame7", "Frame8", "Frame9", "Frame10"})
        m_frames << frame(QString::fromLatin1(name));
    // The two lists show a handful of entries and scroll.
    for (auto name : {u"lstSupportedOS", u"lstLanguages"})
        if (auto* list = qobject_cast<QListWidget*>(control(name)))
            list->setMinimumHeight(list->fontMetrics().height() * 6);
    arrange(false);
}

void ProgramTabWidget::resizeEvent(QResizeEvent* event) {
    // The page scrolls sideways once it is narrower than its two columns, so the width that
    // decides is that of the scroll area it shows in, which it watches from its first resize.
    if (QWidget* view = parentWidget(); view && !m_watchingView) {
        view->installEventFilter(this);
        m_watchingView = true;
    }
    chooseColumns(parentWidget() ? parentWidget()->width() : event->size().width());
    FormPageWidget::resizeEvent(event);
}

bool ProgramTabWidget::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        chooseColumns(parentWidget()->width());
    return FormPageWidget::eventFilter(watched, event);
}

void ProgramTabWidget::chooseColumns(int width) {
    const bool wide = width >= twoColumnWidth(*this);
    if (wide != m_twoColumns)
        arrange(wide);
}

void ProgramTabWidget::arrange(bool twoColumns) {
    m_twoColumns = twoColumns;
    for (QWidget* frame : m_frames)
        m_grid->removeWidget(frame);
    for (int row = 0; row <= m_frames.size(); ++row)
        m_grid->setRowStretch(row, 0);
    if (twoColumns) {
        // The program frame beside the others, which keep their height; the room left is
        // below them.
        m_grid->addWidget(m_frames[0], 0, 0, m_frames.size(), 1);
        for (int i = 1; i < m_frames.size(); ++i)
            m_grid->addWidget(m_frames[i], i - 1, 1);
        m_grid->setRowStretch(m_frames.size() - 1, 1);
        m_grid->setColumnStretch(1, 1);
    } else {
        for (int i = 0; i < m_frames.size(); ++i)
            m_grid->addWidget(m_frames[i], i, 0);
        m_grid->setRowStretch(m_frames.size(), 1);
        m_grid->setColumnStretch(1, 0);
    }
    m_grid->setColumnStretch(0, 1);
}

} // namespace brevaro
