#include "SessionFixture.h"

#include "controls/ControlTable.h"

using namespace brevaro;
using namespace brevaro::test;

namespace {

class FieldHelpTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(QStringLiteral("Acme"));
        addProgram(QStringLiteral("Widget"));
    }
};

} // namespace

TEST_F(FieldHelpTest, LimitsCutAndCount) {
    type(u"txtAddress1", QString(60, u'x'));
    EXPECT_EQ(text(u"txtAddress1"), QString(30, u'x'));
    EXPECT_EQ(carets.value(id(u"txtAddress1"), -1), 30);
    EXPECT_EQ(status(), QStringLiteral("You have used 30 of 30 characters ..."));
    EXPECT_TRUE(session->state().CompanyDirty);

    type(u"txtCostUS", QStringLiteral("29.95"));
    screen().focus(id(u"txtProgramVersion"));
    screen().focus(id(u"txtCostUS"));
    EXPECT_EQ(status(), QStringLiteral("You have used 5 of 10 characters ..."));
    EXPECT_EQ(carets.value(id(u"txtCostUS"), -1), 5);

    type(u"txt2000char", QString(2500, u'y'), 4);
    EXPECT_EQ(text(u"txt2000char", 4).size(), 2000);
    screen().setText(id(u"cboPossibleCategories"), QString(200, u'c'));
    EXPECT_EQ(text(u"cboPossibleCategories").size(), 128);
}

TEST_F(FieldHelpTest, HintsForLists) {
    screen().setListIndex(id(u"cboType"), 2);
    screen().focus(id(u"cboType"));
    EXPECT_EQ(status(), QStringLiteral("Item 3 of 7"));
    screen().setText(id(u"cboCostOtherCurrency"), QStringLiteral("XYZ"));
    screen().focus(id(u"cboCostOtherCurrency"));
    EXPECT_EQ(status(), QStringLiteral("Item 0 of 170"));
    screen().focus(id(u"cboExpireYear"));
    EXPECT_EQ(status(), QStringLiteral("Select Expire year"));
    screen().focus(id(u"lstSupportedOS"));
    EXPECT_EQ(status(), QStringLiteral("Select Supported OS"));
}

TEST_F(FieldHelpTest, WhatMarksWhichRecord) {
    type(u"txtSizeMB", QStringLiteral("1.00"));
    type(u"txtExpireAfter", QStringLiteral("30"));
    screen().setValue(id(u"chkActivateLanguage", 3), 1);
    screen().setListIndex(id(u"cboReleaseMonth"), 3); // picked from the list: no mark
    EXPECT_FALSE(session->state().ProgramDirty);
    type(u"cboReleaseMonth", QStringLiteral("05"));
    EXPECT_TRUE(session->state().ProgramDirty);
    EXPECT_FALSE(session->state().CompanyDirty);
    screen().setListIndex(id(u"cboCountry"), 5);
    EXPECT_TRUE(session->state().CompanyDirty);
}

TEST_F(FieldHelpTest, CopyButtonsUseTheSelectedLanguage) {
    type(u"txt80char", QStringLiteral("German eighty"), 3);
    type(u"txt250char", QStringLiteral("English 250"), 0);
    screen().setListIndex(id(u"SSTab2"), 3);
    command(ControlAction::SaveProgram); // save first, so the copy's mark is visible
    click(u"cmdCopyDesc", 0);
    EXPECT_EQ(text(u"txt250char", 3), QStringLiteral("German eighty"));
    EXPECT_EQ(text(u"txt250char", 0), QStringLiteral("English 250"));
    EXPECT_TRUE(session->state().ProgramDirty);

    type(u"txt250char", QStringLiteral("Spanish 250"), 1);
    screen().setListIndex(id(u"SSTab2"), 1);
    bool flashedBeforePause = false;
    prompts.onPump = [&] {
        flashedBeforePause = flashes == QList<int>{id(u"txt250char", 1)};
    };
    click(u"cmdCopyWebInfo2ClipBoard", 12);
    EXPECT_EQ(prompts.clipboard, QStringLiteral("Spanish 250"));
    EXPECT_TRUE(flashedBeforePause);
    EXPECT_EQ(focusRequests.back(), id(u"cmdCopyWebInfo2ClipBoard", 12));
}

TEST_F(FieldHelpTest, TranslationAndLinkAddresses) {
    qputenv("BREVARO_TRANSLATE_SITE", "http://tr.test");
    qputenv("BREVARO_PRODUCT_SITE", "http://product.test/");
    type(u"txtKeywords", QStringLiteral("  clé, tools "), 0);
    click(u"cmdBabel", 0);
    click(u"cmdBabel", 7);
    click(u"mnuTools", 0);
    type(u"txtAuthorFname", QStringLiteral("Jane"));
    type(u"txtAuthorLname", QStringLiteral("Doe"));
    type(u"txtAuthorEmail", QStringLiteral("jane@example.com"));
    prompts.yesNo = {true};
    command(ControlAction::SaveCompany);
    click(u"mnuHelp", 7);
    click(u"mnuHelp", 10);
    click(u"picBrevaro");
    click(u"mnuHelp", 9);
    qunsetenv("BREVARO_TRANSLATE_SITE");
    qunsetenv("BREVARO_PRODUCT_SITE");
    EXPECT_EQ(prompts.opened,
              (QStringList{
                  QStringLiteral("http://tr.test/tr?urltext=clé, tools"),
                  QStringLiteral(
                      "http://tr.test/tr?urltext=Copy and paste sections of the EULA text here!"),
                  QStringLiteral("http://tr.test/tr"),
                  QStringLiteral("http://product.test/"
                                 "register.php?FirstName=Jane&LastName=Doe&email=jane@example.com"),
                  QStringLiteral("http://product.test/download.php?version=1.0.0"),
                  QStringLiteral("http://product.test"), QStringLiteral("http://product.test")}));
}
