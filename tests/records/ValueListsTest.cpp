#include "records/ValueLists.h"
#include "controls/ControlTable.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <gtest/gtest.h>

using namespace brevaro;

// Every list fills a list control of its field, and every list control of a field has a list:
// a list keyed to the wrong field would leave a box empty.
TEST(ValueLists, EachFillsTheControlOfItsField) {
    for (const ValueList& list : valueLists()) {
        const int id = controlOfField(list.side, list.field);
        ASSERT_GE(id, 0) << list.field;
        const ControlRow& row = mainWindowControls()[static_cast<std::size_t>(id)];
        EXPECT_TRUE(row.kind == ControlKind::ComboBox || row.kind == ControlKind::ListBox)
            << row.name.toStdString();
    }
    for (const ControlRow& row : mainWindowControls()) {
        // The extra fields' lists are their own (ExtraFields.h).
        if (row.side == RecordSide::None || !row.extra.isEmpty() ||
            row.name == QLatin1String("cboCompanyName") ||
            row.name == QLatin1String("cboProgramName"))
            continue;
        if (row.kind == ControlKind::ComboBox || row.kind == ControlKind::ListBox) {
            EXPECT_NE(valueListOf(row.side, row.field), nullptr) << row.name.toStdString();
        }
    }
}
