#include "platform/arguments.h"

#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {

#ifdef _WIN32

Outcome CheckArguments(int, const char *const[])
{
    return done; // the toolkit takes the words as characters
}

#else

namespace {

/// In ASCII, other bytes as \xNN.
QString Shown(QByteArrayView bytes)
{
    QString shown;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code > 0x20 && code < 0x7F)
            shown += QLatin1Char(byte);
        else
            shown += u"\\x%1"_s.arg(int(code), 2, 16, QChar(u'0'));
    }
    return shown;
}

} // namespace

Outcome CheckArguments(int argc, const char *const argv[])
{
    for (const QByteArrayView word : std::span(argv, static_cast<size_t>(argc)))
        if (QString::fromLocal8Bit(word).toLocal8Bit() != word)
            return Error{
                u"The name '%1' is not in the encoding of this system."_s.arg(Shown(word))};
    return done;
}

#endif

} // namespace vellumo
