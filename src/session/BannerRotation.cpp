#include "session/BannerRotation.h"

#include "platform/DayNumbers.h"
#include "platform/FileHelpers.h"
#include "platform/HttpTransfer.h"
#include "platform/Prompts.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "platform/WebAddresses.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTimer>
#include <cmath>

namespace brevaro {

namespace {

constexpr int kBannerFields = 7;
constexpr int kLongestInterval = 65535;

bool shows(const QString& command) {
    return command == QLatin1String("ADD") || command == QLatin1String("RUN");
}

// A file name from the server names one file inside the share folder, nothing else.
bool isPlainFileName(const QString& name) {
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(u'\\') &&
           name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QChar(u'\0'));
}

} // namespace

BannerRotation::BannerRotation(const AppHome& home, Prompts& prompts, HttpTransfer& http,
                               QObject* parent)
    : QObject(parent)
    , m_prompts(prompts)
    , m_http(http)
    , m_timer(new QTimer(this)) {
    BannerDataURL = makerServer() + QStringLiteral("/pad/share/data.txt");
    BannerFolderURL = makerServer() + QStringLiteral("/pad/share/");
    LocalShareFolder = home.shareFolder() + QDir::separator();
    LocalBannerData = LocalShareFolder + QStringLiteral("data.txt");
    connect(m_timer, &QTimer::timeout, this, &BannerRotation::Banner_Timer_Timer);
}

void BannerRotation::setTimer(bool enabled, int milliseconds) {
    interval = milliseconds;
    timerEnabled = enabled;
    m_timer->stop();
    if (enabled && milliseconds > 0)
        m_timer->start(milliseconds);
}

QString BannerRotation::imageOf(const Banner& b) const {
    const QString name = trimBlanks(b.field(2));
    return isPlainFileName(name) ? LocalShareFolder + name : QString();
}

void BannerRotation::ClearBannerList() {
    m_banners.clear();
}

void BannerRotation::LoadLocalBannerList() {
    ClearBannerList();
    shownEntry = -1;
    if (!QFile::exists(LocalBannerData)) {
        imageVisible = nextButtonVisible = false;
        emit changed();
        return;
    }
    imageVisible = nextButtonVisible = true;
    const QStringList lines = readTextLines(LocalBannerData).split(QStringLiteral("\r\n"));
    for (const QString& raw : lines) {
        const QString line = trimBlanks(raw);
        const QStringList fields = splitFields(line, u"|");
        const QString command = fields.value(0).toUpper();
        if (line.startsWith(u'#') || line.isEmpty() || fields.size() < 2)
            continue;
        const QString image = imageOf(Banner{QString(), fields});
        if ((image.isEmpty() || !QFile::exists(image)) && !shows(command))
            continue;
        Banner b{QString::number(m_banners.size() + 1), fields.mid(0, kBannerFields)};
        while (b.fields.size() < kBannerFields)
            b.fields << QString();
        m_banners.push_back(b);
    }
    if (m_banners.empty())
        imageVisible = false;
    CurrentBanner = 1;
    setTimer(true, 1);
    emit changed();
}

void BannerRotation::Banner_Timer_Timer() {
    const int count = static_cast<int>(m_banners.size());
    if (count == 0) {
        emit changed();
        return;
    }
    if (CurrentBanner < 1 || CurrentBanner > count)
        CurrentBanner = 1;
    const Banner& b = m_banners[std::size_t(CurrentBanner - 1)];
    const QString image = imageOf(b);
    if (image.isEmpty() || !QFile::exists(image)) {
        imageVisible = nextButtonVisible = false;
    } else {
        imageVisible = nextButtonVisible = true;
    }
    if (shows(b.field(0).toUpper())) {
        toolTip = QStringLiteral("Click For More Info: ") + trimBlanks(b.field(1));
        imagePath = image;
        clickAddress = trimBlanks(b.field(3));
        bool ok = false;
        const double seconds = trimBlanks(b.field(6)).toDouble(&ok);
        const long long ms = ok ? std::llround(seconds * 1000) : 0;
        if (ms <= kLongestInterval)
            setTimer(true, static_cast<int>(std::max(0LL, ms)));
    }
    shownEntry = CurrentBanner - 1;
    nextButtonToolTip = QStringLiteral("Banner %1 of %2").arg(CurrentBanner).arg(count);
    ++CurrentBanner;
    if (CurrentBanner == count + 1)
        CurrentBanner = 1;
    emit changed();
}

void BannerRotation::clickBanner() {
    if (!clickAddress.isEmpty())
        m_prompts.openDocument(clickAddress);
}

QString BannerRotation::ShowValidDate(const QDateTime& stamp) {
    if (!stamp.isValid() || stamp.date() < QDate(1980, 1, 1) || stamp.date() >= QDate(2108, 1, 1))
        return QStringLiteral("(unknown)");
    return dateText(stamp.date());
}

bool BannerRotation::TimeToDownloadData(int days) const {
    if (!QFile::exists(LocalBannerData))
        return true;
    const QString text = ShowValidDate(fileTimeStamp(LocalBannerData));
    if (text == QLatin1String("(unknown)"))
        return true;
    return dayNumber(today()) - dayNumber(text) >= days;
}

void BannerRotation::FixDataLineEnds(const QString& path) {
    if (!QFile::exists(path))
        return;
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly))
        return;
    const QByteArray fixed = toWin1252(linesWithCrLf(fromWin1252(in.readAll())));
    in.close();
    QSaveFile out(path);
    if (out.open(QIODevice::WriteOnly) && out.write(fixed) == fixed.size())
        out.commit();
}

void BannerRotation::download(const QString& url, const QString& file) {
    m_http.reset();
    m_http.setLocalFile(file);
    m_http.setUrl(url);
    m_http.fetch();
}

void BannerRotation::BannerDataDownload() {
    setTimer(false, interval);
    download(BannerDataURL, LocalBannerData);
    FixDataLineEnds(LocalBannerData);
    BannerDownload();
}

void BannerRotation::BannerDownload() {
    LoadLocalBannerList();
    setTimer(false, interval);
    const qint64 now = dayNumber(today());
    for (const Banner& b : m_banners) {
        QString status = b.field(0).toUpper();
        const qint64 start = dayNumber(b.field(4));
        const qint64 end = dayNumber(b.field(5));
        if (shows(status)) {
            if (now > start)
                status = QStringLiteral("ADD");
            if (now > end)
                status = QStringLiteral("DELETE");
            if (start == 0)
                status = QStringLiteral("RUN");
            if (end == 0)
                status = QStringLiteral("RUN");
        }
        const QString image = imageOf(b);
        if (image.isEmpty())
            continue;
        if (status == QLatin1String("DELETE") && QFile::exists(image))
            QFile::remove(image);
        if (shows(status) && !QFile::exists(image))
            download(BannerFolderURL + trimBlanks(b.field(2)), image);
    }
    LoadLocalBannerList();
}

} // namespace brevaro
