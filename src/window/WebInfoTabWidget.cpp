#include "window/WebInfoTabWidget.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace brevaro {

WebInfoTabWidget::WebInfoTabWidget(ControlBindingView& view, QWidget* parent)
    : FormPageWidget(view, 3, parent) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(frame(QStringLiteral("Frame11")));
    column->addWidget(frame(QStringLiteral("Frame12")));
    column->addWidget(frame(QStringLiteral("frmProgramPages")));
    column->addWidget(frame(QStringLiteral("frmPressRelease")));
    column->addWidget(frame(QStringLiteral("frmNewsFeed")));
    column->addStretch();
    // The short lists show a few entries and scroll.
    for (const auto& [name, rows] : {std::pair{u"lstWindowsVersions", 2},
                                     {u"lstLinuxPackages", 3},
                                     {u"lstInstallerArchitectures", 3}})
        showListRows(name, rows);
}

} // namespace brevaro
