// Start-up on a home with 10,000 companies, and selecting a company that has 1,000 programs.
#include "AutoPrompts.h"
#include "session/EditingSession.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace brevaro;

namespace {

constexpr int kCompanies = 10000;
constexpr int kPrograms = 1000;

// A home built once: every company saved, company 2 with many programs, company 1 with one.
struct BigHome {
    QTemporaryDir dir;
    BigHome() {
        AppHome home(dir.path());
        home.createFolders();
        RecordStore store(home);
        std::vector<QByteArray> companies;
        for (int c = 1; c <= kCompanies; ++c) {
            CompanyRecord r;
            r.setNumber(CompanyField::CompanyID, c);
            r.setText(CompanyField::CompanyName, QStringLiteral("Company %1").arg(c));
            companies.push_back(r.bytes());
        }
        store.companyFile().writeAll(companies);
        std::vector<QByteArray> programs;
        for (int p = 1; p <= kPrograms; ++p) {
            ProgramRecord r;
            r.setNumber(ProgramField::CompanyID, 2);
            r.setText(ProgramField::ProgramName, QStringLiteral("Program %1").arg(p));
            r.setText(ProgramField::CharDesc2000, QString(1900, u'd'), 0);
            programs.push_back(r.bytes());
        }
        store.programFile(2).writeAll(programs);
        ProgramRecord one;
        one.setNumber(ProgramField::CompanyID, 1);
        one.setText(ProgramField::ProgramName, QStringLiteral("Only"));
        store.programFile(1).writeAll({one.bytes()});
    }
};

BigHome& bigHome() {
    static BigHome home;
    return home;
}

void BM_StartUpWith10000Companies(benchmark::State& state) {
    RecordStore store{AppHome(bigHome().dir.path())};
    cli::AutoPrompts prompts;
    for (auto _ : state) {
        EditingSession session(store, prompts);
        session.Start();
        benchmark::DoNotOptimize(session.state().CompanyCount);
    }
}
BENCHMARK(BM_StartUpWith10000Companies)->Unit(benchmark::kMillisecond);

void BM_SelectCompanyWith1000Programs(benchmark::State& state) {
    RecordStore store{AppHome(bigHome().dir.path())};
    cli::AutoPrompts prompts;
    EditingSession session(store, prompts);
    session.Start();
    const int selector = session.id(u"cboCompanyName");
    for (auto _ : state) {
        session.screen().setListIndex(selector, 1); // 1,000 programs
        state.PauseTiming();
        state.counters["programs"] = static_cast<double>(session.state().ProgramCount);
        session.screen().setListIndex(selector, 0);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SelectCompanyWith1000Programs)->Unit(benchmark::kMillisecond);

} // namespace
