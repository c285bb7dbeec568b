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

} // namespace

TEST(KeywordsDialog, FetchedPageFillsTheListAndOkGivesTheTickedWords) {
    LocalHttpServer server;
    server.route("/home", page("<p> Editor editor EDITOR fast fast fast notes notes tiny </p>"));
    HttpTransfer http;
    KeywordSuggester suggester(QStringLiteral("Widget"), QString(), http);
    KeywordsDialog dialog(suggester);
    dialog.show();
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Suggesting Keywords for: Widget"));

    auto* url = child<QLineEdit>(dialog, "txtURL");
    auto* list = child<QTreeWidget>(dialog, "ListView1");
    auto* keywords = child<QLineEdit>(dialog, "txtKeywords");
    ASSERT_TRUE(url && list && keywords);
    // The typed address is the one fetched; Enter in the box runs Check Homepage.
    QSignalSpy finished(&dialog, &KeywordsDialog::checkFinished);
    QTest::keyClicks(url, server.url("/home"));
    QTest::keyClick(url, Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return finished.count() == 1; }));
    EXPECT_EQ(server.requests("/home"), 1);
    EXPECT_EQ(rowsOf(*list),
              (QStringList{QStringLiteral("[x] Editor|003"), QStringLiteral("[x] fast|003"),
                           QStringLiteral("[ ] notes|002"), QStringLiteral("[ ] tiny|001")}));
    EXPECT_EQ(keywords->text(), QStringLiteral("Editor, fast"));
    EXPECT_EQ(child<QStatusBar>(dialog, "StatusBar1")->currentMessage(),
              QStringLiteral("Disconnected, Done ..."));
    EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(child<QWidget>(dialog, "prgTransfer")->isVisible());
    EXPECT_TRUE(child<QPushButton>(dialog, "cmdRun")->isEnabled());

    // Tick "notes" with the mouse, untick "fast" with the keyboard, rebuild.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, checkBoxOf(*list, 2));
    EXPECT_EQ(list->topLevelItem(2)->checkState(0), Qt::Checked);
    list->setFocus();
    list->setCurrentItem(list->topLevelItem(1));
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(list->topLevelItem(1)->checkState(0), Qt::Unchecked);
    QTest::mouseClick(child<QPushButton>(dialog, "cmdBuild"), Qt::LeftButton);
    EXPECT_EQ(keywords->text(), QStringLiteral("Editor, notes"));

    // Typed additions are kept; OK hands the text over.
    keywords->setFocus();
    keywords->end(false);
    QTest::keyClicks(keywords, QStringLiteral(", extra"));
    QTest::mouseClick(child<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(suggester.accept(), std::optional<QString>(QStringLiteral("Editor, notes, extra")));
}

TEST(KeywordsDialog, HeaderClicksSortWordsAlphabeticallyAndCountsByNumber) {
    QByteArray body;
    for (int i = 0; i < 1000; ++i)
        body += "alpha ";
    for (int i = 0; i < 200; ++i)
        body += "beta ";
    body += "gamma gamma gamma delta end";
    LocalHttpServer server;
    server.route("/home", page(body));
    HttpTransfer http;
    KeywordSuggester suggester(QStringLiteral("Widget"), server.url("/home"), http);
    KeywordsDialog dialog(suggester);
    dialog.show();
    auto* list = child<QTreeWidget>(dialog, "ListView1");
    ASSERT_TRUE(list);
    QTest::mouseClick(child<QPushButton>(dialog, "cmdRun"), Qt::LeftButton);
    ASSERT_TRUE(waitFor([&] { return !dialog.isChecking() && list->topLevelItemCount() == 4; }));

    const QStringList byCount{QStringLiteral("[x] alpha|1000"), QStringLiteral("[x] beta|200"),
                              QStringLiteral("[x] gamma|003"), QStringLiteral("[ ] delta|001")};
    EXPECT_EQ(rowsOf(*list), byCount);
    EXPECT_EQ(list->header()->sortIndicatorSection(), 1);
    EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::DescendingOrder);

    clickHeader(*list, 0);
    EXPECT_EQ(rowsOf(*list),
              (QStringList{QStringLiteral("[x] alpha|1000"), QStringLiteral("[x] beta|200"),
                           QStringLiteral("[ ] delta|001"), QStringLiteral("[x] gamma|003")}));
    EXPECT_EQ(list->header()->sortIndicatorSection(), 0);
    EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    // Unticking in the word order unticks the word shown there, not the one at that place
    // in the count order.
    list->topLevelItem(2)->setCheckState(0, Qt::Checked);
    list->topLevelItem(3)->setCheckState(0, Qt::Unchecked);

    // "1000" is the highest count although it sorts first as text; a second click keeps
    // the order descending.
    for (int click = 0; click < 2; ++click) {
        clickHeader(*list, 1);
        EXPECT_EQ(rowsOf(*list),
                  (QStringList{QStringLiteral("[x] alpha|1000"), QStringLiteral("[x] beta|200"),
                               QStringLiteral("[ ] gamma|003"), QStringLiteral("[x] delta|001")}));
        EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    }
    QTest::mouseClick(child<QPushButton>(dialog, "cmdBuild"), Qt::LeftButton);
    EXPECT_EQ(child<QLineEdit>(dialog, "txtKeywords")->text(),
              QStringLiteral("alpha, beta, delta"));
}

TEST(KeywordsDialog, CancelDuringASlowTransferStopsItAtOnce) {
    LocalHttpServer server;
    LocalHttpServer::Response slow = page("first words of a long page ");
    slow.holdOpen = true;
    server.route("/slow", slow);
    HttpTransfer http;
    http.setLimits(60000, HttpTransfer::kMaxBytes); // only Cancel can end this transfer
    KeywordSuggester suggester(QStringLiteral("Widget"), server.url("/slow"), http);
    suggester.keywords = QStringLiteral("kept, as, typed");
    KeywordsDialog dialog(suggester);
    dialog.show();
    auto* cancel = child<QPushButton>(dialog, "cmdCancel");
    auto* run = child<QPushButton>(dialog, "cmdRun");
    ASSERT_TRUE(cancel && run);

    // What the window shows while the page arrives, then a click on Cancel.
    struct During {
        bool seen = false;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        bool progressShown = false;
        QString bytes;
        bool runEnabled = true;
        bool okEnabled = true;
        bool checking = false;
    } during;
    QObject::connect(&suggester, &KeywordSuggester::changed, &dialog, [&] {
        if (during.seen || suggester.bytesReceived == 0)
            return;
        during = {true,
                  dialog.cursor().shape(),
                  child<QWidget>(dialog, "prgTransfer")->isVisible(),
                  child<QLabel>(dialog, "lblTransferBytes")->text(),
                  run->isEnabled(),
                  child<QPushButton>(dialog, "cmdOK")->isEnabled(),
                  dialog.isChecking()};
        QTimer::singleShot(0, cancel, [cancel] { QTest::mouseClick(cancel, Qt::LeftButton); });
    });
    bool watchdog = false;
    QTimer::singleShot(8000, &dialog, [&] {
        if (dialog.isChecking()) {
            watchdog = true;
            http.stop();
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
    EXPECT_TRUE(during.checking);
    EXPECT_EQ(cancel->cursor().shape(), Qt::ArrowCursor);

    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(http.succeeded());
    EXPECT_TRUE(waitFor([&] { return server.openConnections() == 0; }));
    // What arrived before Cancel is not counted, and the keywords stay as they were.
    EXPECT_EQ(suggester.entryCount(), 0);
    EXPECT_EQ(child<QTreeWidget>(dialog, "ListView1")->topLevelItemCount(), 0);
    EXPECT_EQ(suggester.keywords, QStringLiteral("kept, as, typed"));
    EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
}

TEST(KeywordsDialog, ControlsAreNamedCaptionedAndReachable) {
    HttpTransfer http;
    KeywordSuggester suggester(QStringLiteral("Widget"), QStringLiteral("http://x.example/"), http);
    KeywordsDialog dialog(suggester);
    dialog.show();
    EXPECT_EQ(dialog.objectName(), QStringLiteral("frmKeywords"));
    EXPECT_EQ(child<QLineEdit>(dialog, "txtURL")->text(), QStringLiteral("http://x.example/"));

    struct Captioned {
        const char* name;
        const char* text;
    };
    const Captioned labels[] = {
        {"Label1", "Application Homepage:"},
        {"Label2", "Words Found on Application Homepage above:"},
        {"Label3", "Suggested/Selected Keywords, up to max 128 character string:"}};
    const char* buddies[] = {"txtURL", "ListView1", "txtKeywords"};
    // Each label and button has its own mnemonic, and none takes the File menu's.
    QSet<QChar> mnemonics{u'f'};
    auto mnemonicIsNew = [&](const QString& text) {
        const qsizetype amp = text.indexOf(u'&');
        if (amp < 0 || amp + 1 >= text.size())
            return false;
        const QChar key = text[amp + 1].toLower();
        const bool fresh = !mnemonics.contains(key);
        mnemonics.insert(key);
        return fresh;
    };
    for (int i = 0; i < 3; ++i) {
        auto* label = child<QLabel>(dialog, labels[i].name);
        ASSERT_TRUE(label);
        EXPECT_EQ(QString(label->text()).remove(u'&'), QString::fromLatin1(labels[i].text));
        EXPECT_TRUE(mnemonicIsNew(label->text())) << labels[i].name;
        ASSERT_TRUE(label->buddy());
        EXPECT_EQ(label->buddy()->objectName(), QString::fromLatin1(buddies[i]));
    }
    const Captioned buttons[] = {{"cmdRun", "Check Homepage"},
                                 {"cmdBuild", "Re-Build Keywords"},
                                 {"cmdOK", "OK"},
                                 {"cmdCancel", "Cancel"}};
    for (const Captioned& b : buttons) {
        auto* button = child<QPushButton>(dialog, b.name);
        ASSERT_TRUE(button);
        EXPECT_EQ(QString(button->text()).remove(u'&'), QString::fromLatin1(b.text));
        EXPECT_TRUE(mnemonicIsNew(button->text())) << b.name;
    }
    auto* list = child<QTreeWidget>(dialog, "ListView1");
    EXPECT_EQ(list->headerItem()->text(0), QStringLiteral("Keywords"));
    EXPECT_EQ(list->headerItem()->text(1), QStringLiteral("#"));
    EXPECT_EQ(
        child<QLabel>(dialog, "lblInfo")->text(),
        KeywordSuggester::instructions().replace(QStringLiteral("\r\n"), QStringLiteral("\n")));

    auto* file = child<QMenu>(dialog, "mnuFile");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->title(), QStringLiteral("&File"));
    QStringList items;
    for (QAction* a : file->actions())
        items << a->objectName() + u'=' + (a->isSeparator() ? QStringLiteral("-") : a->text());
    EXPECT_EQ(items, (QStringList{QStringLiteral("mnuPAD_0=C&heck Homepage"),
                                  QStringLiteral("mnuPAD_1=&Re-Build Keywords"),
                                  QStringLiteral("mnuPAD_3=-"), QStringLiteral("mnuPAD_4=&Cancel"),
                                  QStringLiteral("mnuPAD_5=&OK"), QStringLiteral("mnuPAD_6=-"),
                                  QStringLiteral("mnuPAD_7=E&xit")}));

    for (QWidget* w : dialog.findChildren<QWidget*>()) {
        if (w->objectName().startsWith(QLatin1String("qt_")))
            continue; // Qt's own widgets
        if (qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w) ||
            qobject_cast<QAbstractItemView*>(w) || qobject_cast<QStatusBar*>(w) ||
            w->objectName() == QLatin1String("lblInfo")) {
            EXPECT_FALSE(w->accessibleName().isEmpty())
                << w->metaObject()->className() << " " << w->objectName().toStdString();
        }
    }

    // The menu runs the same commands: Re-Build with nothing ticked keeps the text, Exit
    // closes the window.
    suggester.keywords = QStringLiteral("typed");
    file->actions()[1]->trigger();
    EXPECT_EQ(child<QLineEdit>(dialog, "txtKeywords")->text(), QStringLiteral("typed"));
    file->actions().back()->trigger();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(KeywordsDialog, OkWithBlankKeywordsGivesNothingAndEscapeCancels) {
    HttpTransfer http;
    KeywordSuggester suggester(QStringLiteral("Widget"), QString(), http);
    {
        KeywordsDialog dialog(suggester);
        dialog.show();
        auto* keywords = child<QLineEdit>(dialog, "txtKeywords");
        QTest::keyClicks(keywords, QStringLiteral("   "));
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
