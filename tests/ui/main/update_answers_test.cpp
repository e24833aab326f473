#include "ui/main/update_check_run.h"

#include <QTcpSocket>

using namespace Qt::StringLiterals;
using namespace vellumo;
using namespace std::chrono_literals;

namespace {

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

} // namespace
