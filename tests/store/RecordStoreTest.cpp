#include "store/RecordStore.h"
#include "StoreFill.h"
#include "store/HomeLock.h"

using namespace brevaro;
using namespace Qt::StringLiterals;
using namespace brevaro::test;

namespace {

// Companies A, B, C...; company i has i programs.
void fill(RecordStore& store, int companies) {
    for (int c = 1; c <= companies; ++c)
        addCompany(store, c, c);
}

// The programs under company id are those of the company named letter, in order.
void expectProgramsOf(const RecordStore& store, int id, const QString& letter, int count) {
    EXPECT_EQ(store.programCount(id), count);
    for (int p = 1; p <= count; ++p) {
        ProgramRecord r;
        ASSERT_TRUE(store.readProgram(id, p, r));
        EXPECT_EQ(r.text(ProgramField::ProgramName), letter + u'-' + QString::number(p));
        EXPECT_EQ(r.number(ProgramField::CompanyID), id);
    }
}

} // namespace

TEST(RecordStore, DeletionsCompactRecordsAndFiles) {
    TempHome t;
    RecordStore store(t.home());
    fill(store, 3);
    ASSERT_TRUE(store.deleteCompany(2));
    EXPECT_EQ(store.companyNames(), (QStringList{u"A"_s, u"C"_s}));
    CompanyRecord c;
    ASSERT_TRUE(store.readCompany(2, c));
    EXPECT_EQ(c.number(CompanyField::CompanyID), 2);
    expectProgramsOf(store, 1, u"A"_s, 1);
    expectProgramsOf(store, 2, u"C"_s, 3);
    EXPECT_EQ(dataFiles(t), u"1.dta 2.dta company.dta"_s);

    ASSERT_TRUE(store.deleteProgram(2, 2));
    EXPECT_EQ(store.programNames(2), (QStringList{u"C-1"_s, u"C-3"_s}));
    ASSERT_TRUE(store.deleteProgram(1, 1)); // the last program takes its file along
    EXPECT_EQ(dataFiles(t), u"2.dta company.dta"_s);

    // The only company left goes with its programs; the company file stays, empty.
    TempHome one;
    RecordStore single(one.home());
    fill(single, 1);
    ASSERT_TRUE(single.deleteCompany(1));
    EXPECT_EQ(single.companyCount(), 0);
    EXPECT_EQ(dataFiles(one), u"company.dta"_s);
    EXPECT_EQ(QFileInfo(one.file(u"data/company.dta"_s)).size(), 0);
    EXPECT_FALSE(single.deleteCompany(1));
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
            QFile::rename(t.file(u"data/3.dta"_s), t.file(u"data/3.dta.moving"_s));
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
        EXPECT_EQ(store.companyNames(), (QStringList{u"A"_s, u"C"_s, u"D"_s}));
        expectProgramsOf(store, 1, u"A"_s, 1);
        expectProgramsOf(store, 2, u"C"_s, 3);
        expectProgramsOf(store, 3, u"D"_s, 4);
        EXPECT_EQ(dataFiles(t), u"1.dta 2.dta 3.dta company.dta"_s);
    }
}
