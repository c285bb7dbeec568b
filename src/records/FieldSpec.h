#pragma once

#include <QStringView>
#include <span>

namespace brevaro {

enum class FieldType { Int32, Int16, Text };

// One field of a fixed-length record: its name, type, width (characters, for texts), how many
// consecutive entries it has (arrays) and its byte offset in the record on disk.
struct FieldSpec {
    const char* name;
    FieldType type;
    int width;
    int count;
    int offset;

    constexpr int entrySize() const {
        return type == FieldType::Text ? width : (type == FieldType::Int32 ? 4 : 2);
    }
    constexpr int size() const { return entrySize() * count; }
    constexpr int entryOffset(int index) const { return offset + index * entrySize(); }
    constexpr bool isText() const { return type == FieldType::Text; }
};

// The complete description of one record type.
struct RecordLayout {
    const char* name;
    std::span<const FieldSpec> fields;
    int length;

    // Index of the field called name, or -1.
    int indexOf(QStringView fieldName) const;
};

// True when the fields follow each other without gap or overlap and fill exactly length bytes.
constexpr bool isContiguous(std::span<const FieldSpec> fields, int length) {
    int next = 0;
    for (const auto& f : fields) {
        if (f.offset != next || f.count < 1 || f.width < 1)
            return false;
        next += f.size();
    }
    return next == length;
}

} // namespace brevaro
