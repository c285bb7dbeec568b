#include "LocalHttpServer.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"
#include "submission/SiteCipher.h"
#include "submission/SiteList.h"
#include "window/KeywordsDialog.h"
#include "window/SiteListDialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>

using namespace brevaro;
using namespace brevaro::test;

namespace {

// With BREVARO_SHOT_DIR set, the window's picture is saved there for a look at it.
void saveShot(QWidget& window, const QString& name) {
    const QString dir = qEnvironmentVariable("BREVARO_SHOT_DIR");
    if (dir.isEmpty())
        return;
    QDir().mkpath(dir);
    EXPECT_TRUE(window.grab().save(dir + u'/' + name + QStringLiteral(".png")));
}

bool isTextControl(const QWidget* w) {
    return qobject_cast<const QLabel*>(w) || qobject_cast<const QAbstractButton*>(w) ||
           qobject_cast<const QLineEdit*>(w);
}

// Every visible label, button and box is as large as its text needs and inside its parent,
// and no two laid-out siblings overlap.
void expectNothingClippedOrOverlapping(QWidget& window, const QString& state) {
    QCoreApplication::processEvents();
    const QList<QWidget*> all = window.findChildren<QWidget*>();
    for (QWidget* w : all) {
        if (!w->isVisible() || w->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const std::string what = QString(state + u' ' + w->objectName()).toStdString();
        if (isTextControl(w)) {
            EXPECT_GE(w->width(), w->minimumSizeHint().width()) << what;
            EXPECT_GE(w->height(), w->minimumSizeHint().height()) << what;
            if (!qobject_cast<QLineEdit*>(w)) {
                EXPECT_GE(w->width(), w->sizeHint().width()) << what;
            }
        }
        if (w->parentWidget() && !w->isWindow()) {
            EXPECT_TRUE(w->parentWidget()->rect().contains(w->geometry())) << what;
        }
    }
    for (QWidget* a : all)
        for (QWidget* b : all) {
            if (a >= b || a->parentWidget() != b->parentWidget() || !a->isVisible() ||
                !b->isVisible() || a->isWindow() || b->isWindow() ||
                a->objectName().startsWith(QLatin1String("qt_")) ||
                b->objectName().startsWith(QLatin1String("qt_")))
                continue;
            if (a->parentWidget()->layout() == nullptr)
                continue; // a composite widget placing its own children
            EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                << state.toStdString() << ' ' << a->objectName().toStdString() << " overlaps "
                << b->objectName().toStdString();
        }
}

// At the size it opens with and shrunk as far as it goes.
void checkSizes(QWidget& window, const QString& name) {
    expectNothingClippedOrOverlapping(window, name);
    saveShot(window, name);
    const QSize opened = window.size();
    window.resize(1, 1);
    expectNothingClippedOrOverlapping(window, name + QStringLiteral("-smallest"));
    saveShot(window, name + QStringLiteral("-smallest"));
    window.resize(opened);
}

QByteArray homePage() {
    QByteArray body = "<html><body><h1>Brevaro Notes</h1> ";
    const char* words[] = {"notes", "editor", "outline", "search", "export", "markdown",
                           "tags",  "sync",   "offline", "fast",   "private"};
    for (int i = 0; i < 11; ++i)
        for (int n = 0; n <= 11 - i; ++n)
            body += QByteArray(words[i]) + ' ';
    return body + "</body></html>";
}

} // namespace

TEST(DialogLayout, KeywordsDialogFilledAndFetching) {
    LocalHttpServer server;
    LocalHttpServer::Response slow;
    slow.body = homePage();
    slow.holdOpen = true;
    server.route("/home", slow);
    HttpTransfer http;
    http.setLimits(60000, HttpTransfer::kMaxBytes);
    KeywordSuggester suggester(QStringLiteral("Brevaro Notes"), server.url("/home"), http);
    suggester.checkPage(QString::fromLatin1(homePage()));
    KeywordsDialog dialog(suggester);
    showActive(dialog);
    EXPECT_GE(child<QTreeWidget>(dialog, "ListView1")->topLevelItemCount(), 10);
    checkSizes(dialog, QStringLiteral("keywords"));

    // While a page arrives: the busy bar and the bytes in the status bar.
    bool looked = false;
    QObject::connect(&suggester, &KeywordSuggester::changed, &dialog, [&] {
        if (looked || suggester.bytesReceived == 0)
            return;
        looked = true;
        expectNothingClippedOrOverlapping(dialog, QStringLiteral("keywords-fetching"));
        saveShot(dialog, QStringLiteral("keywords-fetching"));
        dialog.reject();
    });
    QTimer::singleShot(0, &dialog, [&] { dialog.checkHomepage(); });
    EXPECT_TRUE(waitFor([&] { return !dialog.isVisible() && !dialog.isChecking(); }, 10000));
    EXPECT_TRUE(looked);
}

TEST(DialogLayout, SiteListDialogFilled) {
    TempHome t;
    const QString file = t.file(QStringLiteral("swd.dta"));
    QByteArray lines;
    const char* sites[][2] = {
        {"Alpha Shareware Archive", "http://alpha.example/submit.php"},
        {"Beta Downloads", "http://beta.example/add-software/"},
        {"Gamma Files and Utilities for Windows", "http://www.gamma-files.example/pad/submit"},
        {"Delta Soft", "http://delta.example/"},
        {"Epsilon Program Directory", "http://epsilon.example/padsubmit.aspx?lang=en"}};
    for (const auto& s : sites)
        lines += (encipherField(QString::fromLatin1(s[0]), siteListKey()) + u'|' +
                  encipherField(QString::fromLatin1(s[1]), siteListKey()))
                     .toLatin1() +
                 "\r\n";
    writeBytes(file, lines);
    HttpTransfer http;
    SiteList list(file, http);
    SiteListDialog dialog(list);
    QSignalSpy loaded(&dialog, &SiteListDialog::loadFinished);
    showActive(dialog);
    ASSERT_TRUE(waitFor([&] { return loaded.count() == 1; }));
    auto* view = child<QTreeWidget>(dialog, "ListView1");
    view->setCurrentItem(view->topLevelItem(2));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cellCentre(*view, 2, 1));
    checkSizes(dialog, QStringLiteral("sites"));
    // The longest name is shown whole at the size the window opens with.
    QFontMetrics fm(view->font());
    EXPECT_GE(view->header()->sectionSize(1),
              fm.horizontalAdvance(QStringLiteral("Gamma Files and Utilities for Windows")));
}
