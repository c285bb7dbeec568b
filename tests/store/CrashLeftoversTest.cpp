#include "TestSupport.h"
#include "store/HomeLock.h"
#include "store/RecordStore.h"

#include <QDir>
#include <QProcess>
#include <QSysInfo>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

void addCompany(RecordStore& store, int n, const QString& name, int programs) {
    CompanyRecord company;
    company.setNumber(CompanyField::CompanyID, n);
    company.setText(CompanyField::CompanyName, name);
    ASSERT_TRUE(store.writeCompany(n, company));
    for (int p = 1; p <= programs; ++p) {
        ProgramRecord program;
        program.setNumber(ProgramField::CompanyID, n);
        program.setText(ProgramField::ProgramName, QString(name + QString::number(p)));
        ASSERT_TRUE(store.writeProgram(n, p, program));
    }
}

// Every file under the home with its bytes, to show that nothing changed.
QMap<QString, QByteArray> snapshot(const QString& root) {
    QMap<QString, QByteArray> files;
    QDir dir(root);
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden))
        files.insert(name, readBytes(dir.filePath(name)));
    for (const QString& sub : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (auto [name, bytes] : snapshot(dir.filePath(sub)).asKeyValueRange())
            files.insert(sub + u'/' + name, bytes);
    return files;
}

} // namespace

// The probe's damaged intents, and ones that do not fit the files: each is refused with a
// message, and no file in or outside the home changes.
TEST(DeletionIntent, DamagedOrForeignIntentsChangeNothing) {
    const char* intents[] = {
        "phase 0\ncompact 0 2\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nfinish 2.dta 1\n",
        "phase 0\ncompact -5 2\n",
        "phase 0\ncompact 99 2\ndoom 1.dta\nremove 1.dta\n",
        "phase -2147483648\ncompact 1 2\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nfinish 2.dta 1\n",
        "phase 4\ncompact 1 2\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nfinish 2.dta 1\n",
        "phase 1\ndoom ../../victim.txt\nremove ../../victim.txt\n",
        "phase 1\ncompact 1 2\ndoom ../../victim.dta\nremove ../../victim.dta\nstage 2.dta\n"
        "finish 2.dta 1\n",
        "phase 3\ncompact 2 2\ndoom 2.dta\nremove 2.dta\nfinish ../x.dta 1\n",
        "phase 0\ncompact 2 2\ndoom 2.dta\nremove 1.dta\n", // removes another file
        "phase 0\ncompact 1 2\ndoom 1.dta\nremove 1.dta\n", // forgets company 2
        "phase 0\ncompact 1 2\ndoom 2.dta\nremove 2.dta\nstage 1.dta\nfinish 1.dta 1\n",
        "phase 0\ncompact 1 4\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nstage 3.dta\nstage 4.dta\n"
        "finish 2.dta 1\nfinish 3.dta 2\nfinish 4.dta 3\n", // four companies? two
        "phase 2\ncompact 1 2\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nfinish 2.dta 1\n",
        "phase 0\ncompact 1 2\ndoom 01.dta\nremove 01.dta\nstage 2.dta\nfinish 2.dta 1\n",
        "phase 0\ncompact 1 2\ndoom 1.dta\nremove 1.dta\nstage 2.dta\nfinish 2.dta 1\njunk\n",
        "\xff\xfe garbage",
        "",
    };
    for (const char* text : intents) {
        SCOPED_TRACE(text);
        QTemporaryDir outer;
        const QString root = outer.filePath(QStringLiteral("a/b/home"));
        QDir().mkpath(root);
        writeBytes(outer.filePath(QStringLiteral("a/victim.txt")), "keep me");
        writeBytes(outer.filePath(QStringLiteral("a/victim.dta")), "keep me too");
        RecordStore store{AppHome(root)};
        store.home().createFolders();
        addCompany(store, 1, QStringLiteral("A"), 1);
        addCompany(store, 2, QStringLiteral("B"), 2);
        writeBytes(store.home().deletionIntentFile(), QByteArray(text));
        const auto before = snapshot(outer.path());
        EXPECT_FALSE(store.completeInterruptedDeletion());
        EXPECT_TRUE(store.errorString().contains(QStringLiteral("nothing was changed")))
            << store.errorString().toStdString();
        EXPECT_EQ(snapshot(outer.path()), before);
    }
}

// A kill leaves temporary files of unfinished saves and may leave a program file whose company
// is gone from a cut company file: the next start clears the first and sets the second aside,
// so that a new company starts without another's programs.
TEST(RecordStore, CrashLeftoversAreClearedAndOrphansSetAside) {
    TempHome t;
    RecordStore store(t.home());
    addCompany(store, 1, QStringLiteral("A"), 1);
    addCompany(store, 2, QStringLiteral("B"), 1);
    for (const char* name : {"2.dta.TiBxhS", "deletion.intent.AseIiT", "company.dta.x1Y2z3"})
        writeBytes(t.file(QStringLiteral("data/") + QLatin1String(name)), "half");
    writeBytes(t.file(QStringLiteral("data/7.dta")),
               readBytes(t.file(QStringLiteral("data/2.dta"))));
    writeBytes(t.file(QStringLiteral("data/notes.txt")), "mine");
    const QStringList report = store.clearCrashLeftovers();
    ASSERT_EQ(report.size(), 1);
    EXPECT_TRUE(report[0].contains(QStringLiteral("7.dta.orphaned")));
    EXPECT_EQ(QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("1.dta"), QStringLiteral("2.dta"),
                           QStringLiteral("7.dta.orphaned"), QStringLiteral("company.dta"),
                           QStringLiteral("notes.txt")}));
    EXPECT_TRUE(store.damage().isEmpty());
    writeBytes(t.file(QStringLiteral("data/company.dta")), QByteArray(100, ' '));
    EXPECT_EQ(store.damage().size(), 1);
}

// A lock nobody holds any more is taken over: an empty or unreadable one (a writer killed while
// creating it) and one of a process that has ended. A lock of another computer is not.
TEST(HomeLock, StaleLocksAreTakenOverForeignOnesExplained) {
    QProcess ended;
    ended.start(QStringLiteral("true"));
    ASSERT_TRUE(ended.waitForFinished());
    const QByteArray host = QSysInfo::machineHostName().toUtf8();
    const QByteArray stale[] = {
        QByteArray(), QByteArray("\0\0\0", 3), QByteArray("0\n\n\n"), QByteArray("garbage"),
        QByteArray::number(ended.processId()) + "\nbrevaro\n" + host + "\n"};
    for (const QByteArray& bytes : stale) {
        SCOPED_TRACE(bytes.toStdString());
        TempHome t;
        writeBytes(t.home().lockFile(), bytes);
        HomeLock lock(t.home());
        QString message;
        EXPECT_TRUE(lock.acquire(&message)) << message.toStdString();
    }
    TempHome t;
    writeBytes(t.home().lockFile(), "4242\nbrevaro\nfar-away-host\n");
    HomeLock lock(t.home());
    QString message;
    EXPECT_FALSE(lock.acquire(&message));
    EXPECT_TRUE(message.contains(QStringLiteral("far-away-host")));
    EXPECT_TRUE(message.contains(t.home().lockFile()));
}

// A batch changes nothing on disk until it is committed, then every file at once; a crash
// after the save intent is finished by the next start, one before it leaves the old files.
TEST(RecordStore, BatchedChangesGoInTogether) {
    TempHome t;
    RecordStore store(t.home());
    addCompany(store, 1, QStringLiteral("A"), 2);
    const QByteArray companies = readBytes(t.home().companyFile());
    const QByteArray programs = readBytes(t.home().programFile(1));

    store.beginBatch();
    addCompany(store, 2, QStringLiteral("B"), 3);
    ASSERT_TRUE(store.deleteProgram(1, 1));
    ASSERT_TRUE(store.deleteProgram(1, 1));
    EXPECT_EQ(store.companyNames(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    EXPECT_EQ(store.programCount(1), 0);
    EXPECT_EQ(readBytes(t.home().companyFile()), companies) << "nothing is written yet";
    EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    EXPECT_FALSE(QFile::exists(t.home().programFile(2)));
    ASSERT_TRUE(store.commitBatch());
    RecordStore fresh(t.home());
    EXPECT_EQ(fresh.companyNames(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    EXPECT_EQ(fresh.programNames(2),
              (QStringList{QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3")}));
    EXPECT_FALSE(QFile::exists(t.home().programFile(1)));
    EXPECT_EQ(QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("2.dta"), QStringLiteral("company.dta")}));

    // Killed after the new files and the intent were written: the next start completes.
    writeBytes(t.file(QStringLiteral("data/company.dta.pending")), companies);
    writeBytes(t.file(QStringLiteral("data/1.dta.pending")), programs);
    writeBytes(t.home().saveIntentFile(), "save\nwrite company.dta\nwrite 1.dta\nremove 2.dta\n");
    ASSERT_TRUE(fresh.completeInterruptedDeletion()) << fresh.errorString().toStdString();
    EXPECT_EQ(readBytes(t.home().companyFile()), companies);
    EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    EXPECT_EQ(QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("1.dta"), QStringLiteral("company.dta")}));

    // Killed before the intent: the half-made new file goes, the data stays.
    writeBytes(t.file(QStringLiteral("data/1.dta.pending")), "half");
    EXPECT_TRUE(fresh.clearCrashLeftovers().isEmpty());
    EXPECT_EQ(QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("1.dta"), QStringLiteral("company.dta")}));

    // An intent naming a file outside the data is refused and changes nothing.
    for (const char* bad : {"save\nwrite ../x.dta\n", "save\nremove /etc/passwd\n", "write 1.dta\n",
                            "save\nwrite 1.dta\nwrite 1.dta\n"}) {
        writeBytes(t.home().saveIntentFile(), bad);
        EXPECT_FALSE(fresh.completeInterruptedDeletion()) << bad;
        EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    }
}
