#pragma once

#include <QObject>
#include <QString>
#include <QStringDecoder>
#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QSaveFile;
class QTimer;

namespace brevaro {

// A plain HTTP GET with the events callers follow: connected, transfer started, data
// received (the body as text, in order), transfer ended, disconnected. fetch() returns only
// after the disconnected event, which follows every fetch, failed or not. A transfer ends
// after 30 s without data or at 16 MiB. With a local file set, the body goes to that file,
// which is replaced only when the whole body has arrived.
class HttpTransfer : public QObject {
    Q_OBJECT
public:
    // The most a transfer receives; a file read in place of a download is held to it too.
    static constexpr qint64 kMaxBytes = 16 * 1024 * 1024;
    static constexpr int kDirectionIn = 1;

    explicit HttpTransfer(QObject* parent = nullptr);
    ~HttpTransfer() override;

    void setUrl(const QString& url) { m_url = url; }
    const QString& url() const { return m_url; }
    void setLocalFile(const QString& path) { m_localFile = path; }
    const QString& localFile() const { return m_localFile; }
    // Forgets the URL, the local file and the outcome of the last transfer.
    void reset();
    // Start fetch: runs until the transfer is over.
    void fetch();
    // Stops a running transfer; its disconnected event still follows.
    void stop();

    // Limits, for tests: time without data before giving up, and the largest body taken.
    void setLimits(int idleMilliseconds, qint64 maxBytes);

    bool succeeded() const { return m_succeeded; }
    const QString& errorString() const { return m_error; }

signals:
    void connected(int status, const QString& description);
    void transferStarted(int direction);
    void dataReceived(int direction, qint64 bytes, const QString& chunk);
    void transferEnded(int direction);
    void disconnected(int status, const QString& description);

private:
    void onHeaders();
    void onData();
    void onFinished();
    void fail(const QString& why);

    QNetworkAccessManager* m_manager = nullptr;
    QTimer* m_idle;
    QNetworkReply* m_reply = nullptr;
    std::unique_ptr<QSaveFile> m_file;
    QStringDecoder m_decoder;
    QString m_url;
    QString m_localFile;
    QString m_error;
    int m_idleMs = 30000;
    qint64 m_maxBytes = kMaxBytes;
    qint64 m_received = 0;
    int m_status = 0;
    bool m_started = false;
    bool m_succeeded = false;
    bool m_firstChunk = true;
};

// The character set a page declares in a <meta> tag near its start, or empty.
QString declaredCharset(QByteArrayView head);
// Decodes a whole page by its header charset, its <meta>, else UTF-8 when valid, else
// Windows-1252; a byte order mark is dropped.
QString decodePage(QByteArrayView bytes, const QString& headerCharset = {});
// The same a part at a time, each part's text handed to take: the parts joined are
// decodePage's text. For pages too big to hold twice. (A page that starts with a byte order
// mark comes in one part.)
void decodePageInParts(QByteArrayView bytes, const QString& headerCharset,
                       const std::function<void(QStringView)>& take);

} // namespace brevaro
