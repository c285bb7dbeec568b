#include "CliTestSupport.h"
#include "store/HomeLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
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

QStringList args(std::initializer_list<const char*> words) {
    QStringList list;
    for (const char* w : words)
        list << QString::fromUtf8(w);
    return list;
}

} // namespace

TEST(CliRecords, CreateSetListShow) {
    TempHome t;
    EXPECT_EQ(runCliIn(t, args({"new-company", "Acme Tools"})).out, QByteArray("1\n"));
    EXPECT_EQ(runCliIn(t, args({"new-company", "Other"})).out, QByteArray("2\n"));
    EXPECT_EQ(runCliIn(t, args({"new-program", "-c", "Acme Tools", "Widget"})).out,
              QByteArray("1\t1\n"));
    EXPECT_EQ(runCliIn(t, args({"new-program", "-c", "1", "Gadget"})).status, 0);
    const CliResult set = runCliIn(
        t, args({"set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25", "OSSupported[1]=-1",
                 "Keywords[2]=mots clés", "City=Caf\xC3\xA9 town", "IncludesJavaVM=1"}));
    ASSERT_EQ(set.status, 2) << "City is not a field: nothing may be written";
    EXPECT_TRUE(set.err.startsWith(QStringLiteral("brevaro-cli: ")));
    ASSERT_EQ(runCliIn(t, args({"set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25",
                                "OSSupported[1]=-1", "Keywords[2]=mots cl\xC3\xA9s",
                                "CityTown=Caf\xC3\xA9 town", "IncludesJavaVM=1"}))
                  .status,
              0);

    EXPECT_EQ(runCliIn(t, args({"list"})).out,
              QByteArray("1\tAcme Tools\n\t1\tWidget\t1.25\n\t2\tGadget\t\n2\tOther\n"));

    const QJsonObject json = showJson(t, args({"-c", "1", "-p", "1"}));
    const QJsonObject company = json[QStringLiteral("company")].toObject();
    const QJsonObject program = json[QStringLiteral("program")].toObject();
    EXPECT_EQ(company[QStringLiteral("CompanyID")].toInt(), 1);
    EXPECT_EQ(company[QStringLiteral("CityTown")].toString(), QStringLiteral("Caf\u00e9 town"));
    EXPECT_EQ(company[QStringLiteral("Country")].toString(), QStringLiteral("United States"));
    EXPECT_EQ(program[QStringLiteral("ProgramVersion")].toString(), QStringLiteral("1.25"));
    EXPECT_EQ(program[QStringLiteral("OSSupported")].toArray().size(), 27);
    EXPECT_EQ(program[QStringLiteral("OSSupported")].toArray()[1].toInt(), -1);
    EXPECT_EQ(program[QStringLiteral("Keywords")].toArray()[2].toString(),
              QStringLiteral("mots cl\u00e9s"));
    EXPECT_EQ(program[QStringLiteral("DescriptionActive")].toArray()[0].toInt(), 1);
    EXPECT_EQ(program[QStringLiteral("ExpireBasedOn")].toArray().size(), 4);

    // The bytes on disk are the layout's.
    const QByteArray p = readBytes(t.file(QStringLiteral("data/1.dta")));
    ASSERT_EQ(p.size(), 2 * 32319);
    EXPECT_EQ(p.mid(142, 2), QByteArray("\xFF\xFF"));
    EXPECT_EQ(p.mid(975, 2), QByteArray("\x01\x00", 2));

    EXPECT_TRUE(showJson(t, args({"-c", "Other"}))[QStringLiteral("program")].isNull());
}

TEST(CliRecords, DeleteCompanyKeepsTheOthersPrograms) {
    TempHome t;
    for (const char* name : {"A", "B", "C"})
        runCliIn(t, args({"new-company", name}));
    runCliIn(t, args({"new-program", "-c", "A", "a1"}));
    runCliIn(t, args({"new-program", "-c", "B", "b1"}));
    runCliIn(t, args({"new-program", "-c", "C", "c1"}));
    runCliIn(t, args({"new-program", "-c", "C", "c2"}));
    ASSERT_EQ(runCliIn(t, args({"delete", "-c", "B"})).status, 0);
    EXPECT_EQ(runCliIn(t, args({"list"})).out,
              QByteArray("1\tA\n\t1\ta1\t\n2\tC\n\t1\tc1\t\n\t2\tc2\t\n"));
    ASSERT_EQ(runCliIn(t, args({"delete", "-c", "C", "-p", "c1"})).status, 0);
    EXPECT_EQ(runCliIn(t, args({"list"})).out, QByteArray("1\tA\n\t1\ta1\t\n2\tC\n\t1\tc2\t\n"));
}

TEST(CliRecords, BadInputIsRefusedAndWritesNothing) {
    TempHome t;
    runCliIn(t, args({"new-company", "A"}));
    const QByteArray before = readBytes(t.file(QStringLiteral("data/company.dta")));
    struct Case {
        QStringList words;
        int status;
    };
    const Case cases[] = {
        {args({"show", "-c", "9", "--json"}), 2},
        {args({"show", "-c", "a", "--json"}), 2}, // names match exactly
        {args({"delete", "-c", "Nobody"}), 2},
        {args({"set", "-c", "1", "Nonsense=1"}), 2},
        {args({"set", "-c", "1", "CompanyID=5"}), 2},
        {args({"set", "-c", "1", "ProgramName=x"}), 2},
        {args({"new-program", "-c", "1", "   "}), 2},
        {args({"set", "-c", "1"}), 1},
        {args({"frobnicate"}), 1},
        {args({"show", "--json"}), 1},
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

TEST(CliRecords, LockedOrUnwritableHomeIsRefused) {
    TempHome t;
    HomeLock other(t.home());
    QString message;
    ASSERT_TRUE(other.acquire(&message));
    const CliResult locked = runCliIn(t, args({"new-company", "A"}));
    EXPECT_EQ(locked.status, 2);
    EXPECT_TRUE(locked.err.contains(QStringLiteral("in use")));
    EXPECT_FALSE(QFile::exists(t.file(QStringLiteral("data/company.dta"))));

    TempHome u;
    writeBytes(u.file(QStringLiteral("file")), "x");
    const QStringList words = args({"--home", "", "new-company", "A"});
    QStringList real = words;
    real[1] = u.file(QStringLiteral("file/home"));
    QBuffer in, out, err;
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    EXPECT_EQ(cli::runCli(real, QString(), in, out, err), 2);
    EXPECT_TRUE(err.data().startsWith("brevaro-cli: "));
}

TEST(CliRecords, TheExecutableAnswersVersionAndHelp) {
    QProcess p;
    p.start(QStringLiteral(BREVARO_CLI), {QStringLiteral("--version")});
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitCode(), 0);
    EXPECT_TRUE(p.readAllStandardOutput().startsWith("brevaro-cli 1."));
    p.start(QStringLiteral(BREVARO_CLI), {QStringLiteral("--help")});
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_TRUE(p.readAllStandardOutput().contains("new-program -c COMPANY NAME"));
}

TEST(CliRecords, SetFileInfoMeasuresTheDistributionFile) {
    TempHome t;
    runCliIn(t, args({"new-company", "Acme"}));
    runCliIn(t, args({"new-program", "-c", "Acme", "Widget"}));
    const QString setup = t.file(QStringLiteral("setup_widget.exe"));
    writeBytes(setup, QByteArray(2621440, '\x4d'));
    const CliResult r =
        runCliIn(t, QStringList{QStringLiteral("set"), QStringLiteral("-c"), QStringLiteral("1"),
                                QStringLiteral("-p"), QStringLiteral("Widget"),
                                QStringLiteral("ProgramVersion=1.25"),
                                QStringLiteral("Address1=") + QString(60, u'a'),
                                QStringLiteral("--file-info"), setup});
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject json = showJson(t, args({"-c", "1", "-p", "1"}));
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

    const CliResult missing =
        runCliIn(t, args({"set", "-c", "1", "-p", "1", "--file-info", "/no/such/file"}));
    EXPECT_EQ(missing.status, 2);
}

TEST(CliRecords, ShowsRecordsWrittenByAnotherProgram) {
    TempHome t;
    // One company and one program, laid out byte by byte as the record tables describe.
    QByteArray company(842, ' ');
    company.replace(0, 4, QByteArray("\x01\x00\x00\x00", 4));
    company.replace(4, 9, "Foreign Co");
    company.replace(184, 7, "Germany");
    QByteArray program(32319, ' ');
    const std::pair<int, int> numeric[] = {{0, 4},    {140, 54},  {194, 18},   {410, 2},  {422, 8},
                                           {975, 24}, {32228, 4}, {32257, 12}, {32267, 2}};
    for (auto [offset, size] : numeric)
        program.replace(offset, size, QByteArray(size, '\0'));
    program[0] = 1;
    program.replace(4, 6, "Import");
    program.replace(44, 3, "2.0");
    program[140 + 2 * 10] = program[140 + 2 * 10 + 1] = '\xFF'; // Linux
    program[981] = 1;                                           // English active
    program.replace(2151 + 45 * 3, 6, "German");                // CharDesc45[3]
    writeBytes(t.file(QStringLiteral("data/company.dta")), company);
    // A crash during an earlier save left its temporary file beside the real one.
    writeBytes(t.file(QStringLiteral("data/company.dta.Xy12Ab")), company.left(100));
    writeBytes(t.file(QStringLiteral("data/1.dta")), program);
    const QJsonObject json = showJson(t, args({"-c", "Foreign Co"}));
    const QJsonObject c = json[QStringLiteral("company")].toObject();
    const QJsonObject p = json[QStringLiteral("program")].toObject();
    EXPECT_EQ(c[QStringLiteral("CompanyID")].toInt(), 1);
    EXPECT_EQ(c[QStringLiteral("Country")].toString(), QStringLiteral("Germany"));
    EXPECT_EQ(p[QStringLiteral("ProgramVersion")].toString(), QStringLiteral("2.0"));
    EXPECT_EQ(p[QStringLiteral("OSSupported")].toArray()[10].toInt(), -1);
    EXPECT_EQ(p[QStringLiteral("CharDesc45")].toArray()[3].toString(), QStringLiteral("German"));
    EXPECT_EQ(p[QStringLiteral("DescriptionActive")].toArray()[0].toInt(), 1);
}
