// Start-up of the main window against a bare Qt window, each in a fresh process: the time from
// main() to the window's first paint and the resident memory once idle, with an empty home and
// with 10,000 companies. Run: build/bin/window_startup [runs]  (under xvfb-run or offscreen).
#include "platform/SilentPrompts.h"
#include "records/CompanyRecord.h"
#include "session/EditingSession.h"
#include "store/RecordStore.h"
#include "window/MainWindow.h"

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
    RecordStore store{AppHome(homePath)};
    SilentPrompts prompts;
    EditingSession session(store, prompts);
    MainWindow window(session);
    session.Start();
    window.installEventFilter(&watch);
    window.show();
    return app.exec();
}

struct Sample {
    double ms;
    long kb;
};

Sample measure(const QString& self, const QStringList& args, int runs) {
    std::vector<double> times;
    std::vector<long> sizes;
    for (int i = 0; i < runs; ++i) {
        QProcess p;
        p.start(self, QStringList{QStringLiteral("--child")} + args);
        p.waitForFinished(60000);
        const QList<QByteArray> parts = p.readAllStandardOutput().trimmed().split(' ');
        times.push_back(parts.value(0).toDouble());
        sizes.push_back(parts.value(1).toLong());
    }
    std::sort(times.begin(), times.end());
    std::sort(sizes.begin(), sizes.end());
    return {times[times.size() / 2], sizes[sizes.size() / 2]};
}

} // namespace

int main(int argc, char** argv) {
    if (argc >= 4 && QByteArray(argv[1]) == "--child")
        return child(argc, argv, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, atoi(argv[1])) : 5;
    QTemporaryDir empty, big;
    AppHome(empty.path()).createFolders();
    AppHome(big.path()).createFolders();
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
    const Sample bare = measure(self, {QStringLiteral("bare"), QStringLiteral("-")}, runs);
    std::printf("%-28s %10s %10s %8s %8s\n", "window", "paint ms", "RSS KB", "x time", "x memory");
    std::printf("%-28s %10.1f %10ld\n", "bare QMainWindow", bare.ms, bare.kb);
    const Sample combo = measure(self, {QStringLiteral("combo"), QStringLiteral("-")}, runs);
    std::printf("%-28s %10.1f %10ld %8.2f %8.2f\n", "bare window, one combo box", combo.ms,
                combo.kb, combo.ms / bare.ms, double(combo.kb) / double(bare.kb));
    const std::pair<const char*, QString> homes[] = {{"Brevaro, empty home", empty.path()},
                                                     {"Brevaro, 10,000 companies", big.path()}};
    for (const auto& [name, path] : homes) {
        const Sample s = measure(self, {QStringLiteral("main"), path}, runs);
        std::printf("%-28s %10.1f %10ld %8.2f %8.2f\n", name, s.ms, s.kb, s.ms / bare.ms,
                    double(s.kb) / double(bare.kb));
    }
    return 0;
}
