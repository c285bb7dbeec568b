#include "CliTestSupport.h"
#include "FullRecords.h"
#include "pad/CreatePad.h"
#include "pad/PadText.h"
#include "platform/Win1252.h"
#include "store/RecordStore.h"

#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

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
    const CliResult pad = runCliIn(t, words({"pad", "-c", "CompanyName", "-p", "ProgramName"}));
    ASSERT_EQ(pad.status, 0) << pad.err.toStdString();
    EXPECT_EQ(pad.out, toWin1252(QString(CreatePADText(fullCompany(), fullProgram()) +
                                         QStringLiteral("\r\n"))));

    const QString file = t.file(QStringLiteral("pad/Out.xml"));
    ASSERT_EQ(runCliIn(t, QStringList{QStringLiteral("pad"), QStringLiteral("-c"),
                                      QStringLiteral("1"), QStringLiteral("-p"),
                                      QStringLiteral("1"), QStringLiteral("-o"), file})
                  .status,
              0);
    EXPECT_EQ(readBytes(file), pad.out);
    const CliResult web = runCliIn(t, words({"webinfo", "-c", "1", "-p", "1"}));
    EXPECT_EQ(readBytes(t.file(QStringLiteral("pad/out.htm"))), web.out);
    EXPECT_TRUE(web.out.startsWith("<!-- Created By Brevaro version: "));

    const CliResult verify = runCliIn(t, words({"verify", "-c", "1", "-p", "1"}));
    EXPECT_TRUE(verify.out.startsWith(web.out.left(web.out.size() - 2)));
    EXPECT_TRUE(verify.out.endsWith("<hr>\r\n\r\n"));
    EXPECT_EQ(runCliIn(t, words({"pad", "-c", "1", "-p", "2"})).status, 2);
}

TEST(CliPad, ImportPrintsWhereTheProgramWent) {
    TempHome t;
    const QString good = t.file(QStringLiteral("good.xml"));
    writeBytes(good, toWin1252(CreatePADText(fullCompany(), fullProgram())));
    const QString bad = t.file(QStringLiteral("bad.xml"));
    writeBytes(bad, "<html>not a PAD file</html>");
    const CliResult first = runCliIn(t, QStringList{QStringLiteral("import"), good, good});
    ASSERT_EQ(first.status, 0) << first.err.toStdString();
    EXPECT_EQ(first.out, QByteArray("1\t1\n1\t2\n"));
    const CliResult refused = runCliIn(t, QStringList{QStringLiteral("import"), bad});
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("not a PAD file")));
    EXPECT_EQ(
        runCliIn(t, words({"list"})).out,
        QByteArray("1\tCompanyName\n\t1\tProgramName\tramVersion\n\t2\tProgramName\tramVersion\n"));
}
