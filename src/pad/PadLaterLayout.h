#pragma once

#include "pad/PadVersion.h"
#include "records/RecordField.h"

#include <span>

namespace brevaro {

// The shape of a PAD 3.11 or 4.0 document, row by row, in the published element order. The
// rows added by 4.0 are marked; a 3.11 document is the same rows without them. The systems,
// languages and category class are the extra fields of those names when the author set them,
// else they are derived from the 1.15 record. Elements that
// only the closed registry could fill (PublisherID, AppID, the certificate) are not rows.
enum class LaterRowKind {
    Open,           // an opening tag of its own line
    Close,          // a closing tag
    Fixed,          // MASTER_PAD_VERSION, MASTER_PAD_EDITOR, MASTER_PAD_INFO
    Value,          // <E>v</E> from the row's field, or <E /> when empty
    Extra,          // an element whose value only the record's extra fields hold
    YesNo,          // Y/N for a flag that is not 0
    OsTokens,       // the later tokens of the marked operating systems
    Languages,      // the later names of the marked languages
    CategoryClass,  // the "Main::Sub" class proposed from the record
    Expiry,         // the seven expiry elements, in the published order
    Descriptions,   // one block per active language
    Association,    // an extension block, present when its flag (the field) is 1
    MemberYesNo,    // inside an extension block: Y/N for a flag that is exactly 1
    MemberText,     // inside an extension block: the full element even when empty
    AssociationEnd, // closes the block
};

struct LaterPadRow {
    LaterRowKind kind;
    int indent = 0;
    const char* element = nullptr; // the tag, or the element a value row writes
    RecordSide side = RecordSide::None;
    int field = -1;
    bool since40 = false;        // a row 4.0 added
    const char* extra = nullptr; // the extra field that holds the value (see ExtraFields.h)
};

// The rows of a 3.11 or 4.0 document.
std::span<const LaterPadRow> laterPadRows();
// The element a row writes: its own, or that of its record field.
const char* elementOf(const LaterPadRow& row);
// Whether a row belongs to the document of version.
bool inVersion(const LaterPadRow& row, PadVersion version);

} // namespace brevaro
