#include "CliTestSupport.h"
#include "FullRecords.h"
#include "pad/PadText.h"
#include "platform/Win1252.h"
#include "store/RecordStore.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

// A home holding the full records as company 1, program 1.
void storeFull(const TempHome& t) {
    RecordStore store(t.home());
    store.writeCompany(1, fullCompany());
    store.writeProgram(1, 1, fullProgram());
}

} // namespace

TEST(CliPad, OutputsAreTheBytesTheWindowWrites) {
    TempHome t;
    storeFull(t);
    const CliResult pad = run(t, "pad", "-c", "CompanyName", "-p", "ProgramName");
    ASSERT_EQ(pad.status, 0) << pad.err.toStdString();
    EXPECT_EQ(pad.out, toWin1252(QString(CreatePADText(fullCompany(), fullProgram()) + u"\r\n"_s)));

    const QString file = t.file(u"pad/Out.xml"_s);
    ASSERT_EQ(run(t, "pad", "-c", "1", "-p", "1", "-o", file).status, 0);
    EXPECT_EQ(readBytes(file), pad.out);
    const CliResult web = run(t, "webinfo", "-c", "1", "-p", "1");
    EXPECT_EQ(readBytes(t.file(u"pad/out.htm"_s)), web.out);
    EXPECT_TRUE(web.out.startsWith("<!-- Created By Brevaro version: "));

    const CliResult verify = run(t, "verify", "-c", "1", "-p", "1");
    EXPECT_TRUE(verify.out.startsWith(web.out.left(web.out.size() - 2)));
    EXPECT_TRUE(verify.out.endsWith("<hr>\r\n\r\n"));
    EXPECT_EQ(run(t, "pad", "-c", "1", "-p", "2").status, 2);
}
