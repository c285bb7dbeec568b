#pragma once

#include "records/FixedRecord.h"

namespace brevaro {

// A FixedRecord addressed by the field enum of its record type.
template <typename FieldEnum> class TypedRecord : public FixedRecord {
public:
    using Field = FieldEnum;
    using FixedRecord::FixedRecord;
    using FixedRecord::number;
    using FixedRecord::rawText;
    using FixedRecord::setNumber;
    using FixedRecord::setText;
    using FixedRecord::text;
    using FixedRecord::trimText;

    QString rawText(Field f, int i = 0) const { return FixedRecord::rawText(idx(f), i); }
    QString text(Field f, int i = 0) const { return FixedRecord::text(idx(f), i); }
    void setText(Field f, QStringView v, int i = 0) { FixedRecord::setText(idx(f), v, i); }
    QString trimText(Field f, int i = 0) { return FixedRecord::trimText(idx(f), i); }
    int number(Field f, int i = 0) const { return FixedRecord::number(idx(f), i); }
    void setNumber(Field f, int v, int i = 0) { FixedRecord::setNumber(idx(f), v, i); }

private:
    static constexpr int idx(Field f) { return static_cast<int>(f); }
};

} // namespace brevaro
