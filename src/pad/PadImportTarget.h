#pragma once

#include "records/RecordField.h"

#include <QString>

namespace brevaro {

// Where the PAD importer puts what it reads: the main window's fields, addressed by record
// field. The editing session implements it; the importer knows nothing of controls.
class PadImportTarget {
public:
    virtual ~PadImportTarget() = default;
    // The company the file names: shown when it exists, created otherwise, then saved.
    virtual void importCompany(const QString& name) = 0;
    // A new program of that name for the shown company, saved at once.
    virtual void importProgram(const QString& name) = 0;
    // The text, list item or check state of the control that shows a field's entry.
    virtual QString fieldText(RecordSide side, int field, int entry) const = 0;
    virtual void setFieldText(RecordSide side, int field, int entry, const QString& value) = 0;
    virtual void setFieldFlag(RecordSide side, int field, int entry, bool on) = 0;
    // A field beyond the 1.15 record (see ExtraFields.h), by its name.
    virtual void setExtraValue(RecordSide side, const QString& name, const QString& value) = 0;
};

} // namespace brevaro
