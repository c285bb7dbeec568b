// Writers killed at random moments, each run on a fresh copy of a home with many records.
// Once the next command has started, the home must hold the state from before the command or
// the state after it: every record whole, every program stamped with its company's number,
// and, once a writer has started, no file the program does not own. The random moments are
// seeded, so a failure can be run again.
#include "CliTestSupport.h"
#include "records/ProgramRecord.h"
#include "store/ExtrasFile.h"
#include "store/RecordStore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <iostream>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kCompanies = 30;
constexpr int kRuns = 40;

// The record files of a home and their companions, by name.
using RecordFiles = QMap<QString, QByteArray>;

RecordFiles recordFiles(const QString& home) {
    static const QRegularExpression name(u"^(company|[1-9][0-9]*)\\.(dta|extra\\.json)$"_s);
    RecordFiles files;
    const QDir data(home + u"/data"_s);
    for (const QString& f : data.entryList(QDir::Files | QDir::Hidden))
        if (name.match(f).hasMatch())
            files[f] = readBytes(data.filePath(f));
    return files;
}

void copyFolder(const QString& from, const QString& to) {
    QDir().mkpath(to);
    const QDir source(from);
    for (const QFileInfo& info :
         source.entryInfoList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        const QString target = to + u'/' + info.fileName();
        if (info.isDir()) {
            copyFolder(info.filePath(), target);
        } else if (info.fileName() != QLatin1String("brevaro.lock")) {
            ASSERT_TRUE(QFile::copy(info.filePath(), target)) << target.toStdString();
        }
    }
}

// Companies C1 to C30, each with two programs (Pna and Pnb); every third company and its
// second program have fields beyond the 1.15 records, one a text Windows-1252 cannot hold.
void manyRecords(const TempHome& t) {
    for (int c = 1; c <= kCompanies; ++c) {
        const QByteArray name = "C" + QByteArray::number(c);
        ASSERT_EQ(run(t, "new-company", name.constData()).status, 0);
        for (const char* suffix : {"a", "b"}) {
            const QByteArray program = "P" + QByteArray::number(c) + suffix;
            ASSERT_EQ(run(t, "new-program", "-c", name.constData(), program.constData()).status, 0);
        }
        if (c % 3 == 0) {
            const QString n = QString::number(c);
            const CliResult set =
                runCliAt(t.path(),
                         QStringList{u"set"_s, u"-c"_s, QString::fromLatin1(name), u"-p"_s,
                                     u"P"_s + n + u"b"_s, u"LinkedinPage=https://in.example/"_s + n,
                                     u"Headline=The headline of program "_s + n,
                                     u"ChangeInfo=Исправления "_s + n});
            ASSERT_EQ(set.status, 0) << set.err.toStdString();
        }
    }
}

// The files the program may leave in data/ once a writer has started, whole, with every
// program stamped with its company's number.
void expectWholeAndStamped(const QString& home) {
    const RecordStore store{AppHome(home)};
    const QDir data(home + u"/data"_s);
    const int companies = store.companyCount();
    EXPECT_EQ(QFileInfo(data.filePath(u"company.dta"_s)).size() % 842, 0);
    for (const QString& f : data.entryList(QDir::Files | QDir::Hidden)) {
        if (f.endsWith(QLatin1String(".extra.json"))) {
            // A companion belongs to a record file, and each entry to a record of it.
            const QString records = f.chopped(11) + u".dta"_s;
            ASSERT_TRUE(data.exists(records)) << f.toStdString();
            QStringList problems;
            ExtrasFile extras = ExtrasFile::parse(readBytes(data.filePath(f)), &problems);
            EXPECT_TRUE(problems.isEmpty()) << problems.join(u'\n').toStdString();
            const QStringList names = records == QLatin1String("company.dta")
                                          ? store.companyNames()
                                          : store.programNames(records.chopped(4).toInt());
            EXPECT_TRUE(extras.matchRecords(names).empty()) << f.toStdString();
            continue;
        }
        if (f == QLatin1String("company.dta"))
            continue;
        bool number = false;
        const int id = f.chopped(4).toInt(&number);
        ASSERT_TRUE(f.endsWith(QLatin1String(".dta")) && number && id >= 1 && id <= companies)
            << "a file that should not be there: " << f.toStdString();
        EXPECT_EQ(QFileInfo(data.filePath(f)).size() % ProgramRecord::kLength, 0)
            << f.toStdString();
        const auto programs = store.programFile(id).readAll();
        ASSERT_TRUE(programs.has_value()) << f.toStdString();
        for (const QByteArray& bytes : *programs) {
            ProgramRecord r;
            r.setBytes(bytes);
            EXPECT_EQ(r.number(ProgramField::CompanyID), id) << f.toStdString();
        }
    }
}

class KilledCommands : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        s_template = new TempHome;
        manyRecords(*s_template);
    }
    static void TearDownTestSuite() {
        delete s_template;
        s_template = nullptr;
    }

    // A fresh copy of the home with many records.
    static QString freshHome(QTemporaryDir& dir) {
        copyFolder(s_template->path(), dir.path());
        return dir.path();
    }

    static QProcess* start(const QString& home, const QStringList& args) {
        auto* p = new QProcess;
        p->start(QStringLiteral(BREVARO_CLI), QStringList{u"--home"_s, home} + args);
        EXPECT_TRUE(p->waitForStarted());
        return p;
    }

    // Runs args killed at a random moment from half the time the command takes (the first
    // half goes to starting up) to a tenth past its end, kRuns times; each run checked as the
    // top of this file says.
    void killRuns(const QStringList& args, quint32 seed, int status = 0) {
        // The state after the command, and how long the command takes.
        QTemporaryDir finished;
        const QString done = freshHome(finished);
        QElapsedTimer clock;
        clock.start();
        QProcess* whole = start(done, args);
        whole->waitForFinished(60000);
        const qint64 takesUs = std::max<qint64>(clock.nsecsElapsed() / 1000, 1000);
        EXPECT_EQ(whole->exitCode(), status) << whole->readAllStandardError().toStdString();
        delete whole;
        const RecordFiles before = recordFiles(s_template->path());
        const RecordFiles after = recordFiles(done);
        EXPECT_NE(before, after);

        QRandomGenerator random(seed);
        for (int run = 0; run < kRuns; ++run) {
            QTemporaryDir dir;
            const QString home = freshHome(dir);
            QProcess* writer = start(home, args);
            QThread::usleep(takesUs / 2 + random.bounded(takesUs * 6 / 10 + 1));
            writer->kill();
            writer->waitForFinished();
            delete writer;
            // The next start, a reader: it finishes or undoes what the kill left.
            const CliResult list = runCliAt(dir.path(), words({"list"}));
            EXPECT_EQ(list.status, 0) << list.err.toStdString();
            const RecordFiles now = recordFiles(home);
            EXPECT_TRUE(now == before || now == after) << "run " << run << " left a third state";
            // A writer clears what is left of the killed one.
            const CliResult writer2 = runCliAt(dir.path(), words({"new-company", "Next"}));
            EXPECT_EQ(writer2.status, 0) << writer2.err.toStdString();
            expectWholeAndStamped(home);
        }
    }

    static TempHome* s_template;
};

TempHome* KilledCommands::s_template = nullptr;

} // namespace

TEST_F(KilledCommands, SetOfACompanyAndAProgramField) {
    killRuns(words({"set", "-c", "C12", "-p", "P12b", "CityTown=Harbour", "ProgramVersion=9.9"}),
             11);
}

TEST_F(KilledCommands, SetOfFieldsBeyondThe115Records) {
    killRuns(
        words({"set", "-c", "C12", "-p", "P12b", "TwitterCompanyPage=https://t.example/12",
               "Program_Category_Class=Business::Databases & Tools", "ChangeInfo=Новые отчёты"}),
        17);
}

TEST_F(KilledCommands, NewProgram) {
    killRuns(words({"new-program", "-c", "C12", "Fresh"}), 12);
}

TEST_F(KilledCommands, NewCompany) {
    killRuns(words({"new-company", "Fresh Company"}), 13);
}

// A release saves the program and its extra values, then writes the outputs beside the home's
// PAD files; its status is 3 as these records lack what the AppStream file needs.
TEST_F(KilledCommands, ReleaseOfAProgram) {
    QTemporaryDir dist;
    const QString file = dist.filePath(u"p12b-9.9.exe"_s);
    writeBytes(file, QByteArray(200000, 'r'));
    killRuns(QStringList{u"release"_s, u"-c"_s, u"C12"_s, u"-p"_s, u"P12b"_s, u"--version"_s,
                         u"9.9"_s, u"--file"_s, file, u"--date"_s, u"2026-11-24"_s},
             16, 3);
}

// Deleting an early company renumbers every later one and renames their program files.
TEST_F(KilledCommands, DeleteOfACompanyWithPrograms) {
    killRuns(words({"delete", "-c", "C2"}), 14);
}

TEST_F(KilledCommands, ImportOfACompanyAndItsProgram) {
    QTemporaryDir pads;
    const QString pad = pads.filePath(u"fresh.xml"_s);
    writeBytes(pad, "<?xml version=\"1.0\"?>\r\n<XML_DIZ_INFO><Company_Info><Company_Name>Imported"
                    "</Company_Name><City_Town>Harbour</City_Town></Company_Info><Program_Info>"
                    "<Program_Name>Imported Notes</Program_Name><Program_Version>2.1"
                    "</Program_Version></Program_Info></XML_DIZ_INFO>\r\n");
    killRuns(QStringList{u"import"_s, pad}, 15);
}

// A reader started while a deletion runs, and the deletion killed at a random moment: the
// reader prints the list from before or from after, or says the home is in use; never a mix.
TEST_F(KilledCommands, ReaderRacingADeletion) {
    QTemporaryDir finished;
    const QString done = freshHome(finished);
    ASSERT_EQ(runCliAt(finished.path(), words({"delete", "-c", "C2"})).status, 0);
    const QByteArray before = run(*s_template, "list").out;
    const QByteArray after = runCliAt(finished.path(), words({"list"})).out;
    QRandomGenerator random(16);
    int printedBefore = 0, printedAfter = 0, refused = 0;
    for (int run = 0; run < kRuns; ++run) {
        QTemporaryDir dir;
        const QString home = freshHome(dir);
        QProcess* writer = start(home, words({"delete", "-c", "C2"}));
        QThread::usleep(random.bounded(20000));
        QProcess* reader = start(home, words({"list"}));
        QThread::usleep(random.bounded(40000));
        writer->kill();
        writer->waitForFinished();
        ASSERT_TRUE(reader->waitForFinished(30000));
        const QByteArray printed = reader->readAllStandardOutput();
        if (reader->exitCode() != 0) {
            ++refused;
            EXPECT_TRUE(printed.isEmpty());
            EXPECT_TRUE(reader->readAllStandardError().contains("in use"));
        } else if (printed == before) {
            ++printedBefore;
        } else {
            EXPECT_EQ(printed, after) << "run " << run << " printed a mix";
            printedAfter += printed == after ? 1 : 0;
        }
        delete writer;
        delete reader;
        ASSERT_EQ(runCliAt(dir.path(), words({"new-company", "Next"})).status, 0);
        expectWholeAndStamped(home);
    }
    std::cout << "reader racing a deletion: " << kRuns << " runs, " << printedBefore
              << " printed the list before, " << printedAfter << " after, " << refused
              << " refused\n";
}
