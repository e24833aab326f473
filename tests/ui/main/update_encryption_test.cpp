#include "ui/main/update_check_run.h"

#include <QSslConfiguration>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

/// While it lives, the certificate of the test's server is vouched for.
class Trusting
{
public:
    Trusting()
    {
        QSslConfiguration configuration = m_before;
        configuration.setCaCertificates(WebServer::Certificate());
        QSslConfiguration::setDefaultConfiguration(configuration);
    }
    ~Trusting() { QSslConfiguration::setDefaultConfiguration(m_before); }
    Q_DISABLE_COPY_MOVE(Trusting)

private:
    QSslConfiguration m_before = QSslConfiguration::defaultConfiguration();
};

TEST_F(UpdateCheck, TrustsNoCertificateThatNobodyVouchesFor)
{
    const auto server = WebServer::Encrypted([](const QString &) { return Page("9.9.9"); });
    const PromptScript script;
    Check(server->Address());
    EXPECT_EQ(server->connectionCount(), 1) << "it was asked";
    EXPECT_EQ(server->requests().size(), 0) << "but told nothing";
    EXPECT_TRUE(script.boxes().empty());
    ExpectAllClosed(*server);
}

TEST_F(UpdateCheck, SpeaksWithATrustedSite)
{
    const Trusting trusting;
    const auto server = WebServer::Encrypted([](const QString &) { return Page("1.1.3"); });
    const PromptScript script({u"Yes"_s});
    Check(server->Address());
    EXPECT_EQ(script.boxes().size(), 1u);
    EXPECT_EQ(m_opened, QStringList{server->Address() + u"/download"_s});
    ExpectAllClosed(*server);
}

TEST_F(UpdateCheck, IsNotLedFromAnEncryptedSiteToAPlainOne)
{
    const Trusting trusting;
    const WebServer plain([](const QString &) { return Page("9.9.9"); });
    const auto server = WebServer::Encrypted([&](const QString &) {
        return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " +
               plain.Address().toLatin1() + "/\r\n\r\n";
    });
    const PromptScript script;
    Check(server->Address());
    EXPECT_EQ(server->requests().size(), 1);
    EXPECT_EQ(plain.connectionCount(), 0);
    EXPECT_TRUE(script.boxes().empty());
}

TEST_F(UpdateCheck, SpeaksNoPlainTextWithAnEncryptedSite)
{
    const WebServer server([](const QString &) { return Page("9.9.9"); });
    const PromptScript script;
    QString address = server.Address();
    Check(address.replace(u"http:"_s, u"https:"_s), 1s);
    EXPECT_GE(server.connectionCount(), 1);
    EXPECT_TRUE(script.boxes().empty());
    ExpectAllClosed(server);
}

} // namespace
