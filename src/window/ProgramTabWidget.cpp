#include "window/ProgramTabWidget.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace brevaro {

namespace {

// The width from which each column has room for a field and its label side by side.
int twoColumnWidth(const QWidget& page) {
    return page.fontMetrics().averageCharWidth() * 120;
}

} // namespace

ProgramTabWidget::ProgramTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 1, parent) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    for (QVBoxLayout** column : {&m_left, &m_right}) {
        auto* holder = new QWidget(this);
        *column = new QVBoxLayout(holder);
        (*column)->setContentsMargins(0, 0, 0, 0);
        (*column)->addStretch();
        columns->addWidget(holder, 1);
    }
    for (auto name : {"Frame7", "Frame8", "Frame9", "Frame10", "frmPublishing"})
        m_frames << frame(QString::fromLatin1(name));
    // The lists show a handful of entries and scroll.
    for (const auto& [name, rows] : {std::pair{u"lstSupportedOS", 5},
                                     {u"lstLanguages", 5},
                                     {u"lstProgramOSSupport", 3},
                                     {u"lstProgramLanguage", 3}})
        showListRows(name, rows);
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
    for (QWidget* frame : m_frames) {
        m_left->removeWidget(frame);
        m_right->removeWidget(frame);
    }
    // Two columns: the program frame and the later versions' frame on the left, the others on
    // the right. Each column keeps its frames' heights; the room left is below them.
    QList<QWidget*> left = m_frames, right;
    if (twoColumns) {
        left = {m_frames.front(), m_frames.back()};
        right = m_frames.mid(1, m_frames.size() - 2);
    }
    for (QWidget* frame : left)
        m_left->insertWidget(m_left->count() - 1, frame);
    for (QWidget* frame : right)
        m_right->insertWidget(m_right->count() - 1, frame);
    m_right->parentWidget()->setVisible(twoColumns);
}

} // namespace brevaro
