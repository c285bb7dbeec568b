#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

namespace brevaro {

class HttpTransfer;

// The download-site list without its window: the enciphered list file (swd.dta) fetched
// from the maker's server, deciphered field by field, with the maker's own directory first.
class SiteList : public QObject {
    Q_OBJECT
public:
    struct Site {
        QString number;
        QString name;
        QString url;
    };

    SiteList(QString listFile, HttpTransfer& http, QObject* parent = nullptr);

    static QString makerSiteName();
    static QString makerSiteUrl();
    // The host of the maker's server without "www.": lines naming it are skipped.
    static QString makerDomain();
    static QString listAddress();

    const std::vector<Site>& sites() const { return m_sites; }
    QString lblNo;
    QString status;
    // Bytes received by the running or last download, for a progress display.
    qint64 bytesReceived = 0;

    // Fills the list from the list file; a missing file leaves the list as it was.
    void LoadList();
    // Fetches the list file from url (the maker's list when empty), then LoadList; the
    // callback runs afterwards (the banner data refresh).
    void Download(const QString& url = {});
    std::function<void()> afterDownload;
    // Loading the window: downloads when there is no list file yet.
    void open();
    // Sorting by a column header: 1 (name) descending, 0 and 2 ascending, as text.
    void sortByColumn(int column);

signals:
    // Any change, the status text included.
    void changed();
    // The entries or their order changed.
    void listChanged();

private:
    void simpleText(const QString& text);

    QString m_file;
    HttpTransfer& m_http;
    QString m_buffer;
    std::vector<Site> m_sites;
};

} // namespace brevaro
