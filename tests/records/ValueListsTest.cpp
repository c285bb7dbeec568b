#include "records/ValueLists.h"

#include <gtest/gtest.h>

using namespace brevaro;

TEST(ValueLists, SizesAndEnds) {
    struct Expect {
        const char16_t* control;
        int size;
        const char16_t* first;
        const char16_t* last;
        int selected;
    };
    const Expect expected[] = {
        {u"cboCountry", 238, u"United States", u"Zimbabwe", 0},
        {u"cboType", 7, u"", u"Data Only", 0},
        {u"cboStatus", 6, u"Major Update", u"Media Only", 0},
        {u"cboCostOtherCurrency", 170, u"", u"ZWD", 0},
        {u"cboInstallSupport", 4, u"Install and Uninstall", u"Uninstall Only", 0},
        {u"lstSupportedOS", 26, u"Win 3.1x", u"Not Applicable", ValueList::kNoSelection},
        {u"lstLanguages", 9, u"English", u"Russian", ValueList::kNoSelection},
        {u"cboSpecificCategory", 18, u"", u"Web Authoring", 0},
        {u"cboPossibleCategories", 146, u"", u"Web Design Utilities", ValueList::kUnchanged},
        {u"cboTPA_LicenseType", 4, u"", u"Feature-limited trial", 0},
        {u"cboReleaseMonth", 13, u"", u"12", 0},
        {u"cboExpireDay", 32, u"", u"31", 0},
        {u"cboReleaseYear", 12, u"", u"2010", 0},
    };
    for (const auto& e : expected) {
        const ValueList& list = valueList(QStringView(e.control));
        SCOPED_TRACE(list.control.toStdString());
        EXPECT_EQ(list.items.size(), e.size);
        EXPECT_EQ(list.items.front(), QStringView(e.first));
        EXPECT_EQ(list.items.back(), QStringView(e.last));
        EXPECT_EQ(list.selected, e.selected);
    }
    EXPECT_EQ(valueLists().front().control, QStringLiteral("cboCountry"));
    EXPECT_FALSE(valueLists().front().clearFirst);
    EXPECT_EQ(valueLists().back().control, QStringLiteral("cboExpireYear"));
}

TEST(ValueLists, ItemsKeptExactly) {
    const QStringList& categories = valueList(u"cboPossibleCategories").items;
    EXPECT_TRUE(categories.contains(QStringLiteral("Sports ")));
    EXPECT_FALSE(categories.contains(QStringLiteral("Sports")));
    EXPECT_TRUE(categories.contains(QStringLiteral("Optimizers & Diagnostics")));
    EXPECT_EQ(valueList(u"cboReleaseDay").items.at(9), QStringLiteral("09"));
    EXPECT_EQ(valueList(u"cboReleaseDay").items.at(10), QStringLiteral("10"));
    EXPECT_EQ(operatingSystemList().at(1), QStringLiteral("Win95"));
    EXPECT_EQ(operatingSystemList().at(10), QStringLiteral("Linux"));
    EXPECT_EQ(languageList().at(6), QStringLiteral("ChineseSimplified"));
    const QStringList& countries = valueList(u"cboCountry").items;
    EXPECT_EQ(countries.indexOf(QStringLiteral("Cote d'Ivoire")), 52);
    for (const QString& code : valueList(u"cboCostOtherCurrency").items.mid(1))
        EXPECT_TRUE(code.size() == 3 && code == code.toUpper()) << code.toStdString();
}
