#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>

namespace brevaro {

// The PAD file that Create PAD wrote for a program, in the company's folder under padFolder:
// the file of the name Create PAD proposes (from the PAD file address, else the program name)
// with ".xml", else the newest ".xml" there that names the program in its Program_Name.
// Empty when there is none.
QString findCreatedPadFile(const QString& padFolder, const CompanyRecord& company,
                           const ProgramRecord& program);

} // namespace brevaro
