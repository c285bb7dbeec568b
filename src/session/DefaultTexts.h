#pragma once

#include <QString>

namespace brevaro {

// The default distribution permissions for a program of the given type (names upper-case).
QString defaultDistributionText(const QString& program, const QString& type);
// The default end user licence agreement.
QString defaultLicenceText(const QString& program, const QString& company);

} // namespace brevaro
