#pragma once

#include <future>

namespace brevaro {

// Work given to std::async runs on a thread of its own or, where no thread can be made (a
// limit on processes), on the thread that asks for its result: slower, never a failure.
inline constexpr std::launch kThreadOrHere = std::launch::async | std::launch::deferred;

} // namespace brevaro
