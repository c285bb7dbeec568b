#include "store/RecordStore.h"
#include "TestSupport.h"
#include "store/HomeLock.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;

namespace {

// A home with companies named A, B, C...; company i has i programs named "<letter>i-<n>".
void fill(RecordStore& store, int companies) {
    for (int c = 1; c <= companies; ++c) {
        CompanyRecord company;
        company.setNumber(CompanyField::CompanyID, c);
        company.setText(CompanyField::CompanyName, QString(QChar(u'A' + c - 1)));
        ASSERT_TRUE(store.writeCompany(c, company));
        for (int p = 1; p <= c; ++p) {
            ProgramRecord program;
            program.setNumber(ProgramField::CompanyID, c);
            program.setText(ProgramField::ProgramName,
                            QStringLiteral("%1-%2").arg(QChar(u'A' + c - 1)).arg(p));
            ASSERT_TRUE(store.writeProgram(c, p, program));
        }
    }
}

QStringList dataFiles(const TempHome& t) {
    return QDir(t.file(QStringLiteral("data"))).entryList(QDir::Files, QDir::Name);
}

void expectProgramsOf(const RecordStore& store, int id, const QString& letter, int count) {
    EXPECT_EQ(store.programCount(id), count);
    for (int p = 1; p <= count; ++p) {
        ProgramRecord r;
        ASSERT_TRUE(store.readProgram(id, p, r));
        EXPECT_EQ(r.text(ProgramField::ProgramName), QStringLiteral("%1-%2").arg(letter).arg(p));
        EXPECT_EQ(r.number(ProgramField::CompanyID), id);
    }
}

} // namespace

TEST(RecordStore, DeletingACompanyKeepsEveryOtherCompanysPrograms) {
    TempHome t;
    RecordStore store(t.home());
    fill(store, 3);
    ASSERT_TRUE(store.deleteCompany(2));
    EXPECT_EQ(store.companyNames(), (QStringList{QStringLiteral("A"), QStringLiteral("C")}));
    CompanyRecord c;
    ASSERT_TRUE(store.readCompany(2, c));
    EXPECT_EQ(c.number(CompanyField::CompanyID), 2);
    expectProgramsOf(store, 1, QStringLiteral("A"), 1);
    expectProgramsOf(store, 2, QStringLiteral("C"), 3);
    EXPECT_EQ(dataFiles(t), (QStringList{QStringLiteral("1.dta"), QStringLiteral("2.dta"),
                                         QStringLiteral("company.dta")}));
}

TEST(RecordStore, DeletingTheOnlyCompanyLeavesAnEmptyFile) {
    TempHome t;
    RecordStore store(t.home());
    fill(store, 1);
    ASSERT_TRUE(store.deleteCompany(1));
    EXPECT_EQ(store.companyCount(), 0);
    EXPECT_EQ(dataFiles(t), QStringList{QStringLiteral("company.dta")});
    EXPECT_EQ(QFileInfo(t.file(QStringLiteral("data/company.dta"))).size(), 0);
    EXPECT_FALSE(store.deleteCompany(1));
}

TEST(RecordStore, ProgramDeletionCompactsAndDropsTheEmptyFile) {
    TempHome t;
    RecordStore store(t.home());
    fill(store, 3);
    ASSERT_TRUE(store.deleteProgram(3, 2));
    EXPECT_EQ(store.programNames(3), (QStringList{QStringLiteral("C-1"), QStringLiteral("C-3")}));
    ASSERT_TRUE(store.deleteProgram(1, 1));
    EXPECT_FALSE(QFile::exists(t.file(QStringLiteral("data/1.dta"))));
}

// A crash at any point of a deletion is completed by the next start, with the same result:
// after each phase, again after a phase whose end was not yet recorded, and in the middle of
// setting the files aside.
TEST(RecordStore, InterruptedDeletionIsCompleted) {
    DeletionIntent intent;
    intent.doomedIndex = 2;
    intent.companyCount = 4;
    intent.doomedFile = 2;
    intent.moves = {{3, 2}, {4, 3}};
    for (int run = 0; run < 11; ++run) {
        const int done = run == 10 ? 1 : run / 2; // phases completed before the crash
        const bool unrecorded = run % 2 == 1;     // the last completed phase was not recorded
        SCOPED_TRACE(run);
        TempHome t;
        RecordStore store(t.home());
        fill(store, 4);
        const QString intentPath = t.home().deletionIntentFile();
        ASSERT_TRUE(store.runDeletionPhases(intent, done - 1));
        if (run == 10) // died after setting aside one of the files of phase 1
            QFile::rename(t.file(QStringLiteral("data/3.dta")),
                          t.file(QStringLiteral("data/3.dta.moving")));
        if (unrecorded && done > 0) {
            DeletionIntent earlier = intent;
            earlier.phase = done - 1;
            writeBytes(intentPath, earlier.toBytes());
        }
        if (done >= 4 && !unrecorded) { // the crash came after the intent was gone
            ASSERT_FALSE(QFile::exists(intentPath));
        }
        ASSERT_TRUE(store.completeInterruptedDeletion()) << store.errorString().toStdString();
        EXPECT_FALSE(QFile::exists(intentPath));
        EXPECT_EQ(store.companyNames(),
                  (QStringList{QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("D")}));
        expectProgramsOf(store, 1, QStringLiteral("A"), 1);
        expectProgramsOf(store, 2, QStringLiteral("C"), 3);
        expectProgramsOf(store, 3, QStringLiteral("D"), 4);
        EXPECT_EQ(dataFiles(t),
                  (QStringList{QStringLiteral("1.dta"), QStringLiteral("2.dta"),
                               QStringLiteral("3.dta"), QStringLiteral("company.dta")}));
    }
}

TEST(HomeLock, SecondWriterIsRefused) {
    TempHome t;
    HomeLock first(t.home());
    QString message;
    ASSERT_TRUE(first.acquire(&message));
    HomeLock second(t.home());
    EXPECT_FALSE(second.acquire(&message));
    EXPECT_TRUE(message.contains(QStringLiteral("in use")));
}
