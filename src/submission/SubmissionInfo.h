#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <QString>
#include <vector>

namespace brevaro {

// One entry of the submission browser's info list: its running number, label and value.
struct InfoEntry {
    QString number;
    QString label;
    QString value;

    // Headings ("> ... <") and separators ("-") are not fields: they cannot be copied.
    bool isField() const;
};

// Every PAD field of the two records, grouped under headings and closed by separators, in
// the order the info list shows them. Labels and values are trimmed of blanks; dates are
// month "/" day "/" year of the fixed-width fields as they stand.
std::vector<InfoEntry> FillInfoList(const CompanyRecord& company, const ProgramRecord& program);

// What the info label shows for a picked value: its first 36 characters, then " ..." when
// it is longer.
QString infoPreview(const QString& value);

} // namespace brevaro
