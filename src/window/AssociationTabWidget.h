#pragma once

#include "window/FormPageWidget.h"

namespace brevaro {

// One of the four extension tabs (ASP, ESC, MSN, TPA): its title, the check box that puts
// the extension into the PAD file, the member frame and, where there is one, the
// organisation's frame with its link.
class AssociationTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    // extension: 0 ASP, 1 ESC, 2 MSN, 3 TPA.
    AssociationTabWidget(ControlBindingView& view, int extension, QWidget* parent = nullptr);
};

} // namespace brevaro
