#pragma once

#include "pad/PadCheck.h"
#include "records/RecordField.h"

#include <QString>
#include <vector>

namespace brevaro {

// How the window names a record field: the label beside its control (else the control's own
// caption, else the caption of the label placed beside it) and its place: the tab, then the
// frame's caption or the description language. Empty when no control shows the field.
QString fieldLabel(RecordSide side, int field, int entry = 0);
QString fieldPlace(RecordSide side, int field, int entry = 0);

// The PAD check's findings with the label and place of each one's field filled in.
std::vector<PadFinding> withFieldLabels(std::vector<PadFinding> findings);

} // namespace brevaro
