// A page of the help as the help window shows it.

#include "fuzz/require.h"
#include "help/html_text.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 1;
    static char name[] = "help_page";
    static char *arguments[] = {name, nullptr};
    // Never deleted: what the fonts are read into would count as leaked then.
    static const auto *application = new QGuiApplication(count, arguments);
    Require(application->platformName() == QStringLiteral("offscreen"), "no screen is needed");

    QTextDocument page;
    page.setHtml(DecodeHtml(BytesOf(data, size)));
    page.setTextWidth(570);
    Require(page.size().width() >= 0, "it is laid out");
    Require(page.find(QStringLiteral("no such word")).isNull() ||
                page.toPlainText().contains(QStringLiteral("no such word"), Qt::CaseInsensitive),
            "it can be searched");
    return 0;
}
