#include "window/ReleaseDialog.h"
#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "controls/ControlTable.h"
#include "session/EditingSession.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

using namespace brevaro;
using namespace brevaro::test;

namespace {

class ReleaseDialogTest : public ::testing::Test {
protected:
    TempHome home;
    std::unique_ptr<RecordStore> store;
    ScriptedPrompts prompts;
    std::unique_ptr<EditingSession> session;
    std::unique_ptr<MainWindow> window;
    LocalHttpServer server;
    QString dist;

    void SetUp() override {
        const QString pattern = server.url("/") + QStringLiteral("{version}/{file}");
        for (const QStringList& args :
             {QStringList{QStringLiteral("new-company"), QStringLiteral("Northwind")},
              {QStringLiteral("new-program"), QStringLiteral("-c"), QStringLiteral("1"),
               QStringLiteral("Harbour Notes")},
              {QStringLiteral("set"), QStringLiteral("-c"), QStringLiteral("1"),
               QStringLiteral("-p"), QStringLiteral("1"), QStringLiteral("ProgramVersion=2.4.1"),
               QStringLiteral("CharDesc45[0]=Notes that follow you"),
               QStringLiteral("CharDesc250[0]=Harbour Notes keeps notes and lists."),
               QStringLiteral("Application_Identifier=example.northwind.HarbourNotes"),
               QStringLiteral("SPDX_License=MIT"),
               QStringLiteral("Download_URL_Pattern=") + pattern}}) {
            QProcess cli;
            cli.start(QStringLiteral(BREVARO_CLI),
                      QStringList{QStringLiteral("--home"), home.path()} + args);
            ASSERT_TRUE(cli.waitForFinished(30000));
            ASSERT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
        }
        dist = home.file(QStringLiteral("harbour.exe"));
        writeBytes(dist, QByteArray(4000, 'h'));
        store = std::make_unique<RecordStore>(home.home());
        session = std::make_unique<EditingSession>(*store, prompts);
        window = std::make_unique<MainWindow>(*session);
        session->Start();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    // A file dropped onto the dialog as a file manager drops it.
    void drop(ReleaseDialog& dialog, const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &event);
    }

    QStringList column(const QTableWidget& table, int c) {
        QStringList out;
        for (int r = 0; r < table.rowCount(); ++r)
            out << table.item(r, c)->text();
        return out;
    }
};

TEST_F(ReleaseDialogTest, ShowsTheChangesThenApplySavesAndWritesEveryFormat) {
    ReleaseDialog dialog(*session, window.get());
    auto* version = child<QLineEdit>(dialog, "txtReleaseVersion");
    auto* table = child<QTableWidget>(dialog, "grdReleaseChanges");
    auto* apply = child<QPushButton>(dialog, "cmdReleaseApply");
    EXPECT_EQ(version->text(), u"2.4.2");
    EXPECT_FALSE(apply->isEnabled()); // no file yet
    drop(dialog, dist);
    EXPECT_TRUE(apply->isEnabled());
    version->clear();
    QTest::keyClicks(version, QStringLiteral("2.5.0"));
    const QStringList fields = column(*table, 0);
    const auto row = fields.indexOf(QStringLiteral("Program Version"));
    ASSERT_GE(row, 0) << fields.join(u", ").toStdString();
    EXPECT_EQ(table->item(static_cast<int>(row), 1)->text(), u"2.4.1");
    EXPECT_EQ(table->item(static_cast<int>(row), 2)->text(), u"2.5.0");
    EXPECT_TRUE(column(*table, 2).contains(server.url("/2.5.0/harbour.exe")));

    QTest::mouseClick(apply, Qt::LeftButton);
    ProgramRecord saved;
    RecordStore(home.home()).readProgram(1, 1, saved);
    EXPECT_EQ(saved.text(ProgramField::ProgramVersion), u"2.5.0");
    EXPECT_EQ(saved.text(ProgramField::PrimaryDownloadURL), server.url("/2.5.0/harbour.exe"));
    EXPECT_FALSE(session->state().ProgramDirty);
    const QStringList results = rowsOf(*child<QTreeWidget>(dialog, "lstReleaseResults"));
    EXPECT_EQ(results.filter(QStringLiteral("written|")).size(), 8)
        << results.join(u"\n").toStdString();
    EXPECT_TRUE(results.filter(QStringLiteral("error|")).isEmpty())
        << results.join(u"\n").toStdString();
    EXPECT_TRUE(QFile::exists(
        home.file(QStringLiteral("pad/Northwind/example.northwind.HarbourNotes.metainfo.xml"))));
    // The table keeps what was applied; planned again, the release has nothing left to change.
    EXPECT_EQ(table->item(static_cast<int>(row), 2)->text(), u"2.5.0");
    EXPECT_TRUE(child<QLabel>(dialog, "lblReleaseNotes")->text().startsWith(u"Applied"));
    EXPECT_FALSE(apply->isEnabled());
    child<QPlainTextEdit>(dialog, "txtReleaseChanges")->setPlainText(QString());
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_TRUE(child<QLabel>(dialog, "lblReleaseNotes")->text().startsWith(u"Nothing changes"));
}

TEST_F(ReleaseDialogTest, VerifyOnlineReportsEachAddressAndStopsAtOnce) {
    server.route("/2.5.0/harbour.exe",
                 {200, "application/octet-stream", QByteArray(4000, 'h'), {}, false, 0, false});
    server.route("/2.5.0/stalled.exe", {200, "text/plain", {}, {}, true, 0, false});
    ReleaseDialog dialog(*session, window.get());
    child<QLineEdit>(dialog, "txtReleaseVersion")->setText(QStringLiteral("2.5.0"));
    dialog.addFiles({dist});
    dialog.verifyOnline();
    EXPECT_EQ(rowsOf(*child<QTreeWidget>(dialog, "lstReleaseResults")).value(0),
              QStringLiteral("matches|") + server.url("/2.5.0/harbour.exe") +
                  u" - 4000 bytes, SHA-256 " +
                  QString::fromLatin1(
                      QCryptographicHash::hash(QByteArray(4000, 'h'), QCryptographicHash::Sha256)
                          .toHex()));

    // A second file whose server never answers: Stop ends the wait at once.
    const QString stalled = home.file(QStringLiteral("stalled.exe"));
    writeBytes(stalled, "s");
    dialog.addFiles({stalled});
    auto* close = child<QPushButton>(dialog, "cmdReleaseClose");
    QTimer::singleShot(200, &dialog, [&] {
        EXPECT_TRUE(dialog.isVerifying());
        EXPECT_EQ(close->text(), u"&Stop");
        QTest::mouseClick(close, Qt::LeftButton);
    });
    QElapsedTimer clock;
    clock.start();
    dialog.verifyOnline();
    EXPECT_LT(clock.elapsed(), 10000); // far below the 30 s a silent server is given
    const QStringList rows = rowsOf(*child<QTreeWidget>(dialog, "lstReleaseResults"));
    EXPECT_TRUE(rows.value(0).startsWith(u"matches|")) << rows.join(u"\n").toStdString();
    EXPECT_TRUE(rows.value(1).startsWith(u"cancelled|")) << rows.join(u"\n").toStdString();
    EXPECT_FALSE(dialog.isVerifying());
    EXPECT_TRUE(dialog.isVisible() || !dialog.result()); // Stop did not close it
    EXPECT_EQ(close->text(), u"&Close");
}

TEST_F(ReleaseDialogTest, ReachedFromTheButtonBarAndTheFileMenu) {
    const auto rows = mainWindowControls();
    const auto button = std::find_if(rows.begin(), rows.end(), [](const ControlRow& r) {
        return r.action == ControlAction::NewRelease && r.place == Place::ButtonBar;
    });
    ASSERT_NE(button, rows.end());
    auto* widget = window->findChild<QPushButton*>(button->objectName());
    ASSERT_NE(widget, nullptr);
    EXPECT_TRUE(widget->isEnabled());
    bool opened = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        opened = dialog && dialog->objectName() == u"frmRelease";
        if (dialog)
            dialog->reject();
    });
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_TRUE(opened);
    // With unsaved edits the release waits for a save.
    session->navigation().SetProgramDirty();
    opened = false;
    QTimer::singleShot(0, window.get(),
                       [&] { opened = QApplication::activeModalWidget() != nullptr; });
    session->trigger(ControlAction::NewRelease);
    QTest::qWait(10);
    EXPECT_FALSE(opened);
}

} // namespace
