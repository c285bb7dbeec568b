#include "window/SiteListDialog.h"
#include "LocalHttpServer.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "platform/HttpTransfer.h"
#include "submission/SiteCipher.h"
#include "submission/SiteList.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <algorithm>

using namespace brevaro;
using namespace brevaro::test;

namespace {

const QByteArray kListPath = "/pad/SharewareSites/sharewaresites_cryptated.txt";

QByteArray siteLine(const QString& name, const QString& url) {
    return (encipherField(name, siteListKey()) + u'|' + encipherField(url, siteListKey()))
        .toLatin1();
}

// The maker's server is the local one for as long as the object lives.
class LocalMakerServer : public LocalHttpServer {
public:
    LocalMakerServer() { qputenv("BREVARO_SERVER", url("").toLatin1()); }
    ~LocalMakerServer() override { qunsetenv("BREVARO_SERVER"); }
    void publish(const QByteArray& list) {
        Response r;
        r.contentType = "text/plain";
        r.body = list;
        route(kListPath, r);
    }
};

QStringList column(const QTreeWidget& list, int c) {
    QStringList out;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        out << list.topLevelItem(i)->text(c);
    return out;
}

// A dialog over a list kept in `file`, shown and loaded.
struct LoadedDialog {
    HttpTransfer http;
    SiteList list;
    SiteListDialog dialog{list};
    QSignalSpy loaded{&dialog, &SiteListDialog::loadFinished};
    QTreeWidget* view = child<QTreeWidget>(dialog, "ListView1");

    explicit LoadedDialog(const QString& file)
        : list(file, http) {
        showActive(dialog);
        EXPECT_TRUE(waitFor([&] { return loaded.count() == 1; }));
    }
};

} // namespace

TEST(SiteListDialog, FirstShowDownloadsTheListSortsAndOpensTheDoubleClickedSite) {
    LocalMakerServer server;
    // Beta, listed first, sorts last by name; twelve entries sort differently as text.
    QByteArray published =
        siteLine(QStringLiteral("  Beta Files "), QStringLiteral(" http://b.example/ ")) + "\n";
    for (const char* name :
         {"Alpha", "Delta", "Echo", "Foxtrot", "Golf", "Hotel", "India", "Juliet", "Kilo", "Lima"})
        published += siteLine(QString::fromLatin1(name),
                              QStringLiteral("http://%1.example/").arg(QLatin1String(name))) +
                     "\n";
    server.publish(published);
    TempHome t;
    const QString file = t.file(QStringLiteral("swd.dta"));
    LoadedDialog d(file);
    QTreeWidget* view = d.view;
    ASSERT_TRUE(view);
    EXPECT_EQ(server.requests(kListPath), 1);
    EXPECT_EQ(column(*view, 0).join(u','), QStringLiteral("1,2,3,4,5,6,7,8,9,10,11,12"));
    EXPECT_EQ(child<QLabel>(d.dialog, "lblNo")->text(), d.list.lblNo);
    EXPECT_EQ(d.dialog.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->header()->sortIndicatorSection(), -1);

    // Names sort descending, numbers and addresses ascending, all as text.
    clickHeader(*view, 1);
    EXPECT_EQ(view->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    const QStringList names = column(*view, 1);
    EXPECT_TRUE(std::is_sorted(names.rbegin(), names.rend()));
    EXPECT_EQ(names.last(), QStringLiteral("  Beta Files ")); // a blank sorts first
    clickHeader(*view, 0);
    EXPECT_EQ(view->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(column(*view, 0).join(u','), QStringLiteral("1,10,11,12,2,3,4,5,6,7,8,9"));
    clickHeader(*view, 2);
    const QStringList urls = column(*view, 2);
    EXPECT_TRUE(std::is_sorted(urls.begin(), urls.end()));

    // After sorting by name, a click names the entry and a double-click opens the entry
    // shown there, trimmed.
    clickHeader(*view, 1);
    const int beta = int(names.size()) - 1;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cellCentre(*view, 0, 1));
    EXPECT_EQ(child<QStatusBar>(d.dialog, "StatusBar1")->currentMessage(), names.first());
    expectLayoutHoldsAtEverySize(d.dialog, QStringLiteral("sites"));
    // The longest name is shown whole at the size the window opens with.
    EXPECT_GE(view->header()->sectionSize(1),
              view->fontMetrics().horizontalAdvance(SiteList::makerSiteName()));
    QSignalSpy chosen(&d.dialog, &SiteListDialog::directoryChosen);
    doubleClick(view->viewport(), cellCentre(*view, beta, 2));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("Beta Files"));
    EXPECT_EQ(chosen[0][1].toString(), QStringLiteral("http://b.example/"));
    EXPECT_FALSE(d.dialog.isVisible());
    EXPECT_EQ(d.dialog.result(), QDialog::Accepted);

    // Shown again, the window keeps its list and does not load it again.
    d.dialog.show();
    QTest::qWait(50);
    EXPECT_EQ(d.loaded.count(), 1);
    EXPECT_EQ(server.requests(kListPath), 1);
}

// With a list file, opening only reads it; File, Download (by keyboard) fetches the list,
// with progress and Escape refused while it runs. Enter opens an entry, Exit none.
TEST(SiteListDialog, MenuDownloadShowsProgressAndReplacesTheList) {
    LocalMakerServer server;
    server.publish(siteLine(QStringLiteral("Alpha"), QStringLiteral("http://a/")) + "\n" +
                   siteLine(QStringLiteral("Beta"), QStringLiteral("http://b/")) + "\n" +
                   siteLine(QStringLiteral("Gamma"), QStringLiteral("http://c/")) + "\n");
    TempHome t;
    const QString file = t.file(QStringLiteral("swd.dta"));
    writeBytes(file, siteLine(QStringLiteral("Old Site"), QStringLiteral("http://old/")) + "\r\n");
    LoadedDialog d(file);
    QTreeWidget* view = d.view;
    ASSERT_TRUE(view);
    EXPECT_EQ(server.requests(kListPath), 0);
    EXPECT_EQ(column(*view, 1),
              (QStringList{SiteList::makerSiteName(), QStringLiteral("Old Site")}));
    expectAccessibleNames(d.dialog, "lblNo");

    // Enter opens the current entry.
    QSignalSpy chosen(&d.dialog, &SiteListDialog::directoryChosen);
    view->setFocus();
    view->setCurrentItem(view->topLevelItem(1));
    QTest::keyClick(view, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][1].toString(), QStringLiteral("http://old/"));
    EXPECT_EQ(d.dialog.result(), QDialog::Accepted);
    showActive(d.dialog);

    clickHeader(*view, 1);
    EXPECT_EQ(view->header()->sortIndicatorSection(), 1);
    auto* update = child<QAction>(d.dialog, "mnuUpdate");
    auto* exit = child<QAction>(d.dialog, "mnuExit");
    ASSERT_TRUE(update && exit);
    struct During {
        bool seen = false, progressShown = false, updateEnabled = true, exitEnabled = true;
        bool visibleAfterEscape = false;
        QString bytes;
        Qt::CursorShape cursor = Qt::ArrowCursor;
    } during;
    QObject::connect(&d.list, &SiteList::changed, &d.dialog, [&] {
        if (during.seen || d.list.bytesReceived == 0)
            return;
        during = {true,
                  child<QWidget>(d.dialog, "prgTransfer")->isVisible(),
                  update->isEnabled(),
                  exit->isEnabled(),
                  false,
                  child<QLabel>(d.dialog, "lblTransferBytes")->text(),
                  d.dialog.cursor().shape()};
        QTest::keyClick(&d.dialog, Qt::Key_Escape);
        during.visibleAfterEscape = d.dialog.isVisible();
    });
    // Alt+F opens the File menu, D its first item.
    QTest::keyClick(&d.dialog, Qt::Key_F, Qt::AltModifier);
    auto* fileMenu = child<QMenu>(d.dialog, "mnuFile");
    ASSERT_TRUE(waitFor([&] { return fileMenu->isVisible(); }));
    QTest::keyClick(fileMenu, Qt::Key_D);
    ASSERT_TRUE(waitFor([&] { return d.loaded.count() == 2; }));

    ASSERT_TRUE(during.seen);
    EXPECT_TRUE(during.progressShown);
    EXPECT_EQ(during.bytes, QStringLiteral("%1 bytes received").arg(server.bytesSent()));
    EXPECT_EQ(during.cursor, Qt::BusyCursor);
    EXPECT_FALSE(during.updateEnabled);
    EXPECT_FALSE(during.exitEnabled);
    EXPECT_TRUE(during.visibleAfterEscape);
    EXPECT_FALSE(child<QWidget>(d.dialog, "prgTransfer")->isVisible());
    EXPECT_TRUE(update->isEnabled());

    EXPECT_EQ(server.requests(kListPath), 1);
    EXPECT_EQ(view->header()->sortIndicatorSection(), -1);
    EXPECT_EQ(column(*view, 1), (QStringList{SiteList::makerSiteName(), QStringLiteral("Alpha"),
                                             QStringLiteral("Beta"), QStringLiteral("Gamma")}));
    EXPECT_EQ(child<QLabel>(d.dialog, "lblNo")->text(), QStringLiteral(" 4"));

    exit->trigger();
    EXPECT_FALSE(d.dialog.isVisible());
    EXPECT_EQ(d.dialog.result(), QDialog::Rejected);
}
