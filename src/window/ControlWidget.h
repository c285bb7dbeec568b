#pragma once

#include "controls/ControlTable.h"

class QWidget;

namespace brevaro {

// The widget a control row asks for, set up from the model's state (its limit); nullptr for
// rows that have none (menu items, the window, controls the model holds alone).
QWidget* createControlWidget(const ControlRow& row, const ControlState& state);
// The name a screen reader gives a control: its label, else its caption, else its tooltip,
// else a plain name for a picture or a frame without a caption.
QString controlAccessibleName(const ControlRow& row);

} // namespace brevaro
