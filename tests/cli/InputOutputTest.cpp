#include "CliTestSupport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

void companyWithProgram(const TempHome& t) {
    ASSERT_EQ(run(t, "new-company", "Acme").status, 0);
    ASSERT_EQ(run(t, "new-program", "-c", "Acme", "Widget").status, 0);
}

QJsonObject program(const TempHome& t) {
    const CliResult r = run(t, "show", "-c", "1", "-p", "1", "--json");
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    return QJsonDocument::fromJson(r.out).object()[u"program"_s].toObject();
}

// Runs the command with the current folder set to folder.
CliResult runIn(const TempHome& t, const QString& folder, const QStringList& args) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder);
    CliResult r = runCliIn(t, args);
    QDir::setCurrent(before);
    return r;
}

} // namespace

// Only regular files of at most 16 MB are read in place of a download: a pipe, a device or a
// folder is refused at once with one line.
TEST(CliInput, PagesAndListsComeFromRegularFilesOnly) {
    TempHome t;
    const QString fifo = t.file(u"pipe"_s);
    ASSERT_EQ(::mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
    const QString big = t.file(u"big.htm"_s);
    writeBytes(big, QByteArray(16 * 1024 * 1024 + 1, 'a'));
    for (const char* command : {"keywords", "sites"}) {
        for (const QString& path : {fifo, u"/dev/zero"_s, t.path(), big, t.file(u"missing"_s)}) {
            SCOPED_TRACE(std::string(command) + " " + path.toStdString());
            const CliResult r =
                runCliIn(t, QStringList{QString::fromLatin1(command), u"--file"_s, path});
            EXPECT_EQ(r.status, 2);
            EXPECT_TRUE(r.err.startsWith(u"brevaro-cli: "_s));
            EXPECT_EQ(r.err.count(u'\n'), 1);
        }
    }
    const QString page = t.file(u"page.htm"_s);
    writeBytes(page, "<html><body>alpha beta alpha</body></html>");
    const CliResult ok = run(t, "keywords", "--file", page);
    EXPECT_EQ(ok.status, 0) << ok.err.toStdString();
    EXPECT_TRUE(ok.out.contains("beta\t001\t")) << ok.out.toStdString();
}

// -o with a bare file name writes both files in the current folder; a name without an
// extension and a missing folder are refused with one line.
TEST(CliInput, PadOutputBesideTheNamedFile) {
    TempHome t;
    companyWithProgram(t);
    const QString work = t.file(u"work"_s);
    QDir().mkpath(work);
    const CliResult r = runIn(t, work, words({"pad", "-c", "1", "-p", "1", "-o", "w.xml"}));
    ASSERT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_EQ(QDir(work).entryList(QDir::Files, QDir::Name), (QStringList{u"w.htm"_s, u"w.xml"_s}));
    const CliResult noExtension =
        runIn(t, work, words({"pad", "-c", "1", "-p", "1", "-o", "noext"}));
    EXPECT_EQ(noExtension.status, 2);
    EXPECT_FALSE(QFile::exists(work + u"/.htm"_s));
    EXPECT_FALSE(QFile::exists(work + u"/noext"_s));
    const CliResult missing = run(t, "pad", "-c", "1", "-p", "1", "-o", t.file(u"none/w.xml"_s));
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.err.count(u'\n'), 1) << missing.err.toStdString();
}

// An index beyond any entry or a number beyond a flag's 16 bits is an error, never wrapped
// onto entry 0 or onto another number; a new name is saved.
TEST(CliInput, SetNeverAnswersWrongSilently) {
    TempHome t;
    companyWithProgram(t);
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "Keywords[0]=first").status, 0);
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "OSSupported[26]=32767").status, 0);
    const QByteArray before = readBytes(t.home().programFile(1));
    for (const char* bad : {"Keywords[4294967296]=x", "Keywords[99999999999999999999]=x",
                            "Keywords[9]=x", "OSSupported[26]=32768", "OSSupported[26]=-32769",
                            "IncludesJavaVM=65536", "OSSupported[1]=65536"}) {
        const CliResult r = run(t, "set", "-c", "1", "-p", "1", bad);
        EXPECT_EQ(r.status, 2) << bad;
    }
    EXPECT_EQ(readBytes(t.home().programFile(1)), before);
    EXPECT_EQ(program(t)[u"Keywords"_s].toArray()[0].toString(), u"first"_s);
    EXPECT_EQ(program(t)[u"OSSupported"_s].toArray()[26].toInt(), 32767);

    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "ProgramName=Gadget").status, 0);
    ASSERT_EQ(run(t, "set", "-c", "Acme", "CompanyName=Acme Works").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tAcme Works\n\t1\tGadget\t\n"));
}

// Names are printed with their control characters escaped, so a line stays a line and a column
// a column, and no terminal escape passes through.
TEST(CliOutput, ControlCharactersAreEscaped) {
    TempHome t;
    companyWithProgram(t);
    ASSERT_EQ(run(t, "set", "-c", "1", "-p", "1", "ProgramName=a\nb\tc\x1b[31md\\").status, 0);
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tAcme\n\t1\ta\\nb\\tc\\x1b[31md\\\\\t\n"));

    writeBytes(t.file(u"plain"_s), "x");
    const CliResult r = run(t, "--home", t.file(u"plain"_s), "list");
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.startsWith(u"brevaro-cli: "_s));
}

// Import prints company and program of each file; when one of several files cannot be
// imported, the message says which are in and which not.
TEST(CliInput, ImportSaysWhichFilesWereDone) {
    TempHome t;
    const QString good = t.file(u"a.xml"_s);
    const QString bad = t.file(u"b.xml"_s);
    writeBytes(good, "<?xml version=\"1.0\"?>\r\n<XML_DIZ_INFO><Company_Info><Company_Name>"
                     "Acme</Company_Name></Company_Info><Program_Info><Program_Name>Widget"
                     "</Program_Name></Program_Info></XML_DIZ_INFO>\r\n");
    writeBytes(bad, "<html>not a PAD file</html>");
    const CliResult twice = run(t, "import", good, good);
    ASSERT_EQ(twice.status, 0) << twice.err.toStdString();
    EXPECT_EQ(twice.out, QByteArray("1\t1\n1\t2\n"));
    const CliResult r = run(t, "import", good, bad);
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, QByteArray("1\t3\n"));
    EXPECT_TRUE(r.err.contains(u"imported: "_s + good)) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(u"not imported: "_s + bad));
    EXPECT_TRUE(r.err.contains(u"not a PAD file"_s));
    EXPECT_EQ(run(t, "list").out,
              QByteArray("1\tAcme\n\t1\tWidget\t\n\t2\tWidget\t\n\t3\tWidget\t\n"));
}

// A command that changes a company and a program writes both files together: when the second
// cannot be written, the first is not changed either. A new record's numbers are printed only
// once it is saved: a pipeline that reads them never believes in a program that does not exist.
TEST(CliInput, NothingIsHalfSavedOrPrintedUnsaved) {
    TempHome t;
    companyWithProgram(t);
    const QByteArray company = readBytes(t.home().companyFile());
    // A folder where the new program file would go makes its write fail.
    QDir().mkpath(t.file(u"data/1.dta.pending"_s));
    const CliResult r =
        run(t, "set", "-c", "1", "-p", "1", "CityTown=Elsewhere", "ProgramVersion=9");
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.startsWith(u"brevaro-cli: the changes could not be saved"_s))
        << r.err.toStdString();
    EXPECT_EQ(readBytes(t.home().companyFile()), company);
    EXPECT_FALSE(QFile::exists(t.home().saveIntentFile()));

    const CliResult created = run(t, "new-program", "-c", "1", "Second");
    EXPECT_EQ(created.status, 2);
    EXPECT_TRUE(created.out.isEmpty()) << created.out.toStdString();
    EXPECT_EQ(run(t, "list").out, QByteArray("1\tAcme\n\t1\tWidget\t\n"));
}
