// Start-up of the main window against a bare Qt window, each in a fresh process: the time from
// main() to the window's first paint and the resident memory once idle, with an empty home, one
// company and 10,000 companies. Run: build/bin/window_startup [runs]  (under xvfb-run or
// offscreen).
#include "platform/SilentPrompts.h"
#include "records/CompanyRecord.h"
#include "session/EditingSession.h"
#include "store/RecordStore.h"
#include "window/DeferredIcon.h"
#include "window/MainWindow.h"
#include "window/StartUpWarmUp.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFormLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <optional>

using namespace brevaro;

namespace {

long residentKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}

// Reports the first paint of the window it watches, then the memory after a second idle.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(const QElapsedTimer& clock)
        : m_clock(clock) {}
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::Paint && m_ms < 0) {
            m_ms = m_clock.nsecsElapsed() / 1e6;
            QTimer::singleShot(1000, [this] {
                std::printf("%.1f %ld\n", m_ms, residentKb());
                QCoreApplication::exit(0);
            });
        }
        return QObject::eventFilter(o, e);
    }

private:
    const QElapsedTimer& m_clock;
    double m_ms = -1;
};

int child(int argc, char** argv, const QString& mode, const QString& homePath) {
    QElapsedTimer clock;
    clock.start();
    // As the program does (see StartUpWarmUp).
    std::optional<StartUpWarmUp> warmUp;
    if (mode == QLatin1String("main"))
        warmUp.emplace();
    QApplication app(argc, argv);
    FirstPaint watch(clock);
    if (mode == QLatin1String("bare") || mode == QLatin1String("combo")) {
        QMainWindow window;
        // One editable combo box and a line edit: what any form pays once, whatever its size
        // (the combo box's list is the first item view, which asks the desktop whether a
        // screen reader runs).
        if (mode == QLatin1String("combo")) {
            auto* form = new QWidget;
            auto* rows = new QFormLayout(form);
            auto* combo = new QComboBox;
            combo->setEditable(true);
            rows->addRow(QStringLiteral("Name"), combo);
            rows->addRow(QStringLiteral("Address"), new QLineEdit);
            window.setCentralWidget(form);
        }
        window.resize(733, 543);
        window.installEventFilter(&watch);
        window.show();
        return app.exec();
    }
    // As the program does.
    QApplication::setStyle(new DeferringStyle);
    if (warmUp)
        warmUp->applicationStarted();
    RecordStore store{AppHome(homePath)};
    SilentPrompts prompts;
    EditingSession session(store, prompts);
    if (warmUp)
        warmUp->wait();
    MainWindow window(session);
    session.Start();
    window.installEventFilter(&watch);
    window.show();
    return app.exec();
}

struct Sample {
    double ms = 0;
    long kb = 0;
};

Sample runOnce(const QString& self, const QStringList& args) {
    QProcess p;
    p.start(self, QStringList{QStringLiteral("--child")} + args);
    p.waitForFinished(60000);
    const QList<QByteArray> parts = p.readAllStandardOutput().trimmed().split(' ');
    return {parts.value(0).toDouble(), parts.value(1).toLong()};
}

template <typename T> T median(std::vector<T> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    if (argc >= 4 && QByteArray(argv[1]) == "--child")
        return child(argc, argv, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, atoi(argv[1])) : 5;
    QTemporaryDir empty, one, big;
    AppHome(empty.path()).createFolders();
    AppHome(one.path()).createFolders();
    AppHome(big.path()).createFolders();
    {
        // What an author most often opens: one company, shown on its tab.
        RecordStore store{AppHome(one.path())};
        CompanyRecord company;
        company.setText(CompanyField::CompanyName, QStringLiteral("Northwind Software"));
        company.setNumber(CompanyField::CompanyID, 1);
        if (!store.writeCompany(1, company)) {
            std::fprintf(stderr, "could not write the company\n");
            return 1;
        }
    }
    {
        RecordStore store{AppHome(big.path())};
        store.beginBatch();
        CompanyRecord company;
        for (int n = 1; n <= 10000; ++n) {
            company.setText(CompanyField::CompanyName, QStringLiteral("Company %1").arg(n));
            company.setNumber(CompanyField::CompanyID, n);
            store.writeCompany(n, company);
        }
        if (!store.commitBatch()) {
            std::fprintf(stderr, "could not write the companies\n");
            return 1;
        }
    }
    const QString self = QCoreApplication::applicationFilePath();
    // The windows take turns, run after run, so that each ratio compares starts made under the
    // same load of the machine; the ratio shown is the median of those of each run.
    const std::vector<std::pair<const char*, QStringList>> windows = {
        {"bare QMainWindow", {QStringLiteral("bare"), QStringLiteral("-")}},
        {"bare window, one combo box", {QStringLiteral("combo"), QStringLiteral("-")}},
        {"Brevaro, empty home", {QStringLiteral("main"), empty.path()}},
        {"Brevaro, one company", {QStringLiteral("main"), one.path()}},
        {"Brevaro, 10,000 companies", {QStringLiteral("main"), big.path()}}};
    std::vector<std::vector<Sample>> samples(windows.size());
    for (int i = 0; i < runs; ++i)
        for (std::size_t w = 0; w < windows.size(); ++w)
            samples[w].push_back(runOnce(self, windows[w].second));
    std::printf("%-28s %10s %10s %8s %8s\n", "window", "paint ms", "RSS KB", "x time", "x memory");
    for (std::size_t w = 0; w < windows.size(); ++w) {
        std::vector<double> ms, timeRatio, memoryRatio;
        std::vector<long> kb;
        for (int i = 0; i < runs; ++i) {
            const Sample& s = samples[w][i];
            const Sample& bare = samples[0][i];
            ms.push_back(s.ms);
            kb.push_back(s.kb);
            timeRatio.push_back(s.ms / bare.ms);
            memoryRatio.push_back(double(s.kb) / double(bare.kb));
        }
        std::printf("%-28s %10.1f %10ld", windows[w].first, median(ms), median(kb));
        if (w > 0)
            std::printf(" %8.2f %8.2f", median(timeRatio), median(memoryRatio));
        std::printf("\n");
    }
    return 0;
}
