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

// The programs under company id are those of the company named letter, in order, each with
// its own extra values; and company id is that company, with its own.
void expectProgramsOf(const RecordStore& store, int id, const QString& letter, int count) {
    CompanyRecord c;
    ASSERT_TRUE(store.readCompany(id, c));
    EXPECT_EQ(c.text(CompanyField::CompanyName), letter);
    EXPECT_EQ(c.laterValue(u"LinkedinPage"_s), companyPage(letter));
    EXPECT_EQ(store.programCount(id), count);
    for (int p = 1; p <= count; ++p) {
        ProgramRecord r;
        ASSERT_TRUE(store.readProgram(id, p, r));
        const QString name = letter + u'-' + QString::number(p);
        EXPECT_EQ(r.text(ProgramField::ProgramName), name);
        EXPECT_EQ(r.number(ProgramField::CompanyID), id);
        EXPECT_EQ(r.laterValue(u"Headline"_s), programHeadline(name));
        EXPECT_EQ(r.wholeText(int(ProgramField::ChangeInfo)), programChanges(name));
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
    EXPECT_EQ(dataFiles(t),
              u"1.dta 1.extra.json 2.dta 2.extra.json company.dta company.extra.json"_s);

    ASSERT_TRUE(store.deleteProgram(2, 2));
    EXPECT_EQ(store.programNames(2), (QStringList{u"C-1"_s, u"C-3"_s}));
    ProgramRecord moved;
    ASSERT_TRUE(store.readProgram(2, 2, moved));
    EXPECT_EQ(moved.laterValue(u"Headline"_s), programHeadline(u"C-3"_s));
    ASSERT_TRUE(store.deleteProgram(1, 1)); // the last program takes its file along
    EXPECT_EQ(dataFiles(t), u"2.dta 2.extra.json company.dta company.extra.json"_s);

    // The only company left goes with its programs; the company file stays, empty.
    TempHome one;
    RecordStore single(one.home());
    fill(single, 1);
    ASSERT_TRUE(single.deleteCompany(1));
    EXPECT_EQ(single.companyCount(), 0);
    EXPECT_EQ(dataFiles(one), u"company.dta company.extra.json"_s);
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
        if (run == 10) { // died after setting aside some of the files of phase 1
            QFile::rename(t.file(u"data/3.dta"_s), t.file(u"data/3.dta.moving"_s));
            QFile::rename(t.file(u"data/4.extra.json"_s), t.file(u"data/4.extra.json.moving"_s));
        }
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
        EXPECT_EQ(dataFiles(t), u"1.dta 1.extra.json 2.dta 2.extra.json 3.dta 3.extra.json "
                                u"company.dta company.extra.json"_s);
    }
}

// A companion whose entries no longer fit the records (a program that does not know it
// deleted or renamed records) never gives one record's values to another: entries follow
// their record by name, and one whose record is gone is reported and dropped at the next
// write. A home without extra values has no companion at all.
TEST(RecordStore, CompanionEntriesStayWithTheirRecords) {
    TempHome t;
    RecordStore store(t.home());
    fill(store, 2);
    // Another program removes B-1 from 2.dta and renames B-2 to "Other".
    RecordFile programs = store.programFile(2);
    ASSERT_TRUE(programs.remove(1));
    ProgramRecord renamed;
    ASSERT_TRUE(store.readProgram(2, 1, renamed));
    EXPECT_EQ(renamed.laterValue(u"Headline"_s), programHeadline(u"B-2"_s)); // by name
    renamed.setText(ProgramField::ProgramName, u"Other"_s);
    ASSERT_TRUE(programs.write(1, renamed.bytes()));
    ProgramRecord r;
    ASSERT_TRUE(store.readProgram(2, 1, r));
    EXPECT_FALSE(r.hasExtras());
    EXPECT_EQ(r.text(ProgramField::ChangeInfo), u"??????????? B-2"_s);
    const QStringList damage = store.damage(2);
    ASSERT_EQ(damage.size(), 2) << damage.join(u'\n').toStdString();
    EXPECT_TRUE(damage[0].contains(u"\"B-1\" belong to no record"_s));
    // The next write drops what belongs to no record, and keeps what is written.
    r.setLaterValue(u"Summary"_s, u"A summary of twenty letters"_s);
    ASSERT_TRUE(store.writeProgram(2, 1, r));
    EXPECT_TRUE(store.damage(2).isEmpty());
    ASSERT_TRUE(store.readProgram(2, 1, r));
    EXPECT_EQ(r.laterValues().keys(), QStringList{u"Summary"_s});

    // Values removed in a save leave no entry; the last entry takes the companion along.
    r.setLaterValue(u"Summary"_s, QString());
    ASSERT_TRUE(store.writeProgram(2, 1, r));
    EXPECT_FALSE(QFile::exists(t.file(u"data/2.extra.json"_s)));

    TempHome plain;
    RecordStore bare(plain.home());
    CompanyRecord c;
    c.setText(CompanyField::CompanyName, u"Plain"_s);
    ASSERT_TRUE(bare.writeCompany(1, c));
    EXPECT_EQ(dataFiles(plain), u"company.dta"_s);
}

// A damaged companion keeps what is whole and names the rest; bytes that are no companion
// give nothing and one line.
TEST(ExtrasFile, ReadsLeniently) {
    QStringList problems;
    const ExtrasFile read = ExtrasFile::parse(
        R"({"format": "brevaro extra fields 1", "records": 3, "entries": [
            {"number": 2, "name": "B", "later": {"Headline": "Out now", "Summary": 7}},
            {"number": "x", "name": "C", "later": {"Headline": "lost"}},
            {"number": 2, "name": "B again", "later": {"Headline": "twice"}},
            {"number": 1.5, "name": "D", "later": {"Headline": "half"}},
            {"number": 1, "name": "A", "whole": {"ChangeInfo": "Всё"}}]})",
        &problems);
    ASSERT_EQ(read.entries.size(), 2u);
    EXPECT_EQ(read.entries[0].name, u"A"_s);
    EXPECT_EQ(read.entries[1].later, (FixedRecord::Extras{{u"Headline"_s, u"Out now"_s}}));
    EXPECT_EQ(read.recordCount, 3);
    EXPECT_EQ(problems.size(), 4) << problems.join(u'\n').toStdString();
    // What it writes reads back the same.
    QStringList none;
    const ExtrasFile again = ExtrasFile::parse(read.toBytes(), &none);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(again.toBytes(), read.toBytes());

    for (const char* foreign : {"", "[]", "{\"format\": \"other\"}", "{\"entries\": ["}) {
        problems.clear();
        EXPECT_TRUE(ExtrasFile::parse(foreign, &problems).entries.empty());
        EXPECT_EQ(problems.size(), 1) << foreign;
    }
}
