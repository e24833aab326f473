#include "ui/main/update_check.h"

#include "support/print.h"
#include "ui/main/site.h"
#include "ui/main/web_server.h"
#include "ui/support/prompt_script.h"

#include <QNetworkProxyFactory>
#include <QSslConfiguration>
#include <QTcpSocket>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

/// The value of a header whose name is compared as HTTP does, in either case; null without one.
QString HeaderOf(const QString &request, const QString &name)
{
    for (const QString &line : request.split(u"\r\n"_s))
        if (line.startsWith(name + u": "_s, Qt::CaseInsensitive))
            return line.sliced(name.size() + 2);
    return {};
}

class UpdateCheck : public testing::Test
{
protected:
    UpdateCheck()
    {
        // The proxies of whoever runs the tests do not lead to the loopback.
        for (const char *name :
             {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
            qunsetenv(name);
        m_environment.version = u"1.1.2"_s;
        m_environment.open = [this](const QString &target) { m_opened += target; };
    }

    /// With the time-out of a day, one that must end by itself: no test outlasts it.
    void Check(const QString &site, std::chrono::milliseconds timeOut = 24h)
    {
        m_environment.siteAddress = site;
        QWidget parent;
        CheckForUpdate(&parent, m_environment, timeOut);
        EXPECT_TRUE(parent.children().isEmpty()) << "something of the check is left";
    }

    static void ExpectAllClosed(const WebServer &server)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.openConnections() == 0; }));
    }

    Environment m_environment;
    QStringList m_opened;
};

TEST_F(UpdateCheck, OffersANewerVersion)
{
    const WebServer server([](const QString &) { return Page("1.0.5"); });
    const PromptScript script({u"Yes"_s});
    Check(server.Address());

    ASSERT_EQ(script.boxes().size(), 1u);
    const SeenBox &box = script.boxes().front();
    EXPECT_EQ(box.title, u"Vellumo Update"_s);
    EXPECT_EQ(box.text, u"A new version of Vellumo is available for download.  "
                        "Would you like to download it?"_s);
    EXPECT_EQ(box.icon, QMessageBox::NoIcon);
    EXPECT_EQ(box.buttons, (QStringList{u"Yes"_s, u"No"_s}));
    EXPECT_EQ(box.defaultButton, u"No"_s);
    EXPECT_EQ(m_opened, QStringList{server.Address() + u"/download"_s});
    ExpectAllClosed(server);
}

TEST_F(UpdateCheck, OpensNothingUnlessTold)
{
    const WebServer server([](const QString &) { return Page("2.0.0"); });
    for (const QString &answer : {u"No"_s, u""_s}) {
        const PromptScript script({answer});
        Check(server.Address());
        EXPECT_EQ(script.boxes().size(), 1u);
    }
    EXPECT_EQ(m_opened, QStringList());
}

TEST_F(UpdateCheck, AsksOnceAndTellsWhoAsks)
{
    const WebServer server([](const QString &) { return Page("1.1.2"); });
    const PromptScript script;
    Check(server.Address());

    ASSERT_EQ(server.requests().size(), 1);
    const QString request = server.requests().front();
    EXPECT_TRUE(request.startsWith(u"GET /vmversionlog HTTP/1.1\r\n")) << request.toStdString();
    EXPECT_EQ(HeaderOf(request, u"User-Agent"_s), u"Vellumo Designer"_s);
    EXPECT_EQ(HeaderOf(request, u"Cache-Control"_s), u"no-cache"_s);
    EXPECT_TRUE(script.boxes().empty());
    ExpectAllClosed(server);
}

TEST_F(UpdateCheck, SaysNothingOfWhatIsNoNewerVersion)
{
    const struct {
        const char *what;
        QByteArray answer;
    } rows[] = {
        {"current", Page("1.1.2")},
        {"no dot", Page("2")},
        {"letters", Page("<!DOCTYPE html><title>vellumo.example</title>")},
        {"a mark and two bytes a character", Page({"\xFF\xFE"
                                                   "9\0.\0009\0.\0009\0",
                                                   12})},
        {"empty", Page("")},
        {"newer, but too far behind", Page(QByteArray(1000000, ' ') + "9.9.9")},
        {"a failure that looks like a version", "HTTP/1.1 404 Not Found\r\n\r\n9.9.9"},
        {"a failure of the server", "HTTP/1.1 500 No\r\nContent-Length: 5\r\n\r\n9.9.9"},
        {"no HTTP at all", "9.9.9\r\n\r\n"},
        {"a password wanted",
         "HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"a\"\r\n\r\n9.9.9"},
        {"a length that lies, and no body", "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const WebServer server([&](const QString &) { return row.answer; });
        const PromptScript script;
        Check(server.Address());
        EXPECT_TRUE(script.boxes().empty());
        EXPECT_GE(server.requests().size(), 1);
        ExpectAllClosed(server);
    }
}

TEST_F(UpdateCheck, ReadsTheStartOfALongAnswerAndHangsUp)
{
    const WebServer server(
        [](const QString &) { return "HTTP/1.1 200 OK\r\n\r\n2.0.0" + QByteArray(100000, 'x'); },
        WebServer::After::repeatsForever);
    const PromptScript script({u"No"_s});
    Check(server.Address());
    EXPECT_EQ(script.boxes().size(), 1u);
    ExpectAllClosed(server);
    EXPECT_LT(server.bytesSent(), 64 * 1024 * 1024) << "what the system buffers, and no more";
}

TEST_F(UpdateCheck, WaitsNoLongerThanTheTimeOut)
{
    EXPECT_EQ(updateTimeOut, 4s) << "unless another is handed in";
    const WebServer silent([](const QString &) { return QByteArray(); });
    const PromptScript script;
    Check(silent.Address(), 300ms);
    EXPECT_EQ(silent.requests().size(), 1);
    EXPECT_TRUE(script.boxes().empty());
    ExpectAllClosed(silent);
}

TEST_F(UpdateCheck, TakesWhatCameOfAnAnswerWithoutEnd)
{
    const WebServer server(
        [](const QString &) { return "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n2.0.0"_ba; },
        WebServer::After::staysOpen);
    const PromptScript script({u"No"_s});
    Check(server.Address(), 300ms);
    EXPECT_EQ(script.boxes().size(), 1u);
    ExpectAllClosed(server);
}

TEST_F(UpdateCheck, SaysNothingWhereNobodyAnswers)
{
    QTcpSocket holder; // of a port at which nobody listens
    ASSERT_TRUE(holder.bind(QHostAddress::LocalHost));
    const QString closed = u"http://127.0.0.1:%1"_s.arg(holder.localPort());
    for (const QString &site : {closed, u"http://vellumo.invalid"_s, u"http://"_s, u""_s,
                                u"none:nothing"_s, u"file:///etc"_s}) {
        SCOPED_TRACE(site.toStdString());
        const PromptScript script;
        Check(site, 1s);
        EXPECT_TRUE(script.boxes().empty());
    }
}

TEST_F(UpdateCheck, FollowsARedirection)
{
    const WebServer server([](const QString &path) {
        if (path == u"/vmversionlog")
            return "HTTP/1.1 302 Found\r\nLocation: /elsewhere\r\nContent-Length: 5\r\n\r\n0.0.0"_ba;
        return path == u"/elsewhere" ? Page("1.2.0") : Page("0.0.0");
    });
    const PromptScript script({u"Yes"_s});
    Check(server.Address());
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_EQ(script.boxes().size(), 1u);
    EXPECT_EQ(m_opened, QStringList{server.Address() + u"/download"_s});
}

TEST_F(UpdateCheck, LeavesACircleOfRedirections)
{
    const WebServer server([](const QString &) {
        return "HTTP/1.1 302 Found\r\nLocation: /vmversionlog\r\nContent-Length: 5\r\n\r\n9.9.9"_ba;
    });
    const PromptScript script;
    Check(server.Address());
    EXPECT_GT(server.requests().size(), 1);
    EXPECT_TRUE(script.boxes().empty());
    ExpectAllClosed(server);
}

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

TEST(Site, IsAWebAddressWithoutASlashAtItsEnd)
{
    const QUrl site(SiteAddress());
    EXPECT_TRUE(site.isValid() && site.scheme().startsWith(u"http"_s) && !site.host().isEmpty());
    EXPECT_FALSE(SiteAddress().endsWith(u'/'));
}

TEST_F(UpdateCheck, GoesThroughTheProxyOfTheSystem)
{
    const WebServer proxy([](const QString &) { return Page("1.1.3"); });
    QNetworkProxyFactory::setUseSystemConfiguration(false); // not only by the toolkit's default
    qputenv("http_proxy", proxy.Address().toLatin1());
    const PromptScript script({u"No"_s});
    Check(u"http://vellumo.invalid"_s);
    qunsetenv("http_proxy");
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    ASSERT_EQ(proxy.requests().size(), 1);
    EXPECT_TRUE(proxy.requests().front().startsWith(u"GET http://vellumo.invalid/vmversionlog "));
    EXPECT_EQ(script.boxes().size(), 1u);
}

} // namespace
