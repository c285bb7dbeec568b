#include "records/ValueLists.h"
#include "controls/ControlTable.h"
#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"

#include <gtest/gtest.h>

using namespace brevaro;
using PF = ProgramField;

// The lists keep the published values exactly, odd spellings included: a value "tidied" here
// would no longer match what PAD files and directories hold.
TEST(ValueLists, ItemsKeptExactly) {
    const QStringList& categories = valueListOf(PF::CategoryClass)->items;
    EXPECT_TRUE(categories.contains(QStringLiteral("Sports ")));
    EXPECT_FALSE(categories.contains(QStringLiteral("Sports")));
    EXPECT_TRUE(categories.contains(QStringLiteral("Optimizers & Diagnostics")));
    EXPECT_EQ(valueListOf(PF::ReleaseDay)->items.at(9), QStringLiteral("09"));
    EXPECT_EQ(operatingSystemList().at(10), QStringLiteral("Linux"));
    EXPECT_EQ(languageList().at(6), QStringLiteral("ChineseSimplified"));
    const QStringList& countries = valueListOf(CompanyField::Country)->items;
    EXPECT_EQ(countries.indexOf(QStringLiteral("Cote d'Ivoire")), 52);
    for (const QString& code : valueListOf(PF::CostOtherCode)->items.mid(1))
        EXPECT_TRUE(code.size() == 3 && code == code.toUpper()) << code.toStdString();
}

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
        if (row.side == RecordSide::None || row.name == QLatin1String("cboCompanyName") ||
            row.name == QLatin1String("cboProgramName"))
            continue;
        if (row.kind == ControlKind::ComboBox || row.kind == ControlKind::ListBox) {
            EXPECT_NE(valueListOf(row.side, row.field), nullptr) << row.name.toStdString();
        }
    }
}
