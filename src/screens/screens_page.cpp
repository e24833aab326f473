#include "screens/screens_page.h"

#include "screens/page_elements.h"
#include "screens/screen_article.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QByteArray StyleSheet()
{
    QFile file(u":/screens.css"_s);
    [[maybe_unused]] const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    return file.readAll();
}

void WriteMeta(QXmlStreamWriter &page, QLatin1StringView attribute, QLatin1StringView value)
{
    page.writeEmptyElement("meta"_L1);
    page.writeAttribute(attribute, value);
}

void WriteHead(QXmlStreamWriter &page, const QList<DatabaseScreens> &databases)
{
    QStringList names;
    for (const DatabaseScreens &database : databases)
        names += database.name;
    page.writeStartElement("head"_L1);
    WriteMeta(page, "charset"_L1, "utf-8"_L1);
    WriteMeta(page, "http-equiv"_L1, "Content-Security-Policy"_L1);
    page.writeAttribute("content"_L1, "default-src 'none'; style-src 'unsafe-inline'"_L1);
    WriteMeta(page, "name"_L1, "viewport"_L1);
    page.writeAttribute("content"_L1, "width=device-width"_L1);
    WriteText(page, "title"_L1, u"Screens of %1"_s.arg(names.join(u", "_s)));
    page.writeStartElement("style"_L1);
    page.writeCharacters(u"\n"_s);      // which ends the tag before the bytes are added
    page.device()->write(StyleSheet()); // HTML reads no escapes there; ours needs none
    page.writeEndElement();
    page.writeEndElement();
}

QString Summary(const DatabaseScreens &database)
{
    const qsizetype count = database.screens.size();
    QStringList parts;
    if (!database.version.isEmpty())
        parts += u"Version "_s + database.version;
    parts += count == 1 ? u"1 screen"_s : u"%1 screens"_s.arg(count);
    if (database.created.isValid())
        parts += u"made "_s + database.created.toString(u"yyyy-MM-dd HH:mm"_s);
    return parts.join(u" · "_s);
}

void WriteHeading(QXmlStreamWriter &page, const DatabaseScreens &database)
{
    page.writeStartElement("header"_L1);
    WriteText(page, "h1"_L1, database.name);
    WriteText(page, "p"_L1, Summary(database));
    if (!database.description.isEmpty())
        WriteText(page, "p"_L1, database.description);
    if (!database.misfit.isEmpty())
        WriteText(page, "p"_L1, database.misfit, "misfit"_L1);
    for (const Finding &finding : database.findings)
        WriteText(page, "p"_L1, finding.text, "fault"_L1);
    page.writeEndElement();
}

void WriteDatabase(QXmlStreamWriter &page, const DatabaseScreens &database, int number)
{
    page.writeStartElement("section"_L1);
    WriteHeading(page, database);
    StartElement(page, "div"_L1, "screens"_L1);
    for (const Screen &screen : database.screens)
        WriteArticle(page, screen, int(database.screens.size()),
                     u"d%1-q%2"_s.arg(number).arg(screen.number));
    page.writeEndElement();
    page.writeEndElement();
}

} // namespace

QByteArray ScreensPage(const QList<DatabaseScreens> &databases)
{
    QByteArray bytes;
    QXmlStreamWriter page(&bytes);
    page.writeDTD("<!DOCTYPE html>\n"_L1);
    page.writeStartElement("html"_L1);
    page.writeAttribute("lang"_L1, "en"_L1);
    WriteHead(page, databases);
    page.writeStartElement("body"_L1);
    int number = 0;
    for (const DatabaseScreens &database : databases)
        WriteDatabase(page, database, ++number);
    page.writeEndDocument();
    return bytes;
}

} // namespace vellumo
