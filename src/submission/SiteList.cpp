#include "submission/SiteList.h"

#include "platform/HttpTransfer.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "platform/WebAddresses.h"
#include "platform/Win1252.h"
#include "submission/SiteCipher.h"

#include <QFile>
#include <QSaveFile>
#include <QUrl>
#include <algorithm>

namespace brevaro {

SiteList::SiteList(QString listFile, HttpTransfer& http, QObject* parent)
    : QObject(parent)
    , m_file(std::move(listFile))
    , m_http(http) {}

QString SiteList::makerSiteName() {
    return QStringLiteral("Quorin Shareware Download Directory");
}
QString SiteList::makerSiteUrl() {
    return makerServer() + QStringLiteral("/unsignedpadfile.php");
}
QString SiteList::listAddress() {
    return makerServer() + QStringLiteral("/pad/SharewareSites/sharewaresites_cryptated.txt");
}

QString SiteList::makerDomain() {
    QString host = QUrl(makerServer()).host();
    if (host.startsWith(QLatin1String("www.")))
        host.remove(0, 4);
    return host;
}

void SiteList::simpleText(const QString& text) {
    status = text;
    emit changed();
}

void SiteList::LoadList() {
    if (!QFile::exists(m_file))
        return;
    m_sites.clear();
    m_sites.push_back({QStringLiteral("1"), makerSiteName(), makerSiteUrl()});
    const QString domain = makerDomain();
    const QStringList lines = readTextLines(m_file).split(QStringLiteral("\r\n"));
    for (const QString& raw : lines) {
        const QStringList fields = splitFields(trimBlanks(raw), u"|");
        if (fields.size() < 2)
            continue;
        const QString name = DxXCrypted(fields[0], siteListKey(), 0);
        const QString url = DxXCrypted(fields[1], siteListKey(), 0);
        if (name.isEmpty() || (!domain.isEmpty() && name.contains(domain)))
            continue;
        m_sites.push_back({QString::number(m_sites.size() + 1), name, url});
    }
    lblNo = u' ' + QString::number(m_sites.size());
    emit listChanged();
    emit changed();
}

void SiteList::Download(const QString& url) {
    m_buffer.clear();
    bytesReceived = 0;
    QMetaObject::Connection c[5] = {
        connect(&m_http, &HttpTransfer::connected, this,
                [this] { simpleText(QStringLiteral("Connected, Wait ...")); }),
        connect(&m_http, &HttpTransfer::transferStarted, this,
                [this] {
                    simpleText(QStringLiteral("Transfer Started ..."));
                    m_buffer.clear();
                }),
        connect(&m_http, &HttpTransfer::dataReceived, this,
                [this](int, qint64 bytes, const QString& chunk) {
                    bytesReceived += bytes;
                    m_buffer += QString(chunk).replace(u'\n', QStringLiteral("\r\n"));
                    simpleText(chunk.left(200));
                }),
        connect(&m_http, &HttpTransfer::transferEnded, this,
                [this] {
                    simpleText(QStringLiteral("Transfer Ended ..."));
                    QSaveFile out(m_file);
                    const QByteArray bytes = toWin1252(QString(m_buffer + QStringLiteral("\r\n")));
                    if (out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size())
                        out.commit();
                }),
        connect(&m_http, &HttpTransfer::disconnected, this,
                [this] { simpleText(QStringLiteral("Disconnected, Download Done ...")); }),
    };
    m_http.reset();
    m_http.setUrl(url.isEmpty() ? listAddress() : url);
    m_http.fetch();
    for (const auto& connection : c)
        disconnect(connection);
    LoadList();
    if (afterDownload)
        afterDownload();
}

void SiteList::open() {
    if (!QFile::exists(m_file))
        Download();
    else
        LoadList();
}

void SiteList::sortByColumn(int column) {
    auto key = [column](const Site& s) {
        return column == 0 ? s.number : column == 1 ? s.name : s.url;
    };
    std::stable_sort(m_sites.begin(), m_sites.end(), [&](const Site& a, const Site& b) {
        return column == 1 ? key(a) > key(b) : key(a) < key(b);
    });
    emit listChanged();
    emit changed();
}

} // namespace brevaro
