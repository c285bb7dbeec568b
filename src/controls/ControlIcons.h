#pragma once

#include "controls/ControlTable.h"

namespace brevaro {

// The picture a control carries (a resource path under ":/icons/"), empty for none. down: the
// picture shown while a picture button is held down.
QString iconPath(const ControlRow& row, bool down = false);

} // namespace brevaro
