#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro {

// One report line: the caption in bold and the value, or a red marker when it is empty;
// empty when the caption is.
QString FormatFieldLine(const QString& caption, const QString& value);
// Every field the PAD file will hold, one line each.
QString CreateVerificationReport(const CompanyRecord& company, const ProgramRecord& program);
// The page that Verify PAD writes: the web info block, the report and one more CR LF.
QString verificationPage(const CompanyRecord& company, const ProgramRecord& program,
                         const QString& aspSite);

} // namespace brevaro
