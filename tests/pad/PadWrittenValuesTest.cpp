#include "pad/PadWrittenValues.h"
#include "CleanRecords.h"
#include "FullRecords.h"
#include "controls/ControlTable.h"
#include "controls/FieldLabels.h"
#include "pad/PadFieldRules.h"
#include "pad/PadText.h"
#include "pad/PadXmlText.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

using PF = ProgramField;

std::vector<std::pair<CompanyRecord, ProgramRecord>> samples() {
    ProgramRecord byDate = cleanProgram();
    byDate.setNumber(PF::HasExpireInfo, 1);
    byDate.setNumber(PF::ExpireBasedOn, 1, 3);
    byDate.setText(PF::ExpireMonth, u"12");
    byDate.setNumber(PF::TPAActivated, 1);
    byDate.setText(PF::TPAMemberID, u"T-42");
    return {
        {cleanCompany(), cleanProgram()}, {cleanCompany(), byDate}, {fullCompany(), fullProgram()}};
}

} // namespace

// Each value is found in the document exactly where the writer puts it, in the same order.
TEST(PadWrittenValues, AreWhatTheWriterWrites) {
    for (const auto& [company, program] : samples()) {
        const QString pad = CreatePADText(company, program);
        qsizetype at = 0;
        for (const auto& v : padWrittenValues(company, program)) {
            // An empty value has the short form, or the full one in the extension blocks.
            const QString shortForm = u'<' + v.element + u" />"_s;
            const QString written =
                u'<' + v.element + u'>' + wellFormedXmlText(v.value) + u"</"_s + v.element + u'>';
            const qsizetype shortAt = v.value.isEmpty() ? pad.indexOf(shortForm, at) : -1;
            const qsizetype found = shortAt >= 0 ? shortAt : pad.indexOf(written, at);
            ASSERT_GE(found, 0) << written.toStdString();
            at = found + 1;
        }
    }
}

// Every element of the document that the published rules cover is among the values.
TEST(PadWrittenValues, CoverEveryRuledElementOfTheDocument) {
    for (const auto& [company, program] : samples()) {
        const QString pad = CreatePADText(company, program);
        QStringList elements;
        for (const auto& v : padWrittenValues(company, program))
            elements << v.element;
        static const QRegularExpression open(u"<([A-Za-z_0-9]+)( />|>)"_s);
        for (auto it = open.globalMatch(pad); it.hasNext();) {
            const QString element = it.next().captured(1);
            if (padFieldRule(element) && !element.startsWith(QLatin1String("MASTER_PAD"))) {
                EXPECT_TRUE(elements.contains(element)) << element.toStdString();
            }
        }
    }
}

// Check PAD names every written field as the window shows it: a field with no control, or a
// control with no label, would leave the author guessing where to look.
TEST(PadWrittenValues, EveryFieldHasTheWindowsLabelAndPlace) {
    ProgramRecord program = fullProgram();
    for (int language = 0; language < ProgramRecord::kLanguages; ++language)
        program.setNumber(PF::DescriptionActive, 1, language);
    for (const auto& v : padWrittenValues(fullCompany(), program)) {
        SCOPED_TRACE(v.element.toStdString());
        EXPECT_FALSE(fieldLabel(v.side, v.field, v.entry).isEmpty());
        const QString place = fieldPlace(v.side, v.field, v.entry);
        EXPECT_TRUE(mainTabCaptions().contains(place.section(u", "_s, 0, 0)))
            << place.toStdString();
        if (place.startsWith(QLatin1String("Descriptions"))) {
            EXPECT_EQ(place.section(u", "_s, 1), languageTabCaptions()[v.entry]);
        }
    }
    // A field inside a frame names the frame too.
    EXPECT_EQ(fieldPlace(RecordSide::Company, int(CompanyField::AuthorEmail)),
              u"Company Info, Author"_s);
    EXPECT_EQ(fieldPlace(RecordSide::Company, int(CompanyField::CityTown)), u"Company Info"_s);
}
