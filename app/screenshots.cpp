// Writes a picture of every tab of the main window, of the about box and of an empty home to
// a folder, for the documentation: brevaro-screenshots OUTPUT_DIR PAD_FILE. With the demo
// server ($BREVARO_SERVER) also the keyword window, the site list and the submission browser.
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"
#include "platform/SilentPrompts.h"
#include "platform/WebAddresses.h"
#include "session/EditingSession.h"
#include "store/AppHome.h"
#include "store/RecordStore.h"
#include "submission/SiteList.h"
#include "window/AboutDialog.h"
#include "window/ControlBindingView.h"
#include "window/KeywordsDialog.h"
#include "window/MainWindow.h"
#include "window/ReleaseDialog.h"
#include "window/SiteListDialog.h"
#include "window/SpellingView.h"
#include "window/SubmissionPluginLoader.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>

using namespace brevaro;

namespace {

bool save(QWidget& w, const QString& dir, const char* name) {
    QTest::qWait(150);
    const QString path = dir + u'/' + QLatin1String(name) + QStringLiteral(".png");
    if (!w.grab().save(path)) {
        qWarning("could not write %s", qPrintable(path));
        return false;
    }
    return true;
}

// File, New Release for version 2.5.0 of a made-up 3 MB file, before and after Apply, in a
// session of its own (the window's holds the typed misspelling). The publishing fields a PAD
// 1.15 file cannot carry are set first, as the author sets them once.
bool saveRelease(MainWindow& window, RecordStore& store, Prompts& prompts, const QString& out) {
    EditingSession session(store, prompts);
    session.Start();
    QTemporaryDir folder;
    const QString dist = folder.filePath(QStringLiteral("harbour-notes-2.5.0.zip"));
    QFile file(dist);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (int i = 0; i < 3 * 1024; ++i)
        file.write(QByteArray(1024, static_cast<char>(i * 37)));
    file.close();
    ProgramRecord& p = session.program();
    p.setLaterValue(QStringLiteral("Application_Identifier"),
                    QStringLiteral("example.northwind.HarbourNotes"));
    p.setLaterValue(QStringLiteral("SPDX_License"), QStringLiteral("LicenseRef-proprietary"));
    p.setLaterValue(QStringLiteral("Download_URL_Pattern"),
                    QStringLiteral("https://dl.northwind.example/notes/{version}/{file}"));
    p.setLaterValue(QStringLiteral("Installer_Type"), QStringLiteral("zip"));
    ReleaseDialog dialog(session, &window);
    dialog.addFiles({dist});
    dialog.findChild<QLineEdit*>(QStringLiteral("txtReleaseVersion"))
        ->setText(QStringLiteral("2.5.0"));
    dialog.findChild<QPlainTextEdit*>(QStringLiteral("txtReleaseChanges"))
        ->setPlainText(QStringLiteral("Notes open in tabs; sync resumes after a lost connection."));
    dialog.show();
    bool ok = save(dialog, out, "release-before");
    dialog.apply();
    ok &= save(dialog, out, "release-after");
    return ok;
}

// A description with a misspelt word typed into it and the word's context menu open over it,
// in a window tall enough for the menu. The menu is a window of its own, so it is drawn onto the
// main window's picture where it stands.
bool saveSpelling(MainWindow& window, const QString& dir) {
    auto* box = qobject_cast<QPlainTextEdit*>(window.view().widget(u"txt250char", 0));
    if (!box)
        return false;
    const QSize size = window.size();
    window.resize(size.width(), std::max(size.height(), 720));
    const QString before = box->toPlainText();
    box->setFocus();
    box->moveCursor(QTextCursor::End);
    QTest::keyClicks(box, QStringLiteral(" Every change is saved automaticaly."));
    QTest::qWait(300);
    QTextCursor word(box->document());
    word.setPosition(int(box->toPlainText().indexOf(QStringLiteral("automaticaly")) + 4));
    const QRect caret = box->cursorRect(word);
    std::unique_ptr<QMenu> menu(window.spelling().contextMenu(box, caret.center()));
    // Just below the word, so that its underline shows.
    menu->popup(box->viewport()->mapToGlobal(caret.bottomLeft() + QPoint(0, 4)));
    QTest::qWait(300);
    // Inside the window, so that the picture holds all of it.
    const QRect inside = QRect(window.mapToGlobal(QPoint(0, 0)), window.size());
    QRect placed = menu->geometry();
    placed.moveBottom(std::min(placed.bottom(), inside.bottom() - 4));
    placed.moveRight(std::min(placed.right(), inside.right() - 4));
    menu->move(placed.topLeft());
    QTest::qWait(150);
    QPixmap shot = window.grab();
    {
        QPainter painter(&shot);
        painter.drawPixmap(window.mapFromGlobal(menu->pos()), menu->grab());
    }
    menu->close();
    box->setPlainText(before);
    window.resize(size);
    const QString path = dir + QStringLiteral("/spelling.png");
    if (!shot.save(path)) {
        qWarning("could not write %s", qPrintable(path));
        return false;
    }
    return true;
}

} // namespace

// The windows that fetch from the maker's server, drawn once their data has come.
bool saveDemoWindows(MainWindow& window, EditingSession& session, Prompts& prompts,
                     const QString& out) {
    bool ok = true;
    HttpTransfer http;
    KeywordSuggester suggester(session.text(u"cboProgramName"),
                               makerServer() + QStringLiteral("/notes.html"), http);
    {
        KeywordsDialog keywords(suggester, &window);
        keywords.show();
        keywords.checkHomepage();
        ok &= save(keywords, out, "keywords");
    }
    SiteList sites(session.store().home().siteListFile(), http);
    sites.Download();
    {
        SiteListDialog list(sites, &window);
        list.show();
        ok &= save(list, out, "sites");
    }
    // The browser is modal: it is drawn a while after it shows, once its page has loaded and
    // been filled, and then closed.
    QTimer poll;
    int seenFor = 0;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != u"frmBrowser" || !top->isVisible() || ++seenFor < 25)
                continue;
            poll.stop();
            ok &= save(*top, out, "browser");
            top->close();
        }
    });
    poll.start(1000);
    QString error;
    if (!openSubmissionBrowser(&window, session.company(), session.program(),
                               session.store().home().root(), prompts, &error)) {
        qWarning("%s", qPrintable(error));
        return false;
    }
    return ok;
}

int main(int argc, char* argv[]) {
    prepareForSubmissionBrowser();
    QApplication app(argc, argv);
    // The pointer away from the window, so no link is drawn as hovered.
    QCursor::setPos(1200, 0);
    if (argc < 3) {
        qWarning("usage: brevaro-screenshots OUTPUT_DIR PAD_FILE|HOME [WIDTH HEIGHT]");
        return 1;
    }
    const QString out = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(out);
    // Answers yes, as a user keeping their data would.
    SilentPrompts prompts(true);
    QTemporaryDir folder;
    const AppHome home(folder.path());
    home.createFolders();
    RecordStore store(home);
    // The main window's size when one is asked for, else the size it opens at.
    const auto sized = [&](MainWindow& window) {
        if (argc >= 5)
            window.resize(QString::fromLocal8Bit(argv[3]).toInt(),
                          QString::fromLocal8Bit(argv[4]).toInt());
    };
    bool ok = true;
    {
        EditingSession session(store, prompts);
        MainWindow window(session);
        session.Start();
        sized(window);
        window.show();
        ok &= save(window, out, "empty");
    }
    // The product: a home's data as the command line made it, or a PAD file imported.
    const QString source = QString::fromLocal8Bit(argv[2]);
    const bool fromHome = QFileInfo(source).isDir();
    if (fromHome)
        for (const QFileInfo& file : QDir(AppHome(source).dataFolder()).entryInfoList(QDir::Files))
            QFile::copy(file.filePath(), QDir(home.dataFolder()).filePath(file.fileName()));
    EditingSession session(store, prompts);
    MainWindow window(session);
    session.Start();
    if (!fromHome && !session.pad().importPadFile(source)) {
        qWarning("%s is not a PAD file", argv[2]);
        return 1;
    }
    sized(window);
    window.show();
    auto* tabs = qobject_cast<QTabWidget*>(window.view().widget(u"SSTab1"));
    const char* names[] = {"company", "program", "descriptions", "webinfo", "permissions",
                           "asp",     "esc",     "msn",          "tpa"};
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        ok &= save(window, out, names[i]);
    }
    tabs->setCurrentIndex(2);
    ok &= saveSpelling(window, out);
    // The PAD check's findings, from the Tools menu.
    window.findChild<QAction*>(QStringLiteral("mnuTools_4"))->trigger();
    if (auto* check = window.findChild<QDialog*>(QStringLiteral("frmPadCheck")))
        ok &= save(*check, out, "check");
    AboutDialog about(prompts, &window);
    about.show();
    ok &= save(about, out, "about");
    about.close();
    ok &= saveRelease(window, store, prompts, out);
    if (!qEnvironmentVariableIsEmpty("BREVARO_SERVER"))
        ok &= saveDemoWindows(window, session, prompts, out);
    return ok ? 0 : 1;
}
