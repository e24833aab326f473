#include "exchange/sheet_names.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vellumo {

QString SheetNames::TakeName(const QString &text)
{
    static const QRegularExpression others(u"[^A-Za-z0-9._-]"_s);
    static const QRegularExpression start(u"\\A[A-Za-z_]"_s);
    QString name = QString(text).replace(others, u"_"_s);
    if (!start.match(name).hasMatch())
        name.prepend(u'_');
    return TakeUnique(name);
}

QString SheetNames::TakeChoice(const QString &text)
{
    static const QRegularExpression blanks(u"[\\s\\p{Z}\\p{Cc}]+"_s,
                                           QRegularExpression::UseUnicodePropertiesOption);
    const QString name = QString(text).replace(blanks, u"_"_s).replace(u"${"_s, u"$_{"_s);
    return TakeUnique(name.isEmpty() ? u"_"_s : name);
}

QString SheetNames::TakeUnique(const QString &name)
{
    QString unique = name;
    for (int number = 2; m_taken.contains(unique.toLower()); ++number)
        unique = u"%1_%2"_s.arg(name).arg(number);
    m_taken += unique.toLower();
    return unique;
}

} // namespace vellumo
