#include "SessionFixture.h"

#include "controls/ControlTable.h"

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

class FieldHelpTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(u"Acme"_s);
        addProgram(u"Widget"_s);
    }
};

} // namespace

TEST_F(FieldHelpTest, LimitsCutAndCount) {
    type(u"txtAddress1", QString(60, u'x'));
    EXPECT_EQ(text(u"txtAddress1"), QString(30, u'x'));
    EXPECT_EQ(carets.value(id(u"txtAddress1"), -1), 30);
    EXPECT_EQ(status(), u"You have used 30 of 30 characters ..."_s);
    EXPECT_TRUE(session->state().CompanyDirty);

    type(u"txtCostUS", u"29.95"_s);
    screen().focus(id(u"txtProgramVersion"));
    screen().focus(id(u"txtCostUS"));
    EXPECT_EQ(status(), u"You have used 5 of 10 characters ..."_s);
    EXPECT_EQ(carets.value(id(u"txtCostUS"), -1), 5);

    type(u"txt2000char", QString(2500, u'y'), 4);
    EXPECT_EQ(text(u"txt2000char", 4).size(), 2000);
    screen().setText(id(u"cboPossibleCategories"), QString(200, u'c'));
    EXPECT_EQ(text(u"cboPossibleCategories").size(), 128);
}

TEST_F(FieldHelpTest, HintsForLists) {
    screen().setListIndex(id(u"cboType"), 2);
    screen().focus(id(u"cboType"));
    EXPECT_EQ(status(), u"Item 3 of 7"_s);
    screen().setText(id(u"cboCostOtherCurrency"), u"XYZ"_s);
    screen().focus(id(u"cboCostOtherCurrency"));
    EXPECT_EQ(status(), u"Item 0 of 170"_s);
    screen().focus(id(u"cboExpireYear"));
    EXPECT_EQ(status(), u"Select Expire year"_s);
    screen().focus(id(u"lstSupportedOS"));
    EXPECT_EQ(status(), u"Select Supported OS"_s);
}

TEST_F(FieldHelpTest, WhatMarksWhichRecord) {
    type(u"txtSizeMB", u"1.00"_s);
    type(u"txtExpireAfter", u"30"_s);
    screen().setValue(id(u"chkActivateLanguage", 3), 1);
    screen().setListIndex(id(u"cboReleaseMonth"), 3); // picked from the list: no mark
    EXPECT_FALSE(session->state().ProgramDirty);
    type(u"cboReleaseMonth", u"05"_s);
    EXPECT_TRUE(session->state().ProgramDirty);
    EXPECT_FALSE(session->state().CompanyDirty);
    screen().setListIndex(id(u"cboCountry"), 5);
    EXPECT_TRUE(session->state().CompanyDirty);
}

TEST_F(FieldHelpTest, CopyButtonsUseTheSelectedLanguage) {
    type(u"txt80char", u"German eighty"_s, 3);
    type(u"txt250char", u"English 250"_s, 0);
    screen().setListIndex(id(u"SSTab2"), 3);
    command(ControlAction::SaveProgram); // save first, so the copy's mark is visible
    click(u"cmdCopyDesc", 0);
    EXPECT_EQ(text(u"txt250char", 3), u"German eighty"_s);
    EXPECT_EQ(text(u"txt250char", 0), u"English 250"_s);
    EXPECT_TRUE(session->state().ProgramDirty);

    type(u"txt250char", u"Spanish 250"_s, 1);
    screen().setListIndex(id(u"SSTab2"), 1);
    bool flashedBeforePause = false;
    prompts.onPump = [&] {
        flashedBeforePause = flashes == QList<int>{id(u"txt250char", 1)};
    };
    click(u"cmdCopyWebInfo2ClipBoard", 12);
    EXPECT_EQ(prompts.clipboard, u"Spanish 250"_s);
    EXPECT_TRUE(flashedBeforePause);
    EXPECT_EQ(focusRequests.back(), id(u"cmdCopyWebInfo2ClipBoard", 12));
}

TEST_F(FieldHelpTest, TranslationAndLinkAddresses) {
    qputenv("BREVARO_TRANSLATE_SITE", "http://tr.test");
    qputenv("BREVARO_PRODUCT_SITE", "http://product.test/");
    type(u"txtKeywords", u"  clé, tools "_s, 0);
    click(u"cmdBabel", 0);
    click(u"cmdBabel", 7);
    click(u"mnuTools", 0);
    type(u"txtAuthorFname", u"Jane"_s);
    type(u"txtAuthorLname", u"Doe"_s);
    type(u"txtAuthorEmail", u"jane@example.com"_s);
    prompts.yesNo = {true};
    command(ControlAction::SaveCompany);
    click(u"mnuHelp", 7);
    click(u"mnuHelp", 10);
    click(u"picBrevaro");
    click(u"mnuHelp", 9);
    qunsetenv("BREVARO_TRANSLATE_SITE");
    qunsetenv("BREVARO_PRODUCT_SITE");
    EXPECT_EQ(
        prompts.opened,
        (QStringList{u"http://tr.test/tr?urltext=clé, tools"_s,
                     u"http://tr.test/tr?urltext=Copy and paste sections of the EULA text here!"_s,
                     u"http://tr.test/tr"_s,
                     u"http://product.test/"
                     "register.php?FirstName=Jane&LastName=Doe&email=jane@example.com"_s,
                     u"http://product.test/download.php?version=1.0.0"_s, u"http://product.test"_s,
                     u"http://product.test"_s}));
}
