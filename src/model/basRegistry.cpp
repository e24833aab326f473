#include "model/basRegistry.h"

#include "platform/files.h"

#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr char firstContent[] = "<Vmdesigner>\r\n"
                                "<ShowOpenForm>1</ShowOpenForm>\r\n"
                                "</Vmdesigner>";

constexpr FileLimit settingsLimit = {64LL * 1024, "settings file"_L1};

struct Settings {
    QString showOpenForm;
    QByteArray withZero; ///< the document again, with 0 in place of the text
};

/// A slash on every platform: all of them understand it.
QString SettingsFile(const QString &applicationFolder)
{
    return applicationFolder + "/settings.ini"_L1;
}

/// Reads a document token by token and writes it anew at the same time.
class SettingsReader
{
public:
    explicit SettingsReader(const QByteArray &bytes) : m_xml(bytes), m_copy(&m_settings.withZero)
    {
        m_xml.setNamespaceProcessing(false);
    }

    /// Nothing when the document is not well-formed or lacks the element.
    std::optional<Settings> Read()
    {
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isStartElement())
                EnterElement();
            else if (m_xml.isEndElement())
                LeaveElement();
            else if (m_inside && m_xml.isCharacters())
                m_settings.showOpenForm += m_xml.text();
            else if (!m_inside)
                Copy();
        }
        if (m_xml.hasError() || !m_found)
            return std::nullopt;
        return m_settings;
    }

private:
    void EnterElement()
    {
        ++m_depth;
        if (!m_inside) {
            m_copy.writeStartElement(m_xml.qualifiedName().toString());
            m_copy.writeAttributes(m_xml.attributes());
        }
        if (m_depth == 1)
            m_rightRoot = m_xml.qualifiedName() == "Vmdesigner"_L1;
        if (m_depth != 2 || !m_rightRoot || m_found || m_xml.qualifiedName() != "ShowOpenForm"_L1)
            return;
        m_found = true;
        m_inside = true;
        m_copy.writeCharacters(u"0"_s);
    }

    void LeaveElement()
    {
        if (m_depth-- == 2)
            m_inside = false;
        if (!m_inside)
            Copy();
    }

    void Copy()
    {
        const bool noDeclaration = m_xml.isStartDocument() && m_xml.documentVersion().isEmpty();
        if (!m_xml.hasError() && !noDeclaration)
            m_copy.writeCurrentToken(m_xml);
    }

    Settings m_settings;
    QXmlStreamReader m_xml;
    QXmlStreamWriter m_copy;
    int m_depth = 0;
    bool m_rightRoot = false;
    bool m_inside = false;
    bool m_found = false;
};

std::optional<Settings> ReadSettings(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt; // a pipe would be waited for
    const Result<QByteArray> bytes = ReadWholeFile(path, settingsLimit);
    if (!bytes)
        return std::nullopt;
    return SettingsReader(*bytes).Read();
}

} // namespace

bool EnsureSettingsFile(const QString &applicationFolder)
{
    const QString path = SettingsFile(applicationFolder);
    if (QFileInfo::exists(path))
        return true;
    // Where this fails there is still no file, which is what the caller finds.
    static_cast<void>(ReplaceFile(path, firstContent));
    return false;
}

ShowOpenForm ReadShowOpenForm(const QString &applicationFolder)
{
    const QString path = SettingsFile(applicationFolder);
    if (!EnsureSettingsFile(applicationFolder))
        return {.value = static_cast<qint16>(QFileInfo::exists(path) ? 1 : -1)};

    const std::optional<Settings> settings = ReadSettings(path);
    bool isNumber = false;
    const double number = settings ? settings->showOpenForm.trimmed().toDouble(&isNumber) : 0;
    for (const qint16 known : {qint16(0), qint16(1)})
        if (isNumber && number == known)
            return {.value = known};
    return {.message = damagedSettingsFile, .file = path};
}

void HideOpenFormNextTime(const QString &applicationFolder)
{
    const QString path = SettingsFile(applicationFolder);
    std::optional<Settings> settings = ReadSettings(path);
    if (!settings)
        return;
    // XML reads each line end as LF; the file has CR LF, and one after the document.
    const QByteArray document = settings->withZero.trimmed().replace("\n", "\r\n") + "\r\n";
    if (document.size() <= settingsLimit.bytes) // or it could not be read again
        static_cast<void>(ReplaceFile(path, document));
}

} // namespace vellumo
