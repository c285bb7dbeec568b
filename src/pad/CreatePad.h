#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>

namespace brevaro {

// The file name Create PAD proposes: from the PAD file's web address, else the program name.
QString proposedPadFileName(const QString& padUrl, const QString& programName);
// The web info file beside a PAD file: same folder, base name lower-cased, ".htm".
QString companionFileName(const QString& padPath);

// Writes the PAD document of the two records at path and the web info block beside it;
// false with a message when one cannot be written (the companion is attempted even then).
bool writePadFiles(const CompanyRecord& company, const ProgramRecord& program,
                   const QString& aspSite, const QString& path, QString* error);

} // namespace brevaro
