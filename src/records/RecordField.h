#pragma once

#include <QStringView>
#include <span>

namespace brevaro {

enum class FieldType { Int32, Int16, Text };

// Which of the two current records a field, a control or a finding belongs to.
enum class RecordSide { None, Company, Program };

// What the PAD importer does with the value of a field's element.
enum class PadImport {
    None,
    Text,         // the field's control takes the value
    CompanyName,  // the company is found or created, then saved
    ProgramName,  // a program is created, then saved
    FlagList,     // the list items named in the value are selected
    CheckExact,   // checked for exactly "Y"
    CheckAnyCase, // checked for "Y" in any letter case
    ExpireOption, // the option named by the value is selected
    Description,  // the box of the language in force; a value activates the language
    Append,       // the value and CR LF are appended to the box
};

// One field of a fixed-length record: its name, type, width (characters, for texts), how many
// consecutive entries it has (arrays) and its byte offset in the record on disk; then where
// the field goes in a PAD file: its element, its caption in the verification report and what
// the importer does with the element.
struct RecordField {
    const char* name;
    FieldType type;
    int width;
    int count;
    int offset;
    const char* padElement = nullptr;
    const char* reportCaption = nullptr;
    PadImport import = PadImport::None;

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
    RecordSide side;
    std::span<const RecordField> fields;
    int length;

    // Index of the field called name, or -1.
    int indexOf(QStringView fieldName) const;
    // The field at index; a bad index is a programming error and stops the program.
    const RecordField& field(int index) const;
};

// True when the fields follow each other without gap or overlap and fill exactly length bytes.
constexpr bool isContiguous(std::span<const RecordField> fields, int length) {
    int next = 0;
    for (const auto& f : fields) {
        if (f.offset != next || f.count < 1 || f.width < 1)
            return false;
        next += f.size();
    }
    return next == length;
}

} // namespace brevaro
