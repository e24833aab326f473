#pragma once

#include "ui/main/update_check.h"

#include "support/print.h"
#include "ui/main/web_server.h"
#include "ui/support/prompt_script.h"

#include <QTest>
#include <gtest/gtest.h>

namespace vellumo {

/// The look of version 1.1.2 for a newer one, at a site of the test's.
class UpdateCheck : public testing::Test
{
protected:
    UpdateCheck()
    {
        // The proxies of whoever runs the tests do not lead to the loopback.
        for (const char *name :
             {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"})
            qunsetenv(name);
        m_environment.version = QStringLiteral("1.1.2");
        m_environment.open = [this](const QString &target) { m_opened += target; };
    }

    /// With the time-out of a day, one that must end by itself: no test outlasts it.
    void Check(const QString &site, std::chrono::milliseconds timeOut = std::chrono::hours(24))
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

} // namespace vellumo
