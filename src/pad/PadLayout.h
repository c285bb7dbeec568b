#pragma once

#include "records/RecordField.h"

#include <span>

namespace brevaro {

// The shape of a PAD 1.15 document, row by row, from <XML_DIZ_INFO> to its end. The writer and
// the verification report are loops over these rows; a value row names its record field,
// whose element and report caption come from the record's field table.
enum class PadRowKind {
    Line,           // a fixed line (an opening or closing tag); not in the report
    Blank,          // an empty line; not in the report
    Fixed,          // an element with a fixed value (MASTER_PAD_VERSION, MASTER_PAD_INFO)
    Value,          // <E>v</E>, or <E /> when the value is empty
    YesNo,          // Y/N for a flag that is not 0 (YES/NO in the report)
    FlagList,       // the texts of the list items whose flags are set, joined by ","
    Expiry,         // the expiry group: its flag, count or date, and other information
    Descriptions,   // one block per active language (the report shows English only)
    Association,    // an extension block, present when its flag (the field) is 1
    MemberYesNo,    // inside an extension block: Y/N for a flag that is exactly 1
    MemberText,     // inside an extension block: the full element even when empty
    AssociationEnd, // closes the block; an empty line follows in any case
};

struct PadRow {
    PadRowKind kind;
    int indent = 0;
    const char* text = nullptr; // the line, a fixed element's name, or the block's name
    RecordSide side = RecordSide::None;
    int field = -1;
    const char* caption = nullptr; // report caption of a fixed element
};

const std::span<const PadRow> padRows();

// The layout of the record a row's field belongs to.
const RecordLayout& layoutOf(RecordSide side);
// The field of a value row.
const RecordField& fieldOf(const PadRow& row);

} // namespace brevaro
