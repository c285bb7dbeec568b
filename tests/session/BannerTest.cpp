#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "platform/HttpTransfer.h"
#include "session/BannerRotation.h"

#include <QFile>

using namespace brevaro;
using namespace brevaro::test;

namespace {

class BannerTest : public ::testing::Test {
protected:
    TempHome home;
    ScriptedPrompts prompts;
    HttpTransfer http;
    BannerRotation banners{home.home(), prompts, http};

    QString share(const char* name) {
        return home.file(QStringLiteral("share/") + QLatin1String(name));
    }
    void data(const QByteArray& text) { writeBytes(share("data.txt"), text); }
    void image(const char* name) { writeBytes(share(name), "GIF89a"); }
};

} // namespace

TEST_F(BannerTest, LoadsKeptLinesAndRotates) {
    image("a.gif");
    image("b.gif");
    image("c.gif");
    data("# comment line\r\n\r\n   \r\n"
         "ADD|First banner|a.gif|http://a.example|2020-01-01|2099-01-01|10\r\n"
         "run|Second|b.gif|http://b.example|||2.5\r\n"
         "nonsense\r\n"
         "DELETE|Gone|missing.gif|http://gone.example|||5\r\n"
         "DELETE|Still here|c.gif|http://c.example|||7\n");
    banners.LoadLocalBannerList();
    ASSERT_EQ(banners.banners().size(), 3u);
    EXPECT_EQ(banners.banners()[2].number, QStringLiteral("3"));
    EXPECT_EQ(banners.interval, 1);
    EXPECT_TRUE(banners.timerEnabled);

    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.nextButtonToolTip, QStringLiteral("Banner 1 of 3"));
    EXPECT_EQ(banners.toolTip, QStringLiteral("Click For More Info: First banner"));
    EXPECT_EQ(banners.imagePath, share("a.gif"));
    EXPECT_EQ(banners.interval, 10000);
    banners.clickBanner();
    EXPECT_EQ(prompts.opened, QStringList{QStringLiteral("http://a.example")});

    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.interval, 2500);
    // The DELETE banner's turn keeps the previous banner on screen.
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.toolTip, QStringLiteral("Click For More Info: Second"));
    EXPECT_EQ(banners.interval, 2500);
    EXPECT_EQ(banners.shownEntry, 2);
    // After the last, the first again.
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.nextButtonToolTip, QStringLiteral("Banner 1 of 3"));
}

TEST_F(BannerTest, IntervalsAndMissingImages) {
    data("ADD|Huge|x.gif|http://x|||70\r\nADD|Zero|x.gif|http://x|||0\r\nRUN|NaN|nofile.gif|http://"
         "n|||abc\r\n");
    image("x.gif");
    banners.LoadLocalBannerList();
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.interval, 1); // 70 s is beyond the timer: the previous interval stays
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.interval, 0);
    banners.Banner_Timer_Timer();
    EXPECT_FALSE(banners.imageVisible);
    EXPECT_FALSE(banners.nextButtonVisible);
    EXPECT_EQ(banners.toolTip, QStringLiteral("Click For More Info: NaN"));
}

TEST_F(BannerTest, NoDataFileHidesTheStrip) {
    banners.LoadLocalBannerList();
    EXPECT_FALSE(banners.imageVisible);
    EXPECT_FALSE(banners.nextButtonVisible);
    EXPECT_TRUE(banners.TimeToDownloadData(2));
}

TEST_F(BannerTest, DataFileAge) {
    data("ADD|a|a.gif|u|||1\r\n");
    const QDate stamp = QDate::currentDate();
    banners.today = [stamp] {
        return stamp.addDays(1);
    };
    EXPECT_FALSE(banners.TimeToDownloadData(2));
    banners.today = [stamp] {
        return stamp.addDays(2);
    };
    EXPECT_TRUE(banners.TimeToDownloadData(2));
    EXPECT_EQ(BannerRotation::ShowValidDate(QDateTime(QDate(1979, 12, 31), QTime(12, 0))),
              QStringLiteral("(unknown)"));
    EXPECT_EQ(BannerRotation::ShowValidDate(QDateTime(QDate(2108, 1, 1), QTime(0, 0))),
              QStringLiteral("(unknown)"));
    EXPECT_EQ(BannerRotation::ShowValidDate(QDateTime(QDate(1980, 1, 1), QTime(0, 0))),
              QStringLiteral("1980-01-01"));
}

TEST_F(BannerTest, DownloadFetchesDataAndImagesAndDeletesExpired) {
    LocalHttpServer server;
    server.route("/pad/share/data.txt",
                 {200,
                  "text/plain",
                  "ADD|New|new.gif|http://n.example|2020-01-01|2099-12-31|5\n"
                  "ADD|Expired|old.gif|http://o.example|2001-01-01|2002-01-01|5\n"
                  "ADD|Evil|../../escape.gif|http://e.example|||5\n",
                  {},
                  false,
                  0});
    server.route("/pad/share/new.gif", {200, "image/gif", "GIF89a-new", {}, false, 0});
    qputenv("BREVARO_SERVER", server.url("").toUtf8());
    BannerRotation fresh(home.home(), prompts, http);
    qunsetenv("BREVARO_SERVER");
    image("old.gif");
    fresh.BannerDataDownload();
    EXPECT_EQ(readBytes(share("data.txt")),
              QByteArray("ADD|New|new.gif|http://n.example|2020-01-01|2099-12-31|5\r\n"
                         "ADD|Expired|old.gif|http://o.example|2001-01-01|2002-01-01|5\r\n"
                         "ADD|Evil|../../escape.gif|http://e.example|||5\r\n"));
    EXPECT_EQ(readBytes(share("new.gif")), QByteArray("GIF89a-new"));
    EXPECT_FALSE(QFile::exists(share("old.gif")));
    EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("../escape.gif"))));
    EXPECT_EQ(server.requests(), 2); // the data file and the one missing image
    EXPECT_TRUE(fresh.timerEnabled);

    // A dead server leaves the data file as it was.
    qputenv("BREVARO_SERVER", "http://127.0.0.1:1");
    BannerRotation dead(home.home(), prompts, http);
    qunsetenv("BREVARO_SERVER");
    const QByteArray before = readBytes(share("data.txt"));
    dead.BannerDataDownload();
    EXPECT_EQ(readBytes(share("data.txt")), before);
}
