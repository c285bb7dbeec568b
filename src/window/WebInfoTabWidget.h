#pragma once

#include "window/FormPageWidget.h"

namespace brevaro {

// "Web Info": the general addresses above the download addresses, each with its browse and
// copy buttons.
class WebInfoTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit WebInfoTabWidget(ControlBindingView& view, QWidget* parent = nullptr);
};

} // namespace brevaro
