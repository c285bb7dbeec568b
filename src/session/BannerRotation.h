#pragma once

#include "store/AppHome.h"

#include <QDate>
#include <QObject>
#include <QStringList>
#include <functional>
#include <vector>

class QTimer;

namespace brevaro {

class HttpTransfer;
class Prompts;

// The banner strip without widgets: the banner list from share/data.txt, the rotation with
// each banner's own display time, and the download of the data file and its images from
// the maker's server. The view shows imagePath with toolTip and repaints on changed().
class BannerRotation : public QObject {
    Q_OBJECT
public:
    // One line of the data file: Command, Description, Filename, URL, StartDate, EndDate,
    // RunTime.
    struct Banner {
        QString number;
        QStringList fields;
        QString field(int i) const { return fields.value(i); }
    };

    BannerRotation(const AppHome& home, Prompts& prompts, HttpTransfer& http,
                   QObject* parent = nullptr);

    QString BannerDataURL;
    QString BannerFolderURL;
    QString LocalShareFolder;
    QString LocalBannerData;
    int CurrentBanner = 1;

    // What the strip shows.
    bool imageVisible = false;
    bool nextButtonVisible = false;
    QString imagePath;
    QString toolTip;
    QString clickAddress;
    QString nextButtonToolTip;
    int shownEntry = -1; // the entry drawn highlighted (0-based), -1: none
    int interval = 0;    // milliseconds
    bool timerEnabled = false;

    const std::vector<Banner>& banners() const { return m_banners; }

    void LoadLocalBannerList();
    void Banner_Timer_Timer();
    void ClearBannerList();
    bool TimeToDownloadData(int days) const;
    static QString ShowValidDate(const QDateTime& stamp);
    void BannerDataDownload();
    void BannerDownload();
    static void FixDataLineEnds(const QString& path);
    // A click on the banner opens its address.
    void clickBanner();

    // The clock, replaceable in tests.
    std::function<QDate()> today = [] {
        return QDate::currentDate();
    };

signals:
    void changed();

private:
    void setTimer(bool enabled, int milliseconds);
    QString imageOf(const Banner& b) const;
    void download(const QString& url, const QString& file);

    Prompts& m_prompts;
    HttpTransfer& m_http;
    QTimer* m_timer;
    std::vector<Banner> m_banners;
};

} // namespace brevaro
