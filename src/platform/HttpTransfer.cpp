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

QString declaredCharset(QByteArrayView head) {
    static const QRegularExpression re(
        QStringLiteral("<meta[^>]*charset\\s*=\\s*[\"']?([A-Za-z0-9_.:-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    return re.match(QString::fromLatin1(head.first(std::min<qsizetype>(head.size(), 4096))))
        .captured(1);
}

namespace {

constexpr qsizetype kPartBytes = 64 * 1024;

// How the bytes of a page are to be read.
struct PageEncoding {
    enum Kind { MarkedUtf8, Undeclared, Utf8, Win1252, Named };
    QByteArrayView body; // without a byte order mark
    Kind kind = Undeclared;
    QString charset;
};

PageEncoding encodingOf(QByteArrayView bytes, const QString& headerCharset) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return {bytes.sliced(3), PageEncoding::MarkedUtf8, {}};
    const QString charset = headerCharset.isEmpty() ? declaredCharset(bytes) : headerCharset;
    if (charset.isEmpty())
        return {bytes, PageEncoding::Undeclared, {}};
    return {bytes, isWin1252(charset) ? PageEncoding::Win1252 : PageEncoding::Named, charset};
}

// Characters the text of the page may take at most.
qsizetype roomFor(const PageEncoding& e) {
    if (e.kind == PageEncoding::Named || e.kind == PageEncoding::Utf8)
        return decoderFor(e.charset).requiredSpace(e.body.size());
    // Never fewer than the bytes, which is what Windows-1252 takes.
    return QStringDecoder(QStringDecoder::Utf8).requiredSpace(e.body.size());
}

// Decodes into out, which has room for roomFor(e) characters; the end of the text.
char16_t* decodeInto(const PageEncoding& e, char16_t* out) {
    const auto decode = [&](QStringDecoder& d) {
        return reinterpret_cast<char16_t*>(d.appendToBuffer(reinterpret_cast<QChar*>(out), e.body));
    };
    switch (e.kind) {
    case PageEncoding::MarkedUtf8: {
        QStringDecoder d(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        return decode(d);
    }
    case PageEncoding::Undeclared: {
        // UTF-8 when the bytes are valid UTF-8, else Windows-1252.
        QStringDecoder d(QStringDecoder::Utf8);
        char16_t* end = decode(d);
        return d.hasError() ? fromWin1252To(e.body.data(), e.body.size(), out) : end;
    }
    case PageEncoding::Win1252:
        return fromWin1252To(e.body.data(), e.body.size(), out);
    case PageEncoding::Utf8:
    case PageEncoding::Named:
        break;
    }
    QStringDecoder d = decoderFor(e.charset);
    return decode(d);
}

} // namespace

QString decodePage(QByteArrayView bytes, const QString& headerCharset) {
    const PageEncoding e = encodingOf(bytes, headerCharset);
    QString text(roomFor(e), Qt::Uninitialized);
    auto* begin = reinterpret_cast<char16_t*>(text.data());
    text.truncate(decodeInto(e, begin) - begin);
    return text;
}

void decodePageInParts(QByteArrayView bytes, const QString& headerCharset,
                       const std::function<void(QStringView)>& take) {
    PageEncoding e = encodingOf(bytes, headerCharset);
    if (e.kind == PageEncoding::Undeclared) {
        // The test decodePage makes, without holding the text: a decoder that meets no error.
        bool valid = e.body.isValidUtf8();
        if (!valid) {
            QStringDecoder d(QStringDecoder::Utf8);
            std::vector<char16_t> scratch;
            for (qsizetype at = 0; at < e.body.size() && !d.hasError(); at += kPartBytes) {
                const QByteArrayView part =
                    e.body.sliced(at, std::min(kPartBytes, e.body.size() - at));
                scratch.resize(std::size_t(d.requiredSpace(part.size())));
                d.appendToBuffer(reinterpret_cast<QChar*>(scratch.data()), part);
            }
            valid = !d.hasError();
        }
        e = {e.body, valid ? PageEncoding::Utf8 : PageEncoding::Win1252, QStringLiteral("utf-8")};
    }
    if (e.kind == PageEncoding::MarkedUtf8) {
        // After a byte-order mark the text is decoded as QString::fromUtf8 decodes it: by a
        // decoder that keeps no state between calls, which drops a mark at the start of each
        // call and cannot carry a character over. So it is decoded in one part.
        take(decodePage(bytes, headerCharset));
        return;
    }
    // The decoders left keep their state from part to part (or read a byte at a time), but a
    // malformed sequence cut in two may still be replaced differently: a part ends after an
    // ASCII byte where it can, else before a byte that starts a UTF-8 character.
    QStringDecoder decoder = decoderFor(e.charset);
    std::vector<char16_t> text;
    for (qsizetype at = 0; at < e.body.size();) {
        qsizetype n = std::min(kPartBytes, e.body.size() - at);
        if (at + n < e.body.size()) {
            const auto byte = [&](qsizetype i) {
                return static_cast<unsigned char>(e.body[at + i]);
            };
            qsizetype cut = n;
            while (cut > 0 && byte(cut - 1) >= 0x80)
                --cut;
            if (cut == 0) {
                cut = n;
                while (cut > n - 4 && (byte(cut) & 0xC0) == 0x80)
                    --cut;
            }
            n = cut;
        }
        const QByteArrayView part = e.body.sliced(at, n);
        text.resize(std::max(text.size(), std::size_t(decoder.requiredSpace(n + 16))));
        const char16_t* end = e.kind == PageEncoding::Win1252
                                  ? fromWin1252To(part.data(), n, text.data())
                                  : reinterpret_cast<char16_t*>(decoder.appendToBuffer(
                                        reinterpret_cast<QChar*>(text.data()), part));
        take(QStringView(text.data(), end - text.data()));
        at += n;
    }
}

HttpTransfer::HttpTransfer(QObject* parent)
    : QObject(parent)
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
    // Made at the first transfer: the window holds a transfer from its start, and most starts
    // transfer nothing before the window is on screen.
    if (!m_manager)
        m_manager = new QNetworkAccessManager(this);
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
