#include "exchange/csv_text.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool IsUtf8(QByteArrayView line)
{
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder(line);
    return !decoder.hasError();
}

} // namespace

QString FromUtf8(QByteArrayView bytes)
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8, Flag::Stateless | Flag::ConvertInitialBom)(bytes);
}

Result<QByteArray> Utf8Text(const QByteArray &bytes)
{
    const bool isMarked = bytes.startsWith(byteOrderMark);
    QByteArray text = isMarked ? bytes.sliced(byteOrderMark.size()) : bytes;
    int number = 1;
    for (qsizetype begin = 0; begin <= text.size(); ++number) {
        const qsizetype feed = text.indexOf('\n', begin);
        const qsizetype end = feed < 0 ? text.size() : feed;
        const QByteArrayView line = QByteArrayView(text).sliced(begin, end - begin);
        if (line.contains('\0'))
            return Error{u"There is a zero byte; the text must be in UTF-8."_s, {}, number};
        if (!IsUtf8(line))
            return Error{u"The text is not in UTF-8."_s, {}, number};
        begin = end + 1;
    }
    return text;
}

} // namespace vellumo
