#include "ui/main/web_server.h"

#include "support/files.h"

#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>

#include <algorithm>

using namespace Qt::StringLiterals;
namespace vellumo {

WebServer::WebServer(Answer answer, After after)
    : WebServer(std::move(answer), after, std::make_unique<QTcpServer>(), u"http"_s)
{
    QTcpServer *server = m_server.get();
    QObject::connect(server, &QTcpServer::pendingConnectionAvailable, server, [this, server] {
        QTcpSocket *socket = server->nextPendingConnection();
        Count(socket);
        Serve(socket);
    });
}

std::unique_ptr<WebServer> WebServer::Encrypted(Answer answer)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificateChain(Certificate());
    configuration.setPrivateKey(QSslKey(BytesOf(DataFile(u"tls/key.pem"_s)), QSsl::Ec));

    auto owned = std::make_unique<QSslServer>();
    QSslServer *server = owned.get();
    server->setSslConfiguration(configuration);
    std::unique_ptr<WebServer> web(
        new WebServer(std::move(answer), After::closes, std::move(owned), u"https"_s));
    QObject::connect(server, &QSslServer::startedEncryptionHandshake, server,
                     [web = web.get()](QSslSocket *socket) { web->Count(socket); });
    QObject::connect(server, &QTcpServer::pendingConnectionAvailable, server,
                     [web = web.get()] { web->Serve(web->m_server->nextPendingConnection()); });
    return web;
}

WebServer::WebServer(Answer answer, After after, std::unique_ptr<QTcpServer> server,
                     const QString &scheme)
    : m_answer(std::move(answer)), m_after(after), m_server(std::move(server))
{
    m_server->listen(QHostAddress::LocalHost);
    m_address = u"%1://127.0.0.1:%2"_s.arg(scheme).arg(m_server->serverPort());
}

qsizetype WebServer::openConnections() const
{
    return std::ranges::count_if(m_sockets, [](const QPointer<QTcpSocket> &socket) {
        return socket && socket->state() != QAbstractSocket::UnconnectedState;
    });
}

void WebServer::Count(QTcpSocket *socket)
{
    m_sockets += socket;
    QObject::connect(socket, &QTcpSocket::bytesWritten, m_server.get(),
                     [this](qint64 bytes) { m_sent += bytes; });
}

void WebServer::Serve(QTcpSocket *socket)
{
    QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] {
        if (socket->peek(65536).contains("\r\n\r\n"))
            Reply(socket);
    });
    if (m_after == After::repeatsForever)
        QObject::connect(socket, &QTcpSocket::bytesWritten, m_server.get(), [socket] {
            if (socket->bytesToWrite() == 0)
                socket->write(QByteArray(65536, 'x'));
        });
}

void WebServer::Reply(QTcpSocket *socket)
{
    const QString head = QString::fromLatin1(socket->readAll());
    m_requests += head;
    const QByteArray answer = m_answer(head.section(u' ', 1, 1));
    socket->write(answer);
    if (m_after == After::closes && !answer.isEmpty())
        socket->disconnectFromHost();
}

QList<QSslCertificate> WebServer::Certificate()
{
    return QSslCertificate::fromPath(DataFile(u"tls/certificate.pem"_s));
}

QByteArray Page(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body;
}

} // namespace vellumo
