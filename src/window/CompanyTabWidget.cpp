#include "window/CompanyTabWidget.h"

#include <QGridLayout>
#include <QGroupBox>

namespace brevaro {

CompanyTabWidget::CompanyTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 0, parent) {
    auto* grid = new QGridLayout(this);
    grid->addWidget(frame(QStringLiteral("Frame1")), 0, 0, 2, 1);
    grid->addWidget(frame(QStringLiteral("Frame2")), 0, 1);
    grid->addWidget(frame(QStringLiteral("Frame3")), 1, 1);
    grid->addWidget(frame(QStringLiteral("Frame4")), 2, 0, 1, 2);
    grid->addWidget(frame(QStringLiteral("frmCompanyPages")), 3, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    grid->setRowStretch(4, 1);
}

} // namespace brevaro
