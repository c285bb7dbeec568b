#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace brevaro {

// The versions of the PAD standard Brevaro writes: 1.15 exactly as it always has (Windows-1252),
// and the later 3.11 and 4.0 that directories read today (UTF-8).
enum class PadVersion { V1_15, V3_11, V4_0 };

// "1.15", "3.11" or "4.0".
QString padVersionText(PadVersion version);
// The version a text names, as padVersionText writes it.
std::optional<PadVersion> padVersionFromText(QStringView text);

} // namespace brevaro
