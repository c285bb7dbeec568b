#pragma once

namespace brevaro {

// True when the program runs with the system administrator's rights (root on Linux).
bool isSuperUser();

} // namespace brevaro
