// A page of the help as the help window shows it.

#include "fuzz/require.h"
#include "help/html_text.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

using namespace vellumo;

/// What the fonts are read into is never given back, and not our business.
extern "C" const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 1;
    static char name[] = "help_page";
    static char *arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments);

    QTextDocument page;
    page.setHtml(DecodeHtml(BytesOf(data, size)));
    page.setTextWidth(570);
    Require(page.size().width() >= 0, "it is laid out");
    Require(page.find(QStringLiteral("no such word")).isNull() ||
                page.toPlainText().contains(QStringLiteral("no such word"), Qt::CaseInsensitive),
            "it can be searched");
    return 0;
}
