#include "CliTestSupport.h"
#include "store/HomeLock.h"
#include "store/RecordStore.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

// Companies A and B; B has the program P.
void twoCompanies(const TempHome& t) {
    ASSERT_EQ(run(t, "new-company", "A").status, 0);
    ASSERT_EQ(run(t, "new-company", "B").status, 0);
    ASSERT_EQ(run(t, "new-program", "-c", "B", "P").status, 0);
}

} // namespace

// Damaged intents (the store's own tests hold the full set): each command, even list, refuses with
// one line and leaves every file as it was, including a file two folders above the home.
TEST(CliHomeSafety, DamagedDeletionIntentIsRefused) {
    const char* intents[] = {"phase 0\ncompact 99 2\n",
                             "phase 1\ndoom ../../victim.txt\nremove ../../victim.txt\n"};
    for (const char* intent : intents) {
        SCOPED_TRACE(intent);
        TempHome t;
        twoCompanies(t);
        const QString victim = QFileInfo(t.path() + u"/../../victim.txt"_s).absoluteFilePath();
        writeBytes(victim, "keep me");
        writeBytes(t.home().deletionIntentFile(), intent);
        const QByteArray company = readBytes(t.home().companyFile());
        for (const QStringList& args : {words({"list"}), words({"new-company", "X"})}) {
            const CliResult r = runCliIn(t, args);
            EXPECT_EQ(r.status, 2);
            EXPECT_TRUE(r.err.startsWith(u"brevaro-cli: "_s));
            EXPECT_EQ(r.err.count(u'\n'), 1) << r.err.toStdString();
            EXPECT_TRUE(r.err.contains(u"nothing was changed"_s));
            EXPECT_TRUE(r.out.isEmpty());
        }
        EXPECT_EQ(readBytes(t.home().companyFile()), company);
        EXPECT_EQ(QDir(t.file(u"data"_s)).entryList(QDir::Files, QDir::Name),
                  (QStringList{u"2.dta"_s, u"company.dta"_s, u"deletion.intent"_s}));
        EXPECT_EQ(readBytes(victim), QByteArray("keep me"));
        QFile::remove(victim);
    }
}

// A reader that comes while another writer deletes a company waits for the deletion and shows
// the result, never half of it.
TEST(CliHomeSafety, ReaderWaitsForADeletionInProgress) {
    TempHome t;
    twoCompanies(t);
    RecordStore store(t.home());
    HomeLock writer(t.home());
    QString message;
    ASSERT_TRUE(writer.acquire(&message));
    DeletionIntent intent;
    intent.doomedIndex = 1;
    intent.companyCount = 2;
    intent.doomedFile = 1;
    intent.moves = {{2, 1}};
    ASSERT_TRUE(store.runDeletionPhases(intent, 1)); // half done, as a writer at work
    QProcess reader;
    reader.start(QStringLiteral(BREVARO_CLI), {u"--home"_s, t.path(), u"list"_s});
    ASSERT_TRUE(reader.waitForStarted());
    QThread::msleep(300);
    EXPECT_EQ(reader.state(), QProcess::Running) << "the reader must wait";
    ASSERT_TRUE(store.completeInterruptedDeletion());
    ASSERT_TRUE(reader.waitForFinished(20000));
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    EXPECT_EQ(reader.readAllStandardOutput(), QByteArray("1\tB\n\t1\tP\t\n"));
}

// A cut company file is reported, and the programs of a company it no longer holds are not
// given to the next new company. A sparse 4 GB program file is refused, not rewritten.
TEST(CliHomeSafety, DamagedRecordFilesAreReported) {
    TempHome t;
    twoCompanies(t);
    writeBytes(t.home().companyFile(), readBytes(t.home().companyFile()).left(100));
    const CliResult list = run(t, "list");
    EXPECT_EQ(list.status, 0);
    EXPECT_TRUE(list.err.startsWith(u"brevaro-cli: warning: "_s));
    EXPECT_TRUE(list.err.contains(u"company.dta"_s));
    const CliResult created = run(t, "new-company", "New");
    ASSERT_EQ(created.status, 0) << created.err.toStdString();
    EXPECT_TRUE(created.err.contains(u"2.dta.orphaned"_s));
    const CliResult after = run(t, "list");
    EXPECT_EQ(after.out, QByteArray("1\tNew\n"));
    EXPECT_TRUE(QFile::exists(t.file(u"data/2.dta.orphaned"_s)));

    TempHome u;
    twoCompanies(u);
    QFile huge(u.home().programFile(2));
    ASSERT_TRUE(huge.open(QIODevice::ReadWrite));
    ASSERT_TRUE(huge.resize(qint64(4) * 1024 * 1024 * 1024));
    huge.close();
    const CliResult set = run(u, "set", "-c", "B", "-p", "1", "ProgramVersion=2");
    EXPECT_EQ(set.status, 2);
    EXPECT_TRUE(set.err.contains(u"far larger"_s)) << set.err.toStdString();
    EXPECT_EQ(QFileInfo(u.home().programFile(2)).size(), qint64(4) * 1024 * 1024 * 1024);
}

// While the window holds the home, the commands that only read it work; a writer, and a PAD
// file written into the home, are refused.
TEST(CliHomeSafety, ReadersWorkWhileTheWindowHoldsTheHome) {
    TempHome t;
    twoCompanies(t);
    HomeLock window(t.home());
    QString message;
    ASSERT_TRUE(window.acquire(&message));
    QTemporaryDir outside;
    const QString padOutside = outside.filePath(u"p.xml"_s);
    const QString padInside = t.file(u"pad/p.xml"_s);
    for (const QStringList& reader :
         {words({"list"}), words({"show", "-c", "2", "-p", "1", "--json"}),
          words({"check", "-c", "2", "-p", "1"}), words({"webinfo", "-c", "2", "-p", "1"}),
          words({"verify", "-c", "2", "-p", "1"}),
          words({"pad", "-c", "2", "-p", "1", "-o"}) << padOutside}) {
        SCOPED_TRACE(reader.join(u' ').toStdString());
        const CliResult r = runCliIn(t, reader);
        EXPECT_NE(r.status, 2) << r.err.toStdString();
        EXPECT_FALSE(r.out.isEmpty() && reader[0] != QLatin1String("pad"));
    }
    EXPECT_TRUE(QFile::exists(padOutside));
    for (const QStringList& writer :
         {words({"new-company", "C"}), words({"pad", "-c", "2", "-p", "1", "-o"}) << padInside}) {
        SCOPED_TRACE(writer.join(u' ').toStdString());
        const CliResult r = runCliIn(t, writer);
        EXPECT_EQ(r.status, 2);
        EXPECT_TRUE(r.err.contains(u"in use"_s)) << r.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(padInside));
}
