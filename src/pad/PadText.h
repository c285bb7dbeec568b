#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>

namespace brevaro {

// Texts shared by the PAD document, the web info block and the verification report.
QString padStandardDescription();
QString createdByComment();   // "<!-- Created By Brevaro version: 1.0.0 -->"
QString availableAtComment(); // "<!-- Available for download at: <product site> -->"

// The item texts of the list whose flags are set (non-zero), joined with "," and no blank.
QString joinedFlagTexts(const ProgramRecord& program, ProgramField field, const QStringList& items);
// "Days", "Uses" or "Either/Or" for the highest of the first three expiry flags set, else empty.
QString expireBasedOnCaption(const ProgramRecord& program);

// The PAD 1.15 document of the two records; every line ends with CR LF.
QString CreatePADText(const CompanyRecord& company, const ProgramRecord& program);

} // namespace brevaro
