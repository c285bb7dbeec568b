#include "window/ProgramTabWidget.h"

#include <QGroupBox>
#include <QListWidget>
#include <QVBoxLayout>

namespace brevaro {

ProgramTabWidget::ProgramTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 1, parent) {
    // One column: the tab is long and scrolls, but never sideways.
    auto* column = new QVBoxLayout(this);
    for (auto name : {"Frame7", "Frame8", "Frame9", "Frame10"})
        column->addWidget(frame(QString::fromLatin1(name)));
    column->addStretch();
    // The two lists show a handful of entries and scroll.
    for (auto name : {u"lstSupportedOS", u"lstLanguages"})
        if (auto* list = qobject_cast<QListWidget*>(control(name)))
            list->setMinimumHeight(list->fontMetrics().height() * 6);
}

} // namespace brevaro
