#include "pad/PadVersion.h"

namespace brevaro {

QString padVersionText(PadVersion version) {
    switch (version) {
    case PadVersion::V1_15:
        return QStringLiteral("1.15");
    case PadVersion::V3_11:
        return QStringLiteral("3.11");
    case PadVersion::V4_0:
        return QStringLiteral("4.0");
    }
    return QString();
}

std::optional<PadVersion> padVersionFromText(QStringView text) {
    for (PadVersion v : {PadVersion::V1_15, PadVersion::V3_11, PadVersion::V4_0})
        if (text == padVersionText(v))
            return v;
    return std::nullopt;
}

} // namespace brevaro
