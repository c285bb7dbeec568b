#pragma once

#include <QByteArray>
#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>

namespace brevaro::test {

// A small HTTP server on 127.0.0.1 for tests, served by the test's own event loop.
class LocalHttpServer : public QObject {
public:
    struct Response {
        int status = 200;
        QByteArray contentType = "text/html";
        QByteArray body;
        QByteArray location;   // a redirect target
        bool stall = false;    // accept the request and never answer
        qint64 hugeBytes = 0;  // stream this many bytes of filler instead of body
        bool holdOpen = false; // send the body, announce more and keep the connection open
    };

    LocalHttpServer() {
        m_server.listen(QHostAddress::LocalHost, 0);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = m_server.nextPendingConnection())
                serve(s);
        });
    }

    void route(const QByteArray& path, Response r) { m_routes.insert(path, std::move(r)); }
    QString url(const QByteArray& path) const {
        return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort()) +
               QString::fromLatin1(path);
    }
    int requests() const { return m_requests; }
    int requests(const QByteArray& path) const { return m_hits.value(path); }
    qint64 bytesSent() const { return m_sent; }
    // Connections not yet closed by either side.
    int openConnections() const { return m_open; }

private:
    void serve(QTcpSocket* s) {
        auto* request = new QByteArray;
        ++m_open;
        connect(s, &QTcpSocket::disconnected, s, [this, s, request] {
            --m_open;
            delete request;
            s->deleteLater();
        });
        connect(s, &QTcpSocket::readyRead, s, [this, s, request] {
            request->append(s->readAll());
            if (!request->contains("\r\n\r\n") || request->startsWith("done"))
                return;
            const QByteArray path = request->split(' ').value(1);
            *request = "done";
            ++m_requests;
            ++m_hits[path];
            answer(s, m_routes.value(path, Response{404, "text/plain", "not here", {}, false, 0}));
        });
    }

    void answer(QTcpSocket* s, const Response& r) {
        if (r.stall)
            return;
        const qint64 length =
            r.hugeBytes > 0 ? r.hugeBytes : r.body.size() + (r.holdOpen ? 1000000 : 0);
        QByteArray head =
            "HTTP/1.1 " + QByteArray::number(r.status) + (r.status == 200 ? " OK" : " Other") +
            "\r\nContent-Type: " + r.contentType +
            "\r\nContent-Length: " + QByteArray::number(length) + "\r\nConnection: close\r\n";
        if (!r.location.isEmpty())
            head += "Location: " + r.location + "\r\n";
        s->write(head + "\r\n");
        if (r.hugeBytes == 0) {
            s->write(r.body);
            m_sent += r.body.size();
            if (!r.holdOpen)
                s->disconnectFromHost();
            return;
        }
        // Streams the filler as the client reads, without holding it in memory.
        auto* left = new qint64(r.hugeBytes);
        auto more = [this, s, left] {
            if (*left <= 0 || s->bytesToWrite() > 256 * 1024)
                return;
            const QByteArray chunk(static_cast<int>(std::min<qint64>(*left, 64 * 1024)), 'w');
            s->write(chunk);
            *left -= chunk.size();
            m_sent += chunk.size();
        };
        connect(s, &QTcpSocket::bytesWritten, s, more);
        connect(s, &QTcpSocket::destroyed, s, [left] { delete left; });
        more();
        more();
    }

    QTcpServer m_server;
    QHash<QByteArray, Response> m_routes;
    QHash<QByteArray, int> m_hits;
    int m_requests = 0;
    int m_open = 0;
    qint64 m_sent = 0;
};

} // namespace brevaro::test
