#include "readback/recovered_text.h"

#include "model/unreadable_texts.h"
#include "platform/code_page.h"

#include <QByteArray>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr struct {
    char byte, letter;
} letterEscapes[] = {
    {7, 'a'}, {8, 'b'}, {10, 'n'}, {11, 'v'}, {12, 'f'}, {13, 'r'}, {27, 'e'}, {26, 'z'},
};

bool IsControl(char byte)
{
    return static_cast<unsigned char>(byte) < ' ' && byte != '\t';
}

/// Whether the last byte of a text completes what ends a value in a project file.
bool EndsValue(QByteArrayView text)
{
    return text.endsWith(QByteArrayView(valueEnd.latin1(), valueEnd.size()));
}

/// Writes a text with escapes for all that does not arrive, or cannot be stored, as it is.
class EscapedText
{
public:
    /// Coded are bytes that stand for something else in this place of a script.
    EscapedText(QByteArrayView delivered, QByteArrayView coded)
        : m_delivered(delivered), m_coded(coded)
    {}

    QString Write()
    {
        for (qsizetype i = 0; i < m_delivered.size(); ++i)
            Append(i);
        return FromWindows1252(m_written);
    }

private:
    void Append(qsizetype i)
    {
        const char byte = m_delivered[i];
        const auto *escape =
            std::ranges::find(letterEscapes, byte, [](const auto &known) { return known.byte; });
        if (escape != std::end(letterEscapes))
            m_written.append('\\').append(escape->letter);
        else if (IsCoded(i))
            AppendCode(i);
        else if (byte == '\\')
            m_written.append("\\\\");
        else
            m_written.append(byte);
    }

    bool IsCoded(qsizetype i) const
    {
        const char byte = m_delivered[i];
        // A file has no blanks at the ends of a value.
        if (byte == ' ' && (i == 0 || i + 1 == m_delivered.size()))
            return true;
        // The script drops the backslashes before a quote.
        if (byte == '\\')
            return i + 1 < m_delivered.size() && m_delivered[i + 1] == '"';
        return IsControl(byte) || m_coded.contains(byte) || EndsValue(m_delivered.first(i + 1));
    }

    /// In as few digits as what follows leaves room for: some texts are limited in their length.
    void AppendCode(qsizetype i)
    {
        const auto isOctal = [](char byte) { return byte >= '0' && byte <= '7'; };
        const bool digitFollows = i + 1 < m_delivered.size() && isOctal(m_delivered[i + 1]);
        const auto code = static_cast<unsigned char>(m_delivered[i]);
        m_written.append('\\').append(
            QByteArray::number(code, 8).rightJustified(digitFollows ? 3 : 1, '0'));
    }

    QByteArrayView m_delivered;
    QByteArrayView m_coded;
    QByteArray m_written;
};

/// What of a text a project file can hold without an escape.
QString Holdable(QByteArrayView text)
{
    QByteArray kept;
    for (const char byte : text) {
        kept.append(byte);
        if (IsControl(byte) || EndsValue(kept))
            kept.chop(1);
    }
    return FromWindows1252(kept);
}

} // namespace

QString RecoverWording(QByteArrayView delivered)
{
    return EscapedText(delivered, "").Write();
}

QString RecoverWritten(QByteArrayView delivered)
{
    return EscapedText(delivered, "\"").Write();
}

QString RecoverVersion(QByteArrayView delivered)
{
    return EscapedText(delivered, "\" ").Write();
}

QString RecoverItem(QByteArrayView delivered, bool oneOfSeveral)
{
    // An empty one by itself would be no item; this escape stands for nothing.
    if (delivered.isEmpty() && !oneOfSeveral)
        return u"\\_"_s;
    return EscapedText(delivered, "\",").Write();
}

QString RecoverName(QByteArrayView delivered)
{
    return Holdable(delivered);
}

QString RecoverFolder(QByteArrayView delivered)
{
    constexpr qsizetype driveSize = 3; // such as C:\ with its backslash
    QString folder = Holdable(delivered);
    // The script adds none where one is left, and a file takes blanks from the end.
    const QStringView parent = QStringView(folder).chopped(folder.isEmpty() ? 0 : 1);
    if (folder.size() > driveSize && folder.endsWith(u'\\') && !parent.endsWith(u'\\') &&
        !parent.endsWith(u' '))
        folder.chop(1);
    return folder;
}

} // namespace vellumo
