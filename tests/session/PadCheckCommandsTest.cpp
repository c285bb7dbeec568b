#include "SessionFixture.h"

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

class PadCheckCommandsTest : public SessionTest {
protected:
    void SetUp() override {
        SessionTest::SetUp();
        addCompany(u"Acme"_s);
        screen().setListIndex(id(u"SSTab1"), 1);
        addProgram(u"Rocket"_s);
    }
    const PadFinding* findingFor(const std::vector<PadFinding>& all, const char* element) {
        for (const PadFinding& f : all)
            if (f.element == QLatin1String(element))
                return &f;
        return nullptr;
    }
};

} // namespace

// The check sees what the screen shows, before it is saved, and leaves the records alone.
TEST_F(PadCheckCommandsTest, ChecksTheScreenNotTheStoredRecords) {
    screen().setListIndex(id(u"SSTab1"), 0);
    type(u"txtCity", u"Smith\x01Sons"_s);
    const auto findings = session->pad().checkScreen();
    const PadFinding* city = findingFor(findings, "City_Town");
    ASSERT_TRUE(city);
    EXPECT_EQ(city->severity, PadFinding::Severity::Error);
    EXPECT_EQ(session->company().trimText(CompanyField::CityTown), QString());
    EXPECT_TRUE(session->state().CompanyDirty);
}

// A finding leads to its field: the tab chosen (the language for a description), the field
// focused; the tab rule still holds.
TEST_F(PadCheckCommandsTest, AFindingLeadsToItsField) {
    screen().setListIndex(id(u"SSTab1"), 2);
    screen().setValue(id(u"chkActivateLanguage", 3), 1);
    type(u"txt45char", u"a <b> tag"_s, 3);
    screen().setListIndex(id(u"SSTab2"), 0);
    command(ControlAction::SaveProgram);
    screen().setListIndex(id(u"SSTab1"), 0);
    const auto findings = session->pad().checkScreen();
    const PadFinding* description = findingFor(findings, "Char_Desc_45");
    ASSERT_TRUE(description);
    focusRequests.clear();
    ASSERT_TRUE(session->pad().goToField(*description));
    EXPECT_EQ(at(u"SSTab1").listIndex, 2);
    EXPECT_EQ(at(u"SSTab2").listIndex, 3);
    ASSERT_EQ(focusRequests.size(), 1);
    EXPECT_EQ(focusRequests[0], id(u"txt45char", 3));

    PadFinding whole;
    EXPECT_FALSE(session->pad().goToField(whole));

    screen().setListIndex(id(u"SSTab1"), 0);
    prompts.inputs.push_back(u"Unsaved Co"_s);
    command(ControlAction::NewCompany);
    PadFinding version;
    version.side = RecordSide::Program;
    version.field = static_cast<int>(ProgramField::ProgramVersion);
    EXPECT_FALSE(session->pad().goToField(version));
    EXPECT_EQ(at(u"SSTab1").listIndex, 0);
}

// Create PAD writes what the author asked for, escaped where XML needs it, and says afterwards
// that sites will reject what cannot be written.
TEST_F(PadCheckCommandsTest, CreatePadWritesThenTellsOfErrors) {
    type(u"txtProgramVersion", u"1 < 2\x01"_s);
    command(ControlAction::SaveProgram);
    const QString path = home.file(u"rocket.xml"_s);
    prompts.files.push_back(path);
    command(ControlAction::CreatePAD);
    EXPECT_TRUE(readBytes(path).contains("<Program_Version>1 &lt; 2\x01</Program_Version>"));
    EXPECT_TRUE(status().contains(u"Check PAD"_s)) << status().toStdString();

    type(u"txtProgramVersion", u"1.2"_s);
    command(ControlAction::SaveProgram);
    prompts.files.push_back(path);
    command(ControlAction::CreatePAD);
    EXPECT_FALSE(status().contains(u"Check PAD"_s));
}
