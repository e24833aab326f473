#include "ui/main/site.h"
#include "ui/main/update_check_run.h"

#include <QNetworkProxyFactory>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The value of a header whose name is compared as HTTP does, in either case; null without one.
QString HeaderOf(const QString &request, const QString &name)
{
    for (const QString &line : request.split(u"\r\n"_s))
        if (line.startsWith(name + u": "_s, Qt::CaseInsensitive))
            return line.sliced(name.size() + 2);
    return {};
}

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
