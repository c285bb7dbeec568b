#pragma once

#include "window/FormPageWidget.h"

namespace brevaro {

// "Program Info": the program frame, the distribution file, the expiry and the
// miscellaneous information, one below the other.
class ProgramTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit ProgramTabWidget(ControlBindingView& view, QWidget* parent = nullptr);
};

} // namespace brevaro
