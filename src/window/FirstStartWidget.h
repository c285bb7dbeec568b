#pragma once

#include <QWidget>

namespace brevaro {

class ControlBindingView;

// What the form area shows while the home holds no company: what to do first, with the two
// commands that start (New Company, Import PAD).
class FirstStartWidget : public QWidget {
    Q_OBJECT
public:
    explicit FirstStartWidget(ControlBindingView& view, QWidget* parent = nullptr);
};

} // namespace brevaro
