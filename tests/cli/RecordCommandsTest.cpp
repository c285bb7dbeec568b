#include "CliTestSupport.h"
#include "store/HomeLock.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

QJsonObject showJson(const TempHome& t, const QStringList& which) {
    const CliResult r = runCliIn(t, QStringList{u"show"_s} + which + QStringList{u"--json"_s});
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
    EXPECT_TRUE(set.err.startsWith(u"brevaro-cli: "_s));
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25", "OSSupported[1]=-1",
                  "Keywords[2]=mots cl\xC3\xA9s", "CityTown=Caf\xC3\xA9 town", "IncludesJavaVM=1")
                  .status,
              0);

    EXPECT_EQ(run(t, "list").out,
              QByteArray("1\tAcme Tools\n\t1\tWidget\t1.25\n\t2\tGadget\t\n2\tOther\n"));

    const QJsonObject json = showJson(t, words({"-c", "1", "-p", "1"}));
    const QJsonObject company = json[u"company"_s].toObject();
    const QJsonObject program = json[u"program"_s].toObject();
    EXPECT_EQ(company[u"CompanyID"_s].toInt(), 1);
    EXPECT_EQ(company[u"CityTown"_s].toString(), u"Caf\u00e9 town"_s);
    EXPECT_EQ(company[u"Country"_s].toString(), u"United States"_s);
    EXPECT_EQ(program[u"ProgramVersion"_s].toString(), u"1.25"_s);
    EXPECT_EQ(program[u"OSSupported"_s].toArray()[1].toInt(), -1);
    EXPECT_EQ(program[u"Keywords"_s].toArray()[2].toString(), u"mots cl\u00e9s"_s);
    EXPECT_EQ(program[u"DescriptionActive"_s].toArray()[0].toInt(), 1);
    EXPECT_EQ(program[u"IncludesJavaVM"_s].toInt(), 1);

    EXPECT_TRUE(showJson(t, words({"-c", "Other"}))[u"program"_s].isNull());
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
    const std::pair<QStringList, const char*> steps[] = {
        {words({"delete", "-c", "B"}), "1\tA\n\t1\ta1\t\n2\tC\n\t1\tc1\t\n\t2\tc2\t\n"},
        {words({"delete", "-c", "C", "-p", "c2"}), "1\tA\n\t1\ta1\t\n2\tC\n\t1\tc1\t\n"},
        {words({"delete", "-c", "A", "-p", "a1"}), "1\tA\n2\tC\n\t1\tc1\t\n"},
        {words({"delete", "-c", "C", "-p", "c1"}), "1\tA\n2\tC\n"}};
    for (const auto& [deletion, listed] : steps) {
        ASSERT_EQ(runCliIn(t, deletion).status, 0) << deletion.join(u' ').toStdString();
        EXPECT_EQ(run(t, "list").out, QByteArray(listed));
    }
    for (int c = 1; c <= 3; ++c) // no program left, no program file left
        EXPECT_FALSE(QFile::exists(t.home().programFile(c))) << c;
}

TEST(CliRecords, BadInputIsRefusedAndWritesNothing) {
    TempHome t;
    run(t, "new-company", "A");
    const QByteArray before = readBytes(t.file(u"data/company.dta"_s));
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
        EXPECT_TRUE(r.err.startsWith(u"brevaro-cli: "_s));
        EXPECT_EQ(r.err.count(u'\n'), 1);
    }
    // A home another writer holds is refused too.
    HomeLock other(t.home());
    QString message;
    ASSERT_TRUE(other.acquire(&message));
    const CliResult locked = run(t, "new-company", "B");
    EXPECT_EQ(locked.status, 2);
    EXPECT_TRUE(locked.err.contains(u"in use"_s));
    EXPECT_EQ(readBytes(t.file(u"data/company.dta"_s)), before);
    EXPECT_FALSE(QFile::exists(t.file(u"data/1.dta"_s)));
}

TEST(CliRecords, SetFileInfoMeasuresTheDistributionFile) {
    TempHome t;
    run(t, "new-company", "Acme");
    run(t, "new-program", "-c", "Acme", "Widget");
    const QString setup = t.file(u"setup_widget.exe"_s);
    writeBytes(setup, QByteArray(2621440, '\x4d'));
    const CliResult r = run(t, "set", "-c", "1", "-p", "Widget", "ProgramVersion=1.25",
                            QString(u"Address1="_s + QString(60, u'a')), "--file-info", setup);
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QJsonObject json = showJson(t, words({"-c", "1", "-p", "1"}));
    const QJsonObject p = json[u"program"_s].toObject();
    QStringList got;
    for (auto key : {"FilenameVersioned", "FilenamePrevious", "FilenameGeneric", "FilenameLong",
                     "FileSizeBytes", "FileSizeK", "FileSizeMB"})
        got << p[QLatin1String(key)].toString();
    EXPECT_EQ(got.join(u','),
              u"setup_12.exe,setup_12.exe,setup_.exe,setup_widget.exe,2621440,2560,2.50"_s);
    // A company field set alongside goes through the same 30-character box.
    EXPECT_EQ(json[u"company"_s].toObject()[u"Address1"_s].toString(), QString(30, u'a'));

    const CliResult missing = run(t, "set", "-c", "1", "-p", "1", "--file-info", "/no/such/file");
    EXPECT_EQ(missing.status, 2);
}
