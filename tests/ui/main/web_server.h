#pragma once

#include <QPointer>
#include <QSslCertificate>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <memory>

namespace vellumo {

/// A web server on the loopback that answers each request as the test says. It runs in the test's
/// own thread, whenever events are handled.
class WebServer
{
public:
    /// Gives the whole answer to a request, its head included; empty = keep silent.
    using Answer = std::function<QByteArray(const QString &path)>;
    enum class After { closes, staysOpen, repeatsForever };

    explicit WebServer(Answer answer, After after = After::closes);
    /// One that speaks encrypted, with a certificate (Certificate()) that nobody else vouches for.
    static std::unique_ptr<WebServer> Encrypted(Answer answer);
    static QList<QSslCertificate> Certificate();

    /// Without a slash at its end.
    QString Address() const { return m_address; }
    /// The heads of the requests that came.
    const QStringList &requests() const { return m_requests; }
    /// How many connections came at all, how many of them are still open, and the bytes sent.
    qsizetype connectionCount() const { return m_sockets.size(); }
    qsizetype openConnections() const;
    qint64 bytesSent() const { return m_sent; }

private:
    WebServer(Answer answer, After after, std::unique_ptr<QTcpServer> server,
              const QString &scheme);
    void Count(QTcpSocket *socket);
    void Serve(QTcpSocket *socket);
    void Reply(QTcpSocket *socket);

    Answer m_answer;
    After m_after;
    std::unique_ptr<QTcpServer> m_server;
    QString m_address;
    QStringList m_requests;
    QList<QPointer<QTcpSocket>> m_sockets;
    qint64 m_sent = 0;
};

/// A successful answer with this body.
QByteArray Page(const QByteArray &body);

} // namespace vellumo
