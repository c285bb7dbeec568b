// Importing a large PAD file, scanning hostile text, and writing many PAD documents.
#include "AutoPrompts.h"
#include "pad/PadImporter.h"
#include "pad/PadText.h"
#include "platform/Win1252.h"
#include "session/EditingSession.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace brevaro;

namespace {

constexpr qsizetype kLargeFile = 20 * 1024 * 1024;

CompanyRecord sampleCompany() {
    CompanyRecord c;
    c.setNumber(CompanyField::CompanyID, 1);
    c.setText(CompanyField::CompanyName, u"Bench Software");
    c.setText(CompanyField::Address1, u"1 Long Road");
    return c;
}

ProgramRecord sampleProgram() {
    ProgramRecord p;
    p.setText(ProgramField::ProgramName, u"Bench Tool");
    p.setText(ProgramField::ProgramVersion, u"3.1");
    for (int i = 0; i < 9; ++i) {
        p.setNumber(ProgramField::DescriptionActive, 1, i);
        p.setText(ProgramField::CharDesc2000, QString(1800, u'x'), i);
    }
    p.setNumber(ProgramField::OSSupported, -1, 6);
    return p;
}

// A real document with a block of unknown elements (as download sites add) grown to 20 MB.
QByteArray largePadFile() {
    QString doc = CreatePADText(sampleCompany(), sampleProgram());
    QString block = QStringLiteral("<Affiliates>\r\n");
    int n = 0;
    while (block.size() + doc.size() < kLargeFile)
        block +=
            QStringLiteral(
                "  <Affiliate_%1_Order_Page>http://shop.example/%1</Affiliate_%1_Order_Page>\r\n"
                "  <Affiliate_%1_Vendor_ID />\r\n")
                .arg(++n);
    block += QStringLiteral("</Affiliates>\r\n");
    doc.insert(doc.indexOf(QStringLiteral("</XML_DIZ_INFO>")), block);
    return toWin1252(doc);
}

void BM_ImportLargePadFile(benchmark::State& state) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("large.xml"));
    const QByteArray bytes = largePadFile();
    QFile f(path);
    f.open(QIODevice::WriteOnly);
    f.write(bytes);
    f.close();
    cli::AutoPrompts prompts;
    for (auto _ : state) {
        state.PauseTiming();
        QTemporaryDir home;
        RecordStore store{AppHome(home.path())};
        store.home().createFolders();
        EditingSession session(store, prompts);
        session.Start();
        state.ResumeTiming();
        benchmark::DoNotOptimize(session.pad().importPadFile(path));
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(BM_ImportLargePadFile)->Unit(benchmark::kMillisecond);

// Text that defeats a naive scanner: a tag per few bytes and no closing tag until the end.
void BM_ScanManyOpeningTags(benchmark::State& state) {
    QString text = QStringLiteral("<?xml version=\"1.0\"?>");
    while (text.size() < kLargeFile)
        text += QStringLiteral("<a>text ");
    text += QStringLiteral("</a>");
    for (auto _ : state) {
        int visited = 0;
        scanPadTags(text, [&](QStringView, QStringView, int) { ++visited; });
        benchmark::DoNotOptimize(visited);
    }
    state.SetBytesProcessed(state.iterations() * text.size() * 2);
}
BENCHMARK(BM_ScanManyOpeningTags)->Unit(benchmark::kMillisecond);

// 10,000 documents of each version, as their files hold them: 1.15 in Windows-1252, the later
// versions in UTF-8 (the argument is the version).
void BM_Write10000PadDocuments(benchmark::State& state) {
    const auto version = static_cast<PadVersion>(state.range(0));
    state.SetLabel(padVersionText(version).toStdString());
    const CompanyRecord c = sampleCompany();
    ProgramRecord p = sampleProgram();
    p.setText(ProgramField::CategoryClass, u"Text Editors, Notes");
    p.setText(ProgramField::SpecificCategory, u"Utilities");
    for (auto _ : state) {
        qsizetype total = 0;
        for (int i = 0; i < 10000; ++i)
            total += padFileBytes(CreatePADText(c, p, version), version).size();
        benchmark::DoNotOptimize(total);
    }
}
BENCHMARK(BM_Write10000PadDocuments)
    ->Arg(static_cast<int>(PadVersion::V1_15))
    ->Arg(static_cast<int>(PadVersion::V3_11))
    ->Arg(static_cast<int>(PadVersion::V4_0))
    ->Unit(benchmark::kMillisecond);

// A home of 10,000 companies whose last company has 1,000 programs, each with the later
// versions' fields and a description Windows-1252 cannot hold, kept in the companion of its
// program file.
struct LargeHome {
    QTemporaryDir dir;
    RecordStore store{AppHome(dir.path())};
    static constexpr int kCompanies = 10000;
    static constexpr int kPrograms = 1000;

    LargeHome() {
        store.home().createFolders();
        std::vector<QByteArray> companies;
        for (int n = 1; n <= kCompanies; ++n) {
            CompanyRecord c = sampleCompany();
            c.setNumber(CompanyField::CompanyID, n);
            c.setText(CompanyField::CompanyName, QStringLiteral("Company %1").arg(n));
            companies.push_back(c.bytes());
        }
        store.companyFile().writeAll(companies);
        std::vector<QByteArray> programs;
        ExtrasFile extras;
        for (int n = 1; n <= kPrograms; ++n) {
            ProgramRecord p = sampleProgram();
            p.setNumber(ProgramField::CompanyID, kCompanies);
            p.setText(ProgramField::ProgramName, QStringLiteral("Tool %1").arg(n));
            p.setText(ProgramField::CharDesc250, QStringLiteral("Быстрый редактор %1").arg(n), 8);
            p.setLaterValue(QStringLiteral("Program_Category_Class"),
                            QStringLiteral("Business::Databases & Tools"));
            p.setLaterValue(QStringLiteral("Program_OS_Support"), QStringLiteral("Linux,WinOther"));
            p.setLaterValue(QStringLiteral("Headline"),
                            QStringLiteral("Tool %1 is out now").arg(n));
            programs.push_back(p.bytes());
            extras.setEntry(n, p.text(ProgramField::ProgramName), p);
        }
        extras.recordCount = kPrograms;
        store.programFile(kCompanies).writeAll(programs);
        QFile file(AppHome::extrasFile(store.home().programFile(kCompanies)));
        file.open(QIODevice::WriteOnly);
        file.write(extras.toBytes());
    }
};

// One product's PAD file in each version, as `brevaro-cli pad` makes it: the company and the
// last program read from a fresh store (so the companion is read each time), then written.
void BM_WriteOneProductOfALargeHome(benchmark::State& state) {
    static LargeHome home;
    const auto version = static_cast<PadVersion>(state.range(0));
    state.SetLabel(padVersionText(version).toStdString());
    for (auto _ : state) {
        RecordStore store(home.store.home());
        CompanyRecord c;
        ProgramRecord p;
        store.readCompany(LargeHome::kCompanies, c);
        store.readProgram(LargeHome::kCompanies, LargeHome::kPrograms, p);
        benchmark::DoNotOptimize(padFileBytes(CreatePADText(c, p, version), version));
    }
}
BENCHMARK(BM_WriteOneProductOfALargeHome)
    ->Arg(static_cast<int>(PadVersion::V1_15))
    ->Arg(static_cast<int>(PadVersion::V4_0))
    ->Unit(benchmark::kMillisecond);

} // namespace
