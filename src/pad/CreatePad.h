#pragma once

#include "pad/PadVersion.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>

namespace brevaro {

// The file name Create PAD proposes: from the PAD file's web address, else the program name.
QString proposedPadFileName(const QString& padUrl, const QString& programName);
// The web info file beside a PAD file: same folder, base name lower-cased, ".htm".
QString companionFileName(const QString& padPath);

// Writes the PAD document of the two records at path (in version, 1.15 by default) and the
// web info block beside it; false with a message when one cannot be written (the companion
// is attempted even then).
bool writePadFiles(const CompanyRecord& company, const ProgramRecord& program,
                   const QString& aspSite, const QString& path, QString* error,
                   PadVersion version = PadVersion::V1_15);
// The PAD version chosen for a program (PAD_Version), 1.15 when none is.
PadVersion chosenPadVersion(const ProgramRecord& program);

} // namespace brevaro
