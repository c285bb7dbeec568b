#pragma once

#include "records/FixedRecord.h"

#include <QJsonObject>

namespace brevaro {

// Every field of the record by its name: texts trimmed, numbers as numbers, arrays as arrays.
QJsonObject recordToJson(const FixedRecord& record);

// A field assignment as the command line writes it: NAME=VALUE or NAME[i]=VALUE.
struct FieldAssignment {
    QString name;
    int index = -1; // -1: no index given
    QString value;
    static bool parse(const QString& text, FieldAssignment* out);
};

// Applies the assignment when the record has such a field; an unknown name leaves the
// record unchanged and returns false with a message.
bool applyAssignment(FixedRecord& record, const FieldAssignment& assignment, QString* message);

} // namespace brevaro
