// The PAD check over a full record and over values built to slow a scanner down.
#include "pad/PadCheck.h"

#include <benchmark/benchmark.h>

using namespace brevaro;

namespace {

using PF = ProgramField;

// Nine active languages whose longest description is filled with text made of the given piece.
ProgramRecord programOf(const QString& piece) {
    ProgramRecord p;
    p.setText(PF::ProgramName, u"Bench Tool");
    p.setText(PF::ProgramVersion, u"3.1");
    QString text;
    while (text.size() + piece.size() <= 2000)
        text += piece;
    for (int i = 0; i < ProgramRecord::kLanguages; ++i) {
        p.setNumber(PF::DescriptionActive, 1, i);
        p.setText(PF::CharDesc2000, text, i);
        p.setText(PF::CharDesc450, text.left(450), i);
    }
    p.setNumber(PF::OSSupported, 1, 6);
    return p;
}

void runCheck(benchmark::State& state, const QString& piece) {
    CompanyRecord c;
    c.setText(CompanyField::CompanyName, u"Bench Software");
    const ProgramRecord p = programOf(piece);
    for (auto _ : state)
        benchmark::DoNotOptimize(checkPad(c, p).size());
}

void BM_CheckPlainText(benchmark::State& state) {
    runCheck(state, QStringLiteral("Tidy notes for tidy people. "));
}
BENCHMARK(BM_CheckPlainText)->Unit(benchmark::kMicrosecond);

// An "&" or a "<" every few characters: every one starts a reference or tag test.
void BM_CheckHostileText(benchmark::State& state) {
    runCheck(state, QStringLiteral("&a<b &#x <a "));
}
BENCHMARK(BM_CheckHostileText)->Unit(benchmark::kMicrosecond);

} // namespace
