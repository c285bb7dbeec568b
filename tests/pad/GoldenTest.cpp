#include "FullRecords.h"
#include "TestSupport.h"
#include "pad/PadText.h"
#include "pad/VerificationReport.h"
#include "pad/WebInfo.h"
#include "platform/Win1252.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

// Compares with a reviewed file under tests/data/pad; BREVARO_UPDATE_GOLDEN=1 rewrites it.
void expectGoldenBytes(const char* name, const QByteArray& bytes) {
    const QString path = QStringLiteral(BREVARO_TEST_DATA "/pad/") + QLatin1String(name);
    if (qEnvironmentVariableIsSet("BREVARO_UPDATE_GOLDEN"))
        writeBytes(path, bytes);
    const QByteArray golden = readBytes(path);
    ASSERT_FALSE(golden.isEmpty()) << "missing " << path.toStdString();
    EXPECT_EQ(bytes, golden) << name;
}
void expectGolden(const char* name, const QString& text) {
    expectGoldenBytes(name, toWin1252(text));
}

class Golden : public ::testing::Test {
protected:
    void SetUp() override { qputenv("BREVARO_PRODUCT_SITE", "http://www.brevaro.example"); }
    void TearDown() override { qunsetenv("BREVARO_PRODUCT_SITE"); }
};

} // namespace

TEST_F(Golden, EveryFieldFilledEveryFlagSet) {
    const CompanyRecord c = fullCompany();
    const ProgramRecord p = fullProgram();
    expectGolden("full.xml", CreatePADText(c, p));
    expectGolden("full-webinfo.htm",
                 CreateWebInfo(c, p, QStringLiteral("http://www.asp-shareware.org")));
    expectGolden("full-report.htm", CreateVerificationReport(c, p));
    for (PadVersion v : {PadVersion::V3_11, PadVersion::V4_0}) {
        const QByteArray name = "full-" + padVersionText(v).toLatin1() + ".xml";
        expectGoldenBytes(name.constData(), padFileBytes(CreatePADText(c, p, v), v));
    }
}

TEST_F(Golden, EmptyRecords) {
    ProgramRecord p;
    p.setNumber(ProgramField::DescriptionActive, 0, 0);
    expectGolden("empty-webinfo.htm",
                 CreateWebInfo(CompanyRecord(), p, QStringLiteral("http://www.asp-shareware.org")));
    expectGolden("empty-report.htm", CreateVerificationReport(CompanyRecord(), p));
    for (PadVersion v : {PadVersion::V3_11, PadVersion::V4_0}) {
        const QByteArray name = "empty-" + padVersionText(v).toLatin1() + ".xml";
        expectGoldenBytes(name.constData(), padFileBytes(CreatePADText(CompanyRecord(), p, v), v));
    }
}
