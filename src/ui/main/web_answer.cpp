#include "ui/main/web_answer.h"

#include "ui/common/prompts.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

namespace vellumo {
namespace {

/// Whether the toolkit asks the system for proxies by itself is decided where it is built.
class SystemProxies : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        return systemProxyForQuery(query);
    }
};

QNetworkRequest RequestFor(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, QString(productName));
    request.setRawHeader("Accept-Encoding", "identity"); // what is counted are the bytes as sent
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    return request;
}

/// The page of a failure has text, too, and it may look like an answer.
bool Succeeded(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return status >= 200 && status < 300;
}

} // namespace

QByteArray StartOfAnswer(const QUrl &address, qint64 size, std::chrono::milliseconds timeOut)
{
    QNetworkAccessManager manager;
    manager.setProxyFactory(new SystemProxies);
    const std::unique_ptr<QNetworkReply> reply(manager.get(RequestFor(address)));
    reply->setReadBufferSize(size); // no more than that is fetched ahead

    QEventLoop waiting;
    QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &waiting, [&] {
        if (reply->bytesAvailable() >= size)
            waiting.quit();
    });
    QTimer::singleShot(timeOut, Qt::PreciseTimer, &waiting, &QEventLoop::quit);
    waiting.exec();

    QByteArray start = Succeeded(*reply) ? reply->read(size) : QByteArray();
    reply->abort();
    return start;
}

} // namespace vellumo
