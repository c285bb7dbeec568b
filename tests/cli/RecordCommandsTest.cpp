#include "CliTestSupport.h"
#include "store/HomeLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

QJsonObject showJson(const TempHome& t, const QStringList& which) {
    const CliResult r = runCliIn(t, QStringList{QStringLiteral("show")} + which +
                                        QStringList{QStringLiteral("--json")});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    return QJsonDocument::fromJson(r.out).object();
}

} // namespace

TEST(CliRecords, CreateSetListShow) {
    TempHome t;
    EXPECT_EQ(run(t, "new-company", "Acme Tools").out, QByteArray("1\n"));
    EXPECT_EQ(run(t, "new-company", "Other").out, QByteArray("2\n"));
    EXPECT_EQ(run(t, "new-program", "-c", "Acme Tools", "Widget").out, QByteArray("1\t1\n"));
    EXPECT_EQ(run(t, "new-program", "-c", "1", "Gadget").status, 0);
    const CliResult set = runCliIn(
        t, words({"set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25", "OSSupported[1]=-1",
                  "Keywords[2]=mots clés", "City=Caf\xC3\xA9 town", "IncludesJavaVM=1"}));
    ASSERT_EQ(set.status, 2) << "City is not a field: nothing may be written";
    EXPECT_TRUE(set.err.startsWith(QStringLiteral("brevaro-cli: ")));
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25", "OSSupported[1]=-1",
                  "Keywords[2]=mots cl\xC3\xA9s", "CityTown=Caf\xC3\xA9 town", "IncludesJavaVM=1")
                  .status,
              0);

    EXPECT_EQ(run(t, "list").out,
              QByteArray("1\tAcme Tools\n\t1\tWidget\t1.25\n\t2\tGadget\t\n2\tOther\n"));

    const QJsonObject json = showJson(t, words({"-c", "1", "-p", "1"}));
    const QJsonObject company = json[QStringLiteral("company")].toObject();
    const QJsonObject program = json[QStringLiteral("program")].toObject();
    EXPECT_EQ(company[QStringLiteral("CompanyID")].toInt(), 1);
    EXPECT_EQ(company[QStringLiteral("CityTown")].toString(), QStringLiteral("Caf\u00e9 town"));
    EXPECT_EQ(company[QStringLiteral("Country")].toString(), QStringLiteral("United States"));
    EXPECT_EQ(program[QStringLiteral("ProgramVersion")].toString(), QStringLiteral("1.25"));
    EXPECT_EQ(program[QStringLiteral("OSSupported")].toArray()[1].toInt(), -1);
    EXPECT_EQ(program[QStringLiteral("Keywords")].toArray()[2].toString(),
              QStringLiteral("mots cl\u00e9s"));
    EXPECT_EQ(program[QStringLiteral("DescriptionActive")].toArray()[0].toInt(), 1);
    EXPECT_EQ(program[QStringLiteral("IncludesJavaVM")].toInt(), 1);

    EXPECT_TRUE(showJson(t, words({"-c", "Other"}))[QStringLiteral("program")].isNull());
}

// Deleting a company keeps the others' programs; deleting a company's last program leaves
// the company, deleting one of two keeps the other.
TEST(CliRecords, DeleteCompaniesAndPrograms) {
    TempHome t;
    for (const char* name : {"A", "B", "C"})
        run(t, "new-company", name);
    run(t, "new-program", "-c", "A", "a1");
    run(t, "new-program", "-c", "B", "b1");
    run(t, "new-program", "-c", "C", "c1");
    run(t, "new-program", "-c", "C", "c2");
    ASSERT_EQ(run(t, "delete", "-c", "B").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tA\n\t1\ta1\t\n2\tC\n\t1\tc1\t\n\t2\tc2\t\n"));
    ASSERT_EQ(run(t, "delete", "-c", "C", "-p", "c2").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tA\n\t1\ta1\t\n2\tC\n\t1\tc1\t\n"));
    ASSERT_EQ(run(t, "delete", "-c", "A", "-p", "a1").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tA\n2\tC\n\t1\tc1\t\n"));
    EXPECT_FALSE(QFile::exists(t.home().programFile(1)));
    ASSERT_EQ(run(t, "delete", "-c", "C", "-p", "c1").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tA\n2\tC\n"));
}

TEST(CliRecords, BadInputIsRefusedAndWritesNothing) {
    TempHome t;
    run(t, "new-company", "A");
    const QByteArray before = readBytes(t.file(QStringLiteral("data/company.dta")));
    struct Case {
        QStringList words;
        int status;
    };
    const Case cases[] = {
        {words({"show", "-c", "9", "--json"}), 2},
        {words({"show", "-c", "a", "--json"}), 2}, // names match exactly
        {words({"delete", "-c", "Nobody"}), 2},
        {words({"set", "-c", "1", "Nonsense=1"}), 2},
        {words({"set", "-c", "1", "CompanyID=5"}), 2},
        {words({"set", "-c", "1", "ProgramName=x"}), 2},
        {words({"new-program", "-c", "1", "   "}), 2},
        {words({"set", "-c", "1"}), 1},
        {words({"frobnicate"}), 1},
        {words({"show", "--json"}), 1},
    };
    for (const auto& c : cases) {
        const CliResult r = runCliIn(t, c.words);
        EXPECT_EQ(r.status, c.status) << c.words.join(u' ').toStdString();
        EXPECT_TRUE(r.err.startsWith(QStringLiteral("brevaro-cli: ")));
        EXPECT_EQ(r.err.count(u'\n'), 1);
    }
    EXPECT_EQ(readBytes(t.file(QStringLiteral("data/company.dta"))), before);
    EXPECT_FALSE(QFile::exists(t.file(QStringLiteral("data/1.dta"))));
}

TEST(CliRecords, LockedHomeIsRefused) {
    TempHome t;
    HomeLock other(t.home());
    QString message;
    ASSERT_TRUE(other.acquire(&message));
    const CliResult locked = run(t, "new-company", "A");
    EXPECT_EQ(locked.status, 2);
    EXPECT_TRUE(locked.err.contains(QStringLiteral("in use")));
    EXPECT_FALSE(QFile::exists(t.file(QStringLiteral("data/company.dta"))));
}

TEST(CliRecords, SetFileInfoMeasuresTheDistributionFile) {
    TempHome t;
    run(t, "new-company", "Acme");
    run(t, "new-program", "-c", "Acme", "Widget");
    const QString setup = t.file(QStringLiteral("setup_widget.exe"));
    writeBytes(setup, QByteArray(2621440, '\x4d'));
    const CliResult r =
        run(t, "set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25",
            QString(QStringLiteral("Address1=") + QString(60, u'a')), "--file-info", setup);
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject json = showJson(t, words({"-c", "1", "-p", "1"}));
    const QJsonObject p = json[QStringLiteral("program")].toObject();
    QStringList got;
    for (auto key : {"FilenameVersioned", "FilenamePrevious", "FilenameGeneric", "FilenameLong",
                     "FileSizeBytes", "FileSizeK", "FileSizeMB"})
        got << p[QLatin1String(key)].toString();
    EXPECT_EQ(
        got.join(u','),
        QStringLiteral("setup_12.exe,setup_12.exe,setup_.exe,setup_widget.exe,2621440,2560,2.50"));
    // A company field set alongside goes through the same 30-character box.
    EXPECT_EQ(json[QStringLiteral("company")].toObject()[QStringLiteral("Address1")].toString(),
              QString(30, u'a'));

    const CliResult missing = run(t, "set", "-c", "1", "-p", "1", "--file-info", "/no/such/file");
    EXPECT_EQ(missing.status, 2);
}
