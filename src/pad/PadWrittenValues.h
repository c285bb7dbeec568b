#pragma once

#include "pad/PadVersion.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>
#include <vector>

namespace brevaro {

// One value element of the PAD document as the writer writes it, with the field it comes from.
struct PadWrittenValue {
    QString element;
    QString value;
    RecordSide side = RecordSide::None;
    int field = -1; // index into the record layout of side
    int entry = 0;  // entry of an array field (the description language)
    QString extra;  // or the extra field the value comes from (ExtraFields.h)
};

// The author's values of the PAD document of the two records, in the writer's order: every
// text element, the system and language lists, the expiry elements written for the chosen
// expiry, the descriptions of the active languages and the texts of the active extensions.
// Fixed texts (the master version block, Y/N flags other than Has_Expire_Info) are left out.
std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program);
// The same for the document of a version; for 3.11 and 4.0 the systems, languages and category
// class are the tokens written, and the expiry has its seven elements.
std::vector<PadWrittenValue> padWrittenValues(const CompanyRecord& company,
                                              const ProgramRecord& program, PadVersion version);

} // namespace brevaro
