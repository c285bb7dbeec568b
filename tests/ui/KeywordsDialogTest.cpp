#include "window/KeywordsDialog.h"
#include "LocalHttpServer.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QStyleOptionViewItem>
#include <QTimer>

using namespace brevaro;
using namespace brevaro::test;

namespace {

LocalHttpServer::Response page(const QByteArray& body) {
    LocalHttpServer::Response r;
    r.contentType = "text/html; charset=utf-8";
    r.body = body;
    return r;
}

// Where the check box of a row is drawn, in viewport coordinates.
QPoint checkBoxOf(const QTreeWidget& list, int row) {
    const QModelIndex index = list.model()->index(row, 0);
    QStyleOptionViewItem option;
    option.initFrom(list.viewport());
    option.rect = list.visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = index.data().toString();
    return list.style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list)
        .center();
}

// A suggester for a program named "Widget" with its home page, and its window, shown.
struct Shown {
    HttpTransfer http;
    KeywordSuggester suggester;
    KeywordsDialog dialog{suggester};
    explicit Shown(const QString& homePage = QString())
        : suggester(QStringLiteral("Widget"), homePage, http) {
        showActive(dialog);
    }
};

} // namespace

// Enter in the address box fetches the typed address; ticks made with mouse and keyboard in
// the word order follow their words into the count order; Re-Build and OK hand them over.
TEST(KeywordsDialog, FetchSortTickAndOkGiveTheTickedWords) {
    LocalHttpServer server;
    server.route("/home", page("<p> zoom Zoom ZOOM fast fast fast notes notes apple </p>"));
    Shown s;
    KeywordsDialog& dialog = s.dialog;
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), s.suggester.caption);
    auto* url = child<QLineEdit>(dialog, "txtURL");
    auto* list = child<QTreeWidget>(dialog, "ListView1");
    auto* keywords = child<QLineEdit>(dialog, "txtKeywords");
    ASSERT_TRUE(url && list && keywords);
    QSignalSpy finished(&dialog, &KeywordsDialog::checkFinished);
    QTest::keyClicks(url, server.url("/home"));
    QTest::keyClick(url, Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return finished.count() == 1; }));
    EXPECT_EQ(server.requests("/home"), 1);
    EXPECT_EQ(rowsOf(*list),
              (QStringList{QStringLiteral("[x] zoom|003"), QStringLiteral("[x] fast|003"),
                           QStringLiteral("[ ] notes|002"), QStringLiteral("[ ] apple|001")}));
    EXPECT_EQ(list->header()->sortIndicatorSection(), 1);
    EXPECT_EQ(keywords->text(), QStringLiteral("zoom, fast"));
    EXPECT_EQ(child<QStatusBar>(dialog, "StatusBar1")->currentMessage(), s.suggester.status);
    EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(child<QWidget>(dialog, "prgTransfer")->isVisible());
    EXPECT_TRUE(child<QPushButton>(dialog, "cmdRun")->isEnabled());
    expectLayoutHoldsAtEverySize(dialog, QStringLiteral("keywords"));

    clickHeader(*list, 0);
    EXPECT_EQ(rowsOf(*list),
              (QStringList{QStringLiteral("[ ] apple|001"), QStringLiteral("[x] fast|003"),
                           QStringLiteral("[ ] notes|002"), QStringLiteral("[x] zoom|003")}));
    EXPECT_EQ(list->header()->sortIndicatorSection(), 0);
    EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    // Tick "apple" with the mouse, untick "zoom" with the keyboard.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, checkBoxOf(*list, 0));
    list->setFocus();
    list->setCurrentItem(list->topLevelItem(3));
    QTest::keyClick(list, Qt::Key_Space);
    // A second click on the count header keeps the order descending.
    for (int click = 0; click < 2; ++click) {
        clickHeader(*list, 1);
        EXPECT_EQ(rowsOf(*list),
                  (QStringList{QStringLiteral("[ ] zoom|003"), QStringLiteral("[x] fast|003"),
                               QStringLiteral("[ ] notes|002"), QStringLiteral("[x] apple|001")}));
        EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    }
    QTest::mouseClick(child<QPushButton>(dialog, "cmdBuild"), Qt::LeftButton);
    EXPECT_EQ(keywords->text(), QStringLiteral("fast, apple"));

    // Typed additions are kept; OK hands the text over.
    keywords->setFocus();
    keywords->end(false);
    QTest::keyClicks(keywords, QStringLiteral(", extra"));
    QTest::mouseClick(child<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(s.suggester.accept(), std::optional<QString>(QStringLiteral("fast, apple, extra")));
}

TEST(KeywordsDialog, CancelDuringASlowTransferStopsItAtOnce) {
    LocalHttpServer server;
    LocalHttpServer::Response slow = page("first words of a long page ");
    slow.holdOpen = true;
    server.route("/slow", slow);
    Shown s(server.url("/slow"));
    KeywordsDialog& dialog = s.dialog;
    s.http.setLimits(60000, HttpTransfer::kMaxBytes); // only Cancel can end this transfer
    s.suggester.keywords = QStringLiteral("kept, as, typed");
    auto* cancel = child<QPushButton>(dialog, "cmdCancel");
    auto* run = child<QPushButton>(dialog, "cmdRun");
    ASSERT_TRUE(cancel && run);

    // What the window shows while the page arrives (its layout holding with the progress shown),
    // then a click on Cancel.
    struct During {
        bool seen = false, progressShown = false, runEnabled = true, okEnabled = true;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        QString bytes;
    } during;
    QObject::connect(&s.suggester, &KeywordSuggester::changed, &dialog, [&] {
        if (during.seen || s.suggester.bytesReceived == 0)
            return;
        during = {true,
                  child<QWidget>(dialog, "prgTransfer")->isVisible(),
                  run->isEnabled(),
                  child<QPushButton>(dialog, "cmdOK")->isEnabled(),
                  dialog.cursor().shape(),
                  child<QLabel>(dialog, "lblTransferBytes")->text()};
        expectNothingClippedOrOverlapping(dialog, QStringLiteral("keywords-fetching"));
        QTimer::singleShot(0, cancel, [cancel] { QTest::mouseClick(cancel, Qt::LeftButton); });
    });
    bool watchdog = false;
    QTimer::singleShot(8000, &dialog, [&] {
        if (dialog.isChecking()) {
            watchdog = true;
            s.http.stop();
        }
    });
    QSignalSpy finished(&dialog, &KeywordsDialog::checkFinished);
    QTimer::singleShot(0, run, [run] { QTest::mouseClick(run, Qt::LeftButton); });
    ASSERT_TRUE(waitFor([&] { return finished.count() == 1; }, 15000));

    EXPECT_FALSE(watchdog) << "Cancel did not stop the transfer";
    ASSERT_TRUE(during.seen);
    EXPECT_EQ(during.cursor, Qt::BusyCursor);
    EXPECT_TRUE(during.progressShown);
    EXPECT_EQ(during.bytes, QStringLiteral("27 bytes received"));
    EXPECT_FALSE(during.runEnabled);
    EXPECT_FALSE(during.okEnabled);
    EXPECT_EQ(cancel->cursor().shape(), Qt::ArrowCursor);

    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(s.http.succeeded());
    EXPECT_TRUE(waitFor([&] { return server.openConnections() == 0; }));
    // What arrived before Cancel is not counted, and the keywords stay as they were.
    EXPECT_EQ(s.suggester.entryCount(), 0);
    EXPECT_EQ(child<QTreeWidget>(dialog, "ListView1")->topLevelItemCount(), 0);
    EXPECT_EQ(s.suggester.keywords, QStringLiteral("kept, as, typed"));
    EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
}

// Each label and button has its own mnemonic, none the File menu's, and a label's mnemonic
// takes the focus to its control; the menu runs the same commands as the buttons.
TEST(KeywordsDialog, MnemonicsReachTheControlsAndTheMenuRunsTheCommands) {
    Shown s(QStringLiteral("http://x.example/"));
    KeywordsDialog& dialog = s.dialog;
    EXPECT_EQ(child<QLineEdit>(dialog, "txtURL")->text(), QStringLiteral("http://x.example/"));
    QSet<QString> taken{QStringLiteral("f")};
    auto mnemonicOf = [&](const QString& text, const QString& name) {
        const qsizetype amp = text.indexOf(u'&');
        EXPECT_TRUE(amp >= 0 && amp + 1 < text.size()) << name.toStdString();
        const QString key = text.mid(amp + 1, 1).toLower();
        EXPECT_FALSE(taken.contains(key)) << name.toStdString();
        taken.insert(key);
        return key;
    };
    for (QPushButton* b : dialog.findChildren<QPushButton*>())
        mnemonicOf(b->text(), b->objectName());
    const std::pair<const char*, const char*> labelled[] = {
        {"Label1", "txtURL"}, {"Label2", "ListView1"}, {"Label3", "txtKeywords"}};
    for (const auto& [name, control] : labelled) {
        auto* label = child<QLabel>(dialog, name);
        ASSERT_TRUE(label) << name;
        QTest::keyClicks(&dialog, mnemonicOf(label->text(), label->objectName()), Qt::AltModifier);
        EXPECT_TRUE(waitFor([&] { return child<QWidget>(dialog, control)->hasFocus(); }, 1000))
            << name;
    }
    expectAccessibleNames(dialog, "lblInfo");

    // Re-Build with nothing ticked keeps the text; Exit closes the window.
    s.suggester.keywords = QStringLiteral("typed");
    child<QAction>(dialog, "mnuPAD_1")->trigger();
    EXPECT_EQ(child<QLineEdit>(dialog, "txtKeywords")->text(), QStringLiteral("typed"));
    child<QAction>(dialog, "mnuPAD_7")->trigger();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(KeywordsDialog, OkWithBlankKeywordsGivesNothingAndEscapeCancels) {
    HttpTransfer http;
    KeywordSuggester suggester(QStringLiteral("Widget"), QString(), http);
    {
        KeywordsDialog dialog(suggester);
        dialog.show();
        QTest::keyClicks(child<QLineEdit>(dialog, "txtKeywords"), QStringLiteral("   "));
        EXPECT_EQ(suggester.keywords, QStringLiteral("   "));
        QTest::mouseClick(child<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(suggester.accept(), std::nullopt);
    }
    {
        KeywordsDialog dialog(suggester);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
    }
    EXPECT_FALSE(suggester.pump) << "a closed window must not stay the suggester's pump";
}
