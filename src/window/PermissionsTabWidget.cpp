#include "window/PermissionsTabWidget.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace brevaro {

PermissionsTabWidget::PermissionsTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 4, parent) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(frame(QStringLiteral("Frame13")), 1);
    column->addWidget(frame(QStringLiteral("Frame14")), 1);
}

} // namespace brevaro
