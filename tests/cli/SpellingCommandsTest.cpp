#include "CleanRecords.h"
#include "CliTestSupport.h"
#include "pad/PadSpelling.h"
#include "store/RecordStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

QStringList noteLines(const CliResult& r) {
    QStringList notes;
    for (const QString& line : QString::fromUtf8(r.out).split(u'\n', Qt::SkipEmptyParts))
        if (line.contains(u"is not in the English dictionary"_s))
            notes << line;
    return notes;
}

} // namespace

// check names each misspelt word of the texts as a note, in the home's personal words, and
// leaves spelling out with --no-spelling; spelling never changes the exit status.
TEST(CliSpelling, CheckNotesMisspeltWords) {
    TempHome t;
    ProgramRecord program = cleanProgram();
    program.setText(ProgramField::CharDesc45, u"Keeps your notes tydy"_s);
    {
        RecordStore store(t.home());
        store.writeCompany(1, cleanCompany());
        store.writeProgram(1, 1, program);
    }
    const CliResult r = run(t, "check", "-c", "1", "-p", "1");
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    const QStringList notes = noteLines(r);
    ASSERT_EQ(notes.size(), 2) << r.out.toStdString();
    EXPECT_TRUE(notes[0].startsWith(
        u"note\tKeywords\tKeywords: (Descriptions, English) \"outliner\": \"outliner\" is "_s))
        << notes[0].toStdString();
    EXPECT_TRUE(notes[1].startsWith(u"note\tChar_Desc_45\t45 Char: (Descriptions, English) "
                                    "\"tydy\": \"tydy\" is not in the English dictionary; did "
                                    "you mean \"tidy\""_s))
        << notes[1].toStdString();

    const QJsonArray json =
        QJsonDocument::fromJson(run(t, "check", "-c", "1", "-p", "1", "--json").out).array();
    const QJsonObject last = json.last().toObject();
    EXPECT_EQ(last[u"severity"_s].toString(), u"note"_s);
    EXPECT_EQ(last[u"value"_s].toString(), u"tydy"_s);

    const CliResult without = run(t, "check", "-c", "1", "-p", "1", "--no-spelling");
    EXPECT_EQ(without.status, 0);
    EXPECT_TRUE(noteLines(without).isEmpty());
    EXPECT_EQ(QString::fromUtf8(without.out).count(u'\n'),
              QString::fromUtf8(r.out).count(u'\n') - 2);

    // Words added in the window are in the home, and the command line takes them too.
    writeBytes(personalWordListFile(t.home()), "outliner\ntydy\n");
    EXPECT_TRUE(noteLines(run(t, "check", "-c", "1", "-p", "1")).isEmpty());
}
