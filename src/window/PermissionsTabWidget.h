#pragma once

#include "window/FormPageWidget.h"

namespace brevaro {

// "Permissions": the distribution agreement and the licence, each a growing box with its
// default, load, save, translate and copy buttons beside it.
class PermissionsTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit PermissionsTabWidget(ControlBindingView& view, QWidget* parent = nullptr);
};

} // namespace brevaro
