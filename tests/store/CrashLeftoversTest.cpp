#include "StoreFill.h"
#include "store/HomeLock.h"

#include <QProcess>
#include <QSysInfo>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

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
        const QString root = outer.filePath(u"a/b/home"_s);
        QDir().mkpath(root);
        writeBytes(outer.filePath(u"a/victim.txt"_s), "keep me");
        writeBytes(outer.filePath(u"a/victim.dta"_s), "keep me too");
        RecordStore store{AppHome(root)};
        store.home().createFolders();
        addCompany(store, 1, 1);
        addCompany(store, 2, 2);
        writeBytes(store.home().deletionIntentFile(), QByteArray(text));
        const auto before = snapshot(outer.path());
        EXPECT_FALSE(store.completeInterruptedDeletion());
        EXPECT_TRUE(store.errorString().contains(u"nothing was changed"_s))
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
    addCompany(store, 1, 1);
    addCompany(store, 2, 1);
    for (const char* name :
         {"2.dta.TiBxhS", "deletion.intent.AseIiT", "company.dta.x1Y2z3", "1.extra.json.Qw3rTy"})
        writeBytes(t.file(u"data/"_s + QLatin1String(name)), "half");
    writeBytes(t.file(u"data/7.dta"_s), readBytes(t.file(u"data/2.dta"_s)));
    writeBytes(t.file(u"data/7.extra.json"_s), readBytes(t.file(u"data/2.extra.json"_s)));
    writeBytes(t.file(u"data/notes.txt"_s), "mine");
    const QStringList report = store.clearCrashLeftovers();
    ASSERT_EQ(report.size(), 2);
    EXPECT_TRUE(report[0].contains(u"7.dta.orphaned"_s));
    EXPECT_TRUE(report[1].contains(u"7.extra.json.orphaned"_s));
    EXPECT_EQ(dataFiles(t), u"1.dta 1.extra.json 2.dta 2.extra.json 7.dta.orphaned "
                            u"7.extra.json.orphaned company.dta company.extra.json notes.txt"_s);
    EXPECT_TRUE(store.damage().isEmpty());
    writeBytes(t.file(u"data/company.dta"_s), QByteArray(100, ' '));
    // The damaged file, and the companion entries of the two companies it no longer names.
    const QStringList damage = store.damage();
    ASSERT_EQ(damage.size(), 3);
    EXPECT_TRUE(damage[0].contains(u"company.dta"_s));
    EXPECT_TRUE(damage[1].contains(u"\"A\" belong to no record"_s));
}

// A lock nobody holds any more is taken over: an empty or unreadable one (a writer killed while
// creating it) and one of a process that has ended. A live lock or one of another computer is
// not.
TEST(HomeLock, StaleLocksAreTakenOverLiveAndForeignOnesRefused) {
    QProcess ended;
    ended.start(u"true"_s);
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
    // A live lock refuses a second writer; a foreign one says whose it is.
    TempHome t;
    HomeLock first(t.home()), second(t.home());
    QString message;
    ASSERT_TRUE(first.acquire(&message));
    EXPECT_FALSE(second.acquire(&message));
    EXPECT_TRUE(message.contains(u"in use"_s));
    TempHome far;
    writeBytes(far.home().lockFile(), "4242\nbrevaro\nfar-away-host\n");
    HomeLock foreign(far.home());
    EXPECT_FALSE(foreign.acquire(&message));
    EXPECT_TRUE(message.contains(u"far-away-host"_s));
    EXPECT_TRUE(message.contains(far.home().lockFile()));
}

// A batch changes nothing on disk until it is committed, then every file at once; a crash
// after the save intent is finished by the next start, one before it leaves the old files.
TEST(RecordStore, BatchedChangesGoInTogether) {
    TempHome t;
    RecordStore store(t.home());
    addCompany(store, 1, 2);
    const QByteArray companies = readBytes(t.home().companyFile());
    const QByteArray companyExtras = readBytes(t.file(u"data/company.extra.json"_s));
    const QByteArray programs = readBytes(t.home().programFile(1));

    store.beginBatch();
    addCompany(store, 2, 3);
    ASSERT_TRUE(store.deleteProgram(1, 1));
    ASSERT_TRUE(store.deleteProgram(1, 1));
    EXPECT_EQ(store.companyNames(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(store.programCount(1), 0);
    EXPECT_EQ(readBytes(t.home().companyFile()), companies) << "nothing is written yet";
    EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    EXPECT_FALSE(QFile::exists(t.home().programFile(2)));
    ASSERT_TRUE(store.commitBatch());
    RecordStore fresh(t.home());
    EXPECT_EQ(fresh.companyNames(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(fresh.programNames(2), (QStringList{u"B-1"_s, u"B-2"_s, u"B-3"_s}));
    EXPECT_FALSE(QFile::exists(t.home().programFile(1)));
    EXPECT_EQ(dataFiles(t), u"2.dta 2.extra.json company.dta company.extra.json"_s);
    ProgramRecord added;
    ASSERT_TRUE(fresh.readProgram(2, 3, added));
    EXPECT_EQ(added.laterValue(u"Headline"_s), programHeadline(u"B-3"_s));

    // Killed after the new files and the intent were written: the next start completes.
    writeBytes(t.file(u"data/company.dta.pending"_s), companies);
    writeBytes(t.file(u"data/company.extra.json.pending"_s), companyExtras);
    writeBytes(t.file(u"data/1.dta.pending"_s), programs);
    writeBytes(t.home().saveIntentFile(), "save\nwrite company.dta\nwrite company.extra.json\n"
                                          "write 1.dta\nremove 2.dta\nremove 2.extra.json\n");
    ASSERT_TRUE(fresh.completeInterruptedDeletion()) << fresh.errorString().toStdString();
    EXPECT_EQ(readBytes(t.home().companyFile()), companies);
    EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    EXPECT_EQ(dataFiles(t), u"1.dta company.dta company.extra.json"_s);
    EXPECT_TRUE(fresh.damage().isEmpty()) << fresh.damage().join(u'\n').toStdString();

    // Killed before the intent: the half-made new file goes, the data stays.
    writeBytes(t.file(u"data/1.dta.pending"_s), "half");
    EXPECT_TRUE(fresh.clearCrashLeftovers().isEmpty());
    EXPECT_EQ(dataFiles(t), u"1.dta company.dta company.extra.json"_s);

    // An intent naming a file outside the data is refused and changes nothing.
    for (const char* bad : {"save\nwrite ../x.dta\n", "save\nremove /etc/passwd\n", "write 1.dta\n",
                            "save\nwrite 1.dta\nwrite 1.dta\n"}) {
        writeBytes(t.home().saveIntentFile(), bad);
        EXPECT_FALSE(fresh.completeInterruptedDeletion()) << bad;
        EXPECT_EQ(readBytes(t.home().programFile(1)), programs);
    }
}
