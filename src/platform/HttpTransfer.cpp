#include "platform/HttpTransfer.h"

#include "platform/Win1252.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTimer>
#include <QUrl>

namespace brevaro {

namespace {

QString charsetOfContentType(const QString& contentType) {
    static const QRegularExpression re(QStringLiteral("charset\\s*=\\s*\"?([A-Za-z0-9_.:-]+)"),
                                       QRegularExpression::CaseInsensitiveOption);
    return re.match(contentType).captured(1);
}

bool isValidUtf8(const QByteArray& bytes) {
    QStringDecoder d(QStringDecoder::Utf8);
    const QString decoded = d.decode(bytes);
    return !d.hasError();
}

// Our own table for Windows-1252; Qt's codecs for the rest.
QStringDecoder decoderFor(const QString& charset) {
    QStringDecoder d(charset.toLatin1().constData());
    return d.isValid() ? std::move(d) : QStringDecoder(QStringDecoder::Utf8);
}

bool isWin1252(const QString& charset) {
    const QString c = charset.toLower();
    return c == QLatin1String("windows-1252") || c == QLatin1String("cp1252");
}

} // namespace

QString declaredCharset(const QByteArray& head) {
    static const QRegularExpression re(
        QStringLiteral("<meta[^>]*charset\\s*=\\s*[\"']?([A-Za-z0-9_.:-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    return re.match(QString::fromLatin1(head.left(4096))).captured(1);
}

QString decodePage(const QByteArray& bytes, const QString& headerCharset) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes.mid(3));
    const QString charset = headerCharset.isEmpty() ? declaredCharset(bytes) : headerCharset;
    if (charset.isEmpty()) {
        // Undeclared: UTF-8 when the bytes are valid UTF-8, else Windows-1252; one pass.
        QStringDecoder utf8(QStringDecoder::Utf8);
        QString text = utf8.decode(bytes);
        return utf8.hasError() ? fromWin1252(bytes) : text;
    }
    if (isWin1252(charset))
        return fromWin1252(bytes);
    QStringDecoder d = decoderFor(charset);
    return d.decode(bytes);
}

HttpTransfer::HttpTransfer(QObject* parent)
    : QObject(parent)
    , m_manager(new QNetworkAccessManager(this))
    , m_idle(new QTimer(this)) {
    m_idle->setSingleShot(true);
    connect(m_idle, &QTimer::timeout, this, [this] {
        fail(QStringLiteral("The server sent nothing for %1 seconds.").arg(m_idleMs / 1000));
    });
}

HttpTransfer::~HttpTransfer() = default;

void HttpTransfer::reset() {
    m_url.clear();
    m_localFile.clear();
    m_error.clear();
    m_succeeded = false;
}

void HttpTransfer::setLimits(int idleMilliseconds, qint64 maxBytes) {
    m_idleMs = idleMilliseconds;
    m_maxBytes = maxBytes;
}

void HttpTransfer::fetch() {
    m_error.clear();
    m_succeeded = false;
    m_started = false;
    m_firstChunk = true;
    m_received = 0;
    m_status = 0;
    m_file.reset();
    const QUrl url = QUrl::fromUserInput(m_url);
    if (m_url.trimmed().isEmpty() || !url.isValid() ||
        (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))) {
        m_error = QStringLiteral("\"%1\" is not a web address.").arg(m_url);
        emit disconnected(0, m_error);
        return;
    }
    if (!m_localFile.isEmpty()) {
        m_file = std::make_unique<QSaveFile>(m_localFile);
        if (!m_file->open(QIODevice::WriteOnly)) {
            m_error = QStringLiteral("%1 cannot be written.").arg(m_localFile);
            m_file.reset();
            emit disconnected(0, m_error);
            return;
        }
    }
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Brevaro"));
    QEventLoop loop;
    m_reply = m_manager->get(request);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpTransfer::onHeaders);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::onData);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::onFinished);
    connect(m_reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    m_idle->start(m_idleMs);
    loop.exec();
}

void HttpTransfer::stop() {
    if (m_reply && m_reply->isRunning())
        fail(QStringLiteral("The transfer was stopped."));
}

void HttpTransfer::onHeaders() {
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0 || (status >= 300 && status < 400))
        return; // a redirect is followed; its target's headers come next
    m_status = status;
    emit connected(status,
                   m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
    if (status >= 400) {
        fail(QStringLiteral("The server answered %1 %2.")
                 .arg(status)
                 .arg(m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString()));
        return;
    }
    m_started = true;
    emit transferStarted(kDirectionIn);
}

void HttpTransfer::onData() {
    if (!m_reply || !m_started)
        return;
    m_idle->start(m_idleMs);
    QByteArray bytes = m_reply->readAll();
    if (m_received + bytes.size() > m_maxBytes) {
        bytes.truncate(m_maxBytes - m_received);
        m_received = m_maxBytes;
        if (!bytes.isEmpty())
            emit dataReceived(kDirectionIn, bytes.size(),
                              m_decoder.isValid() ? m_decoder.decode(bytes) : fromWin1252(bytes));
        fail(QStringLiteral("The answer is larger than %1 MB.").arg(m_maxBytes / (1024 * 1024)));
        return;
    }
    m_received += bytes.size();
    if (m_file)
        m_file->write(bytes);
    if (m_firstChunk) {
        m_firstChunk = false;
        QString charset =
            charsetOfContentType(m_reply->header(QNetworkRequest::ContentTypeHeader).toString());
        if (charset.isEmpty())
            charset = declaredCharset(bytes);
        if (bytes.startsWith("\xEF\xBB\xBF")) {
            bytes.remove(0, 3);
            charset = QStringLiteral("utf-8");
        }
        if (charset.isEmpty())
            charset = isValidUtf8(bytes) ? QStringLiteral("utf-8") : QStringLiteral("windows-1252");
        m_decoder = isWin1252(charset) ? QStringDecoder() : decoderFor(charset);
    }
    const QString text = m_decoder.isValid() ? m_decoder.decode(bytes) : fromWin1252(bytes);
    emit dataReceived(kDirectionIn, bytes.size(), text);
}

void HttpTransfer::fail(const QString& why) {
    if (m_error.isEmpty())
        m_error = why;
    m_started = false;
    // Aborted from the event loop rather than inside one of the reply's own signals.
    if (m_reply && m_reply->isRunning())
        QMetaObject::invokeMethod(m_reply, &QNetworkReply::abort, Qt::QueuedConnection);
}

void HttpTransfer::onFinished() {
    m_idle->stop();
    QNetworkReply* reply = m_reply;
    if (m_error.isEmpty() && reply->error() == QNetworkReply::NoError && m_started) {
        onData();
        m_succeeded = m_error.isEmpty();
    } else if (m_error.isEmpty()) {
        m_error = reply->errorString();
    }
    if (m_file) {
        if (m_succeeded)
            m_succeeded = m_file->commit();
        else
            m_file->cancelWriting();
        m_file.reset();
    }
    if (m_succeeded)
        emit transferEnded(kDirectionIn);
    m_reply = nullptr;
    reply->deleteLater();
    m_decoder = QStringDecoder();
    emit disconnected(m_status, m_succeeded ? QStringLiteral("OK") : m_error);
}

} // namespace brevaro
