#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

namespace brevaro {

// The HTML block that presents the program on the author's own pages; aspSite is the address
// the ASP membership link points to. Every line ends with CR LF.
QString CreateWebInfo(const CompanyRecord& company, const ProgramRecord& program,
                      const QString& aspSite);

} // namespace brevaro
