#pragma once

#include "window/FormPageWidget.h"

namespace brevaro {

// "Company Info": the company frame on the left, author and contact on the right, the
// support addresses and phone numbers below.
class CompanyTabWidget : public FormPageWidget {
    Q_OBJECT
public:
    explicit CompanyTabWidget(ControlBindingView& view, QWidget* parent = nullptr);
};

} // namespace brevaro
