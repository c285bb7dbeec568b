#include "window/SiteListDialog.h"
#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "WidgetTestSupport.h"
#include "platform/HttpTransfer.h"
#include "session/BannerRotation.h"
#include "submission/SiteCipher.h"
#include "submission/SiteList.h"

#include <QDir>
#include <QFile>
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

int rowNamed(const QTreeWidget& list, const QString& name) {
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        if (list.topLevelItem(i)->text(1) == name)
            return i;
    return -1;
}

} // namespace

TEST(SiteListDialog, FirstShowDownloadsTheListSortsAndOpensTheDoubleClickedSite) {
    LocalMakerServer server;
    QByteArray published;
    const char* names[] = {"Alpha Downloads", "Delta Soft",   "Echo Files",   "Foxtrot Apps",
                           "Golf Games",      "Hotel Tools",  "India Utils",  "Juliet Zone",
                           "Kilo Store",      "Lima Library", "  Beta Files "};
    for (const char* name : names) {
        const QString n = QString::fromLatin1(name);
        const QString host = n.trimmed().section(u' ', 0, 0).toLower();
        published +=
            siteLine(n, n.startsWith(u' ') ? QStringLiteral(" http://beta.example/add ")
                                           : QStringLiteral("http://%1.example/").arg(host)) +
            "\n";
    }
    server.publish(published);
    TempHome t;
    const QString file = t.file(QStringLiteral("swd.dta"));
    HttpTransfer http;
    SiteList list(file, http);
    int refreshed = 0;
    list.afterDownload = [&] {
        ++refreshed;
    };
    SiteListDialog dialog(list);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Shareware Directory Listing"));
    QSignalSpy loaded(&dialog, &SiteListDialog::loadFinished);
    dialog.show();
    ASSERT_TRUE(waitFor([&] { return loaded.count() == 1; }));

    EXPECT_EQ(server.requests(kListPath), 1);
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(refreshed, 1);
    auto* view = child<QTreeWidget>(dialog, "ListView1");
    ASSERT_TRUE(view);
    EXPECT_EQ(view->toolTip(), QStringLiteral("Doubleclick to Open"));
    EXPECT_EQ(column(*view, 0).join(u','), QStringLiteral("1,2,3,4,5,6,7,8,9,10,11,12"));
    EXPECT_EQ(view->topLevelItem(0)->text(1),
              QStringLiteral("Quorin Shareware Download Directory"));
    EXPECT_EQ(view->topLevelItem(0)->text(2), server.url("/unsignedpadfile.php"));
    EXPECT_EQ(view->topLevelItem(1)->text(1), QStringLiteral("Alpha Downloads"));
    EXPECT_EQ(view->topLevelItem(1)->text(2), QStringLiteral("http://alpha.example/"));
    EXPECT_EQ(child<QLabel>(dialog, "lblNo")->text(), QStringLiteral(" 12"));
    EXPECT_EQ(child<QStatusBar>(dialog, "StatusBar1")->currentMessage(),
              QStringLiteral("Disconnected, Download Done ..."));
    EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(view->header()->sortIndicatorSection(), -1);

    // Names sort descending, numbers and addresses ascending, all as text.
    clickHeader(*view, 1);
    EXPECT_EQ(view->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    QStringList names1 = column(*view, 1);
    EXPECT_EQ(names1.first(), QStringLiteral("Quorin Shareware Download Directory"));
    EXPECT_EQ(names1.last(), QStringLiteral("  Beta Files ")); // a blank sorts first
    QStringList sorted = names1;
    std::sort(sorted.begin(), sorted.end(), std::greater<QString>());
    EXPECT_EQ(names1, sorted);
    clickHeader(*view, 0);
    EXPECT_EQ(view->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(column(*view, 0).join(u','), QStringLiteral("1,10,11,12,2,3,4,5,6,7,8,9"));
    clickHeader(*view, 2);
    const QStringList urls = column(*view, 2);
    EXPECT_EQ(urls.first(), QStringLiteral(" http://beta.example/add "));
    EXPECT_TRUE(std::is_sorted(urls.begin(), urls.end()));
    EXPECT_EQ(urls.last(), QStringLiteral("http://lima.example/"));

    // After sorting by name, a click names the entry and a double-click opens that entry.
    clickHeader(*view, 1);
    const int beta = rowNamed(*view, QStringLiteral("  Beta Files "));
    const int alpha = rowNamed(*view, QStringLiteral("Alpha Downloads"));
    ASSERT_GE(beta, 0);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cellCentre(*view, alpha, 1));
    EXPECT_EQ(child<QStatusBar>(dialog, "StatusBar1")->currentMessage(),
              QStringLiteral("Alpha Downloads"));
    QSignalSpy chosen(&dialog, &SiteListDialog::siteChosen);
    QSignalSpy named(&dialog, &SiteListDialog::directoryChosen);
    doubleClick(view->viewport(), cellCentre(*view, beta, 2));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("http://beta.example/add"));
    ASSERT_EQ(named.count(), 1);
    EXPECT_EQ(named[0][0].toString(), QStringLiteral("Beta Files"));
    EXPECT_EQ(named[0][1].toString(), QStringLiteral("http://beta.example/add"));
    EXPECT_EQ(dialog.siteName(), QStringLiteral("Beta Files"));
    EXPECT_EQ(dialog.siteUrl(), QStringLiteral("http://beta.example/add"));
    EXPECT_EQ(child<QStatusBar>(dialog, "StatusBar1")->currentMessage(),
              QStringLiteral("Opening: Beta Files"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);

    // Shown again, the window keeps its list and does not load it again.
    dialog.show();
    QTest::qWait(50);
    EXPECT_EQ(loaded.count(), 1);
    EXPECT_EQ(server.requests(kListPath), 1);
}

// The main window's banner refresh runs through SiteList::afterDownload, as it is wired here.
TEST(SiteListDialog, MenuDownloadShowsProgressAndRefreshesOldBannerData) {
    LocalMakerServer server;
    server.publish(siteLine(QStringLiteral("Alpha Downloads"), QStringLiteral("http://a/")) + "\n" +
                   siteLine(QStringLiteral("mirror of 127.0.0.1"), QStringLiteral("x")) + "\n" +
                   siteLine(QStringLiteral("Beta Files"), QStringLiteral("http://b/")) + "\n" +
                   siteLine(QStringLiteral("Gamma"), QStringLiteral("http://c/")) + "\n");
    LocalHttpServer::Response data;
    data.contentType = "text/plain";
    data.body = "# no banners this week\n";
    server.route("/pad/share/data.txt", data);
    TempHome t;
    ASSERT_TRUE(QDir().mkpath(t.home().shareFolder()));
    const QString file = t.file(QStringLiteral("swd.dta"));
    writeBytes(file, siteLine(QStringLiteral("Old Site"), QStringLiteral("http://old/")) + "\r\n");

    ScriptedPrompts prompts;
    HttpTransfer bannerHttp;
    BannerRotation banners(t.home(), prompts, bannerHttp);
    HttpTransfer http;
    SiteList list(file, http);
    list.afterDownload = [&] {
        if (banners.TimeToDownloadData(2))
            banners.BannerDataDownload();
    };
    SiteListDialog dialog(list);
    QSignalSpy loaded(&dialog, &SiteListDialog::loadFinished);
    showActive(dialog);
    ASSERT_TRUE(waitFor([&] { return loaded.count() == 1; }));
    auto* view = child<QTreeWidget>(dialog, "ListView1");
    ASSERT_TRUE(view);
    // With a list file, loading the window only reads it.
    EXPECT_EQ(server.requests(kListPath), 0);
    EXPECT_EQ(column(*view, 1),
              (QStringList{SiteList::makerSiteName(), QStringLiteral("Old Site")}));

    clickHeader(*view, 1);
    EXPECT_EQ(view->header()->sortIndicatorSection(), 1);
    auto* update = child<QAction>(dialog, "mnuUpdate");
    auto* exit = child<QAction>(dialog, "mnuExit");
    ASSERT_TRUE(update && exit);
    struct During {
        bool seen = false;
        bool progressShown = false;
        QString bytes;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        bool updateEnabled = true;
        bool exitEnabled = true;
        bool visibleAfterEscape = false;
    } during;
    QObject::connect(&list, &SiteList::changed, &dialog, [&] {
        if (during.seen || list.bytesReceived == 0)
            return;
        during.seen = true;
        during.progressShown = child<QWidget>(dialog, "prgTransfer")->isVisible();
        during.bytes = child<QLabel>(dialog, "lblTransferBytes")->text();
        during.cursor = dialog.cursor().shape();
        during.updateEnabled = update->isEnabled();
        during.exitEnabled = exit->isEnabled();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        during.visibleAfterEscape = dialog.isVisible();
    });
    // Alt+F opens the File menu, D its first item.
    QTest::keyClick(&dialog, Qt::Key_F, Qt::AltModifier);
    auto* file_menu = child<QMenu>(dialog, "mnuFile");
    ASSERT_TRUE(waitFor([&] { return file_menu->isVisible(); }));
    QTest::keyClick(file_menu, Qt::Key_D);
    ASSERT_TRUE(waitFor([&] { return loaded.count() == 2; }));

    ASSERT_TRUE(during.seen);
    EXPECT_TRUE(during.progressShown);
    EXPECT_EQ(during.bytes,
              QStringLiteral("%1 bytes received").arg(server.bytesSent() - data.body.size()));
    EXPECT_EQ(during.cursor, Qt::BusyCursor);
    EXPECT_FALSE(during.updateEnabled);
    EXPECT_FALSE(during.exitEnabled);
    EXPECT_TRUE(during.visibleAfterEscape);
    EXPECT_FALSE(child<QWidget>(dialog, "prgTransfer")->isVisible());
    EXPECT_TRUE(update->isEnabled());

    EXPECT_EQ(server.requests(kListPath), 1);
    EXPECT_EQ(view->header()->sortIndicatorSection(), -1);
    EXPECT_EQ(column(*view, 0).join(u','), QStringLiteral("1,2,3,4"));
    EXPECT_EQ(column(*view, 1),
              (QStringList{SiteList::makerSiteName(), QStringLiteral("Alpha Downloads"),
                           QStringLiteral("Beta Files"), QStringLiteral("Gamma")}));
    EXPECT_EQ(child<QLabel>(dialog, "lblNo")->text(), QStringLiteral(" 4"));
    // The banner data was missing, so it was fetched; now fresh, it is not fetched again.
    EXPECT_EQ(server.requests("/pad/share/data.txt"), 1);
    EXPECT_EQ(readBytes(banners.LocalBannerData), QByteArray("# no banners this week\r\n"));
    update->trigger();
    EXPECT_EQ(server.requests(kListPath), 2);
    EXPECT_EQ(server.requests("/pad/share/data.txt"), 1);

    exit->trigger();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST(SiteListDialog, ControlsAreNamedAndEnterOpensTheCurrentEntry) {
    TempHome t;
    const QString file = t.file(QStringLiteral("swd.dta"));
    writeBytes(file, siteLine(QStringLiteral("Alpha"), QStringLiteral("http://a/")) + "\r\n");
    HttpTransfer http;
    SiteList list(file, http);
    SiteListDialog dialog(list);
    QSignalSpy loaded(&dialog, &SiteListDialog::loadFinished);
    showActive(dialog);
    ASSERT_TRUE(waitFor([&] { return loaded.count() == 1; }));
    EXPECT_EQ(dialog.objectName(), QStringLiteral("frmSharewareSites"));

    auto* view = child<QTreeWidget>(dialog, "ListView1");
    ASSERT_TRUE(view);
    EXPECT_EQ(view->headerItem()->text(0), QStringLiteral("#"));
    EXPECT_EQ(view->headerItem()->text(1), QStringLiteral("Shareware Directories"));
    EXPECT_EQ(view->headerItem()->text(2), QStringLiteral("URL"));
    auto* menu = child<QMenu>(dialog, "mnuFile");
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->title(), QStringLiteral("&File"));
    QStringList items;
    for (QAction* a : menu->actions())
        items << a->objectName() + u'=' + (a->isSeparator() ? QStringLiteral("-") : a->text());
    EXPECT_EQ(items, (QStringList{QStringLiteral("mnuUpdate=&Download Latest Directory Listing"),
                                  QStringLiteral("mnuBar01=-"), QStringLiteral("mnuExit=E&xit")}));
    for (QWidget* w : dialog.findChildren<QWidget*>()) {
        if (w->objectName().startsWith(QLatin1String("qt_")))
            continue; // Qt's own widgets
        if (qobject_cast<QAbstractItemView*>(w) || qobject_cast<QStatusBar*>(w) ||
            qobject_cast<QMenuBar*>(w) || w->objectName() == QLatin1String("lblNo")) {
            EXPECT_FALSE(w->accessibleName().isEmpty())
                << w->metaObject()->className() << " " << w->objectName().toStdString();
        }
    }

    QSignalSpy chosen(&dialog, &SiteListDialog::siteChosen);
    view->setFocus();
    view->setCurrentItem(view->topLevelItem(1));
    QTest::keyClick(view, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("http://a/"));
    EXPECT_FALSE(dialog.isVisible());
}
