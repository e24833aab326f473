#include "ui/about/help_browser.h"

#include "help/html_text.h"
#include "ui/common/contrast.h"

#include <QEvent>
#include <QImage>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

const QString helpScheme = u"help"_s;

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false); // where one leads is for the window to decide
    document()->setDocumentMargin(12);
    ColourLinks();
}

void HelpBrowser::ShowPage(const QString &page)
{
    setSource(AddressOf(page));
}

void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    ColourLinks();
    if (!source().isEmpty())
        reload();
}

/// Of pages that are loaded from now on; the palette's own colour may be hard to read.
void HelpBrowser::ColourLinks()
{
    const QColor ink =
        Legible(palette().color(QPalette::Link), {palette().color(QPalette::Base)}, textContrast);
    document()->setDefaultStyleSheet(u"a[href]{color:%1}"_s.arg(ink.name()));
}

QVariant HelpBrowser::loadResource(int type, const QUrl &url)
{
    // The base class's own way, to look on disk, is never taken.
    const QString name = NameIn(url);
    if (!m_file || name.isEmpty())
        return {};
    const auto bytes = m_file->Object(name);
    if (type == QTextDocument::ImageResource)
        return bytes ? QImage::fromData(*bytes) : QImage();
    if (!bytes)
        return u"<p>%1</p>"_s.arg(bytes.error().text.toHtmlEscaped());
    return DecodeHtml(*bytes);
}

QUrl HelpBrowser::AddressOf(const QString &page)
{
    // With a scheme and a root, a link that is relative to its page resolves as in the file.
    const qsizetype anchor = page.indexOf(u'#');
    QUrl address;
    address.setScheme(helpScheme);
    address.setPath(u'/' + (anchor < 0 ? page : page.first(anchor)));
    if (anchor >= 0)
        address.setFragment(page.sliced(anchor + 1));
    return address;
}

QString HelpBrowser::NameIn(const QUrl &address)
{
    // Pages made for the platform's viewer may name the file as well: ms-its:some.chm::/page.html.
    const QString path = address.path();
    const qsizetype inner = path.indexOf("::/"_L1);
    const bool isWeb = address.scheme().startsWith("http"_L1);
    if (inner >= 0 && !isWeb)
        return path.sliced(inner + 3);
    return address.scheme() == helpScheme && path.startsWith(u'/') ? path.sliced(1) : QString();
}

} // namespace vellumo
