#pragma once

#include "records/RecordField.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace brevaro {

// One fixed list of values and the record field it offers them for.
struct ValueList {
    static constexpr int kNoSelection = -1; // multi-select list boxes start with nothing selected
    static constexpr int kUnchanged = -2;   // the selection is left as it was

    RecordSide side;
    int field;
    bool clearFirst;
    QStringList items;
    int selected;
};

// Every value list, in the order in which the main window fills them.
const std::vector<ValueList>& valueLists();
// The list of a record field; nullptr when the field has none.
const ValueList* valueListOf(RecordSide side, int field);
enum class CompanyField;
enum class ProgramField;
inline const ValueList* valueListOf(CompanyField field) {
    return valueListOf(RecordSide::Company, static_cast<int>(field));
}
inline const ValueList* valueListOf(ProgramField field) {
    return valueListOf(RecordSide::Program, static_cast<int>(field));
}

// Shorthands for the lists that records and PAD files index by position.
const QStringList& operatingSystemList();
const QStringList& languageList();
// The countries of the company's country list, "United States" first.
const QStringList& countryNames();

} // namespace brevaro
