#include "AppVersion.h"
#include "session/EditingSession.h"
#include "store/AppHome.h"
#include "store/HomeLock.h"
#include "store/RecordStore.h"
#include "window/DeferredIcon.h"
#include "window/MainWindow.h"
#include "window/StartUpWarmUp.h"
#include "window/SubmissionPluginLoader.h"
#include "window/WidgetPrompts.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTimer>

using namespace brevaro;

namespace {

void describe() {
    QCoreApplication::setApplicationName(QStringLiteral("brevaro"));
    QCoreApplication::setApplicationVersion(versionText());
}

// The options of the window's command line.
void addOptions(QCommandLineParser& parser, const QCommandLineOption& home) {
    parser.setApplicationDescription(
        QStringLiteral("Keeps your companies and programs and writes their PAD files."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(home);
}

QCommandLineOption homeOption() {
    return QCommandLineOption(
        QStringLiteral("home"),
        QStringLiteral("The folder that holds the data (else $BREVARO_HOME, a data folder beside "
                       "the program, or ~/.local/share/brevaro)."),
        QStringLiteral("DIR"));
}

} // namespace

int main(int argc, char* argv[]) {
    // --help and --version answer on the terminal, also where no display is available.
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg == "--help" || arg == "-h" || arg == "--help-all" || arg == "--version" ||
            arg == "-v") {
            QCoreApplication core(argc, argv);
            describe();
            QCommandLineParser parser;
            QCommandLineOption homeOpt = homeOption();
            addOptions(parser, homeOpt);
            parser.process(core);
            return 0;
        }
    }
    // The browser's environment is set before another thread may read the environment.
    prepareForSubmissionBrowser();
    StartUpWarmUp warmUp;
    QApplication app(argc, argv);
    // Its thread may use the application's fonts: it ends before the application does.
    const auto fontsFirst = qScopeGuard([&warmUp] { warmUp.wait(); });
    QApplication::setStyle(new DeferringStyle);
    describe();
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.brevaro.Brevaro"));
    QCommandLineParser parser;
    QCommandLineOption homeOpt = homeOption();
    addOptions(parser, homeOpt);
    parser.process(app);

    const AppHome home =
        AppHome::resolve(parser.value(homeOpt), QCoreApplication::applicationDirPath());
    // One writer per home: a second window on the same data would overwrite the first's saves.
    HomeLock lock(home);
    QString busy;
    if (!home.createFolders() || !lock.acquire(&busy)) {
        QMessageBox::critical(
            nullptr, QLatin1String(kAppTitle),
            busy.isEmpty() ? QStringLiteral("The data folder %1 cannot be used.").arg(home.root())
                           : busy);
        return 1;
    }
    warmUp.applicationStarted();
    RecordStore store(home);
    WidgetPrompts prompts;
    EditingSession session(store, prompts);
    warmUp.wait();
    MainWindow window(session);
    prompts.setParentWindow(&window);
    // What a crash left behind is cleared before anything reads the files (start-up says
    // itself when an interrupted deletion cannot be completed); what is damaged is said once
    // the window is up.
    QStringList problems;
    if (store.completeInterruptedDeletion())
        problems = store.clearCrashLeftovers();
    session.Start();
    problems += store.damage();
    window.show();
    if (!problems.isEmpty())
        QTimer::singleShot(0, &window, [&prompts, problems] {
            prompts.message(QLatin1String(kAppTitle),
                            QStringLiteral("Brevaro found problems in its data and kept "
                                           "everything it could read:\n\n") +
                                problems.join(u'\n'));
        });
    return app.exec();
}
