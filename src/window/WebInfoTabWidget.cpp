#include "window/WebInfoTabWidget.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace brevaro {

WebInfoTabWidget::WebInfoTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 3, parent) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(frame(QStringLiteral("Frame11")));
    column->addWidget(frame(QStringLiteral("Frame12")));
    column->addStretch();
}

} // namespace brevaro
