#include "LocalHttpServer.h"
#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "platform/HttpTransfer.h"
#include "session/BannerRotation.h"

#include <QFile>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

class BannerTest : public ::testing::Test {
protected:
    TempHome home;
    ScriptedPrompts prompts;
    HttpTransfer http;
    BannerRotation banners{home.home(), prompts, http};

    QString share(const char* name) { return home.file(u"share/"_s + QLatin1String(name)); }
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
    EXPECT_EQ(banners.banners()[2].number, u"3"_s);
    EXPECT_EQ(banners.interval, 1);
    EXPECT_TRUE(banners.timerEnabled);

    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.nextButtonToolTip, u"Banner 1 of 3"_s);
    EXPECT_EQ(banners.toolTip, u"Click For More Info: First banner"_s);
    EXPECT_EQ(banners.imagePath, share("a.gif"));
    EXPECT_EQ(banners.interval, 10000);
    banners.clickBanner();
    EXPECT_EQ(prompts.opened, QStringList{u"http://a.example"_s});

    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.interval, 2500);
    // The DELETE banner's turn keeps the previous banner on screen.
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.toolTip, u"Click For More Info: Second"_s);
    EXPECT_EQ(banners.interval, 2500);
    EXPECT_EQ(banners.shownEntry, 2);
    // After the last, the first again.
    banners.Banner_Timer_Timer();
    EXPECT_EQ(banners.nextButtonToolTip, u"Banner 1 of 3"_s);
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
    EXPECT_FALSE(banners.imageVisible || banners.nextButtonVisible);
    EXPECT_EQ(banners.toolTip, u"Click For More Info: NaN"_s);
}

// No data file hides the strip and asks for a download; a file is fetched again when 2 days old.
TEST_F(BannerTest, DataFileAge) {
    banners.LoadLocalBannerList();
    EXPECT_FALSE(banners.imageVisible || banners.nextButtonVisible);
    EXPECT_TRUE(banners.TimeToDownloadData(2));
    data("ADD|a|a.gif|u|||1\r\n");
    const QDate stamp = QDate::currentDate();
    for (int days : {1, 2}) {
        banners.today = [stamp, days] {
            return stamp.addDays(days);
        };
        EXPECT_EQ(banners.TimeToDownloadData(2), days == 2) << days;
    }
    for (const auto& [when, shown] :
         {std::pair{QDateTime(QDate(1979, 12, 31), QTime(12, 0)), u"(unknown)"_s},
          {QDateTime(QDate(2108, 1, 1), QTime(0, 0)), u"(unknown)"_s},
          {QDateTime(QDate(1980, 1, 1), QTime(0, 0)), u"1980-01-01"_s}})
        EXPECT_EQ(BannerRotation::ShowValidDate(when), shown);
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
    EXPECT_FALSE(QFile::exists(home.file(u"../escape.gif"_s)));
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
