#include "exchange/sheet_names.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString ValidName(const QString &text)
{
    static const QRegularExpression others(u"[^A-Za-z0-9._-]"_s);
    static const QRegularExpression start(u"\\A[A-Za-z_]"_s);
    QString name = QString(text).replace(others, u"_"_s);
    if (!start.match(name).hasMatch())
        name.prepend(u'_');
    return name;
}

QString ValidChoice(const QString &text)
{
    static const QRegularExpression blanks(u"[\\s\\p{Z}\\p{Cc}]+"_s,
                                           QRegularExpression::UseUnicodePropertiesOption);
    const QString name = QString(text).replace(blanks, u"_"_s).replace(u"${"_s, u"$_{"_s);
    return name.isEmpty() ? u"_"_s : name;
}

/// Whether a name was free, which it is no longer.
bool Take(QSet<QString> &taken, const QString &name)
{
    const qsizetype before = taken.size();
    taken.insert(name.toLower());
    return taken.size() > before;
}

QString TakeUnique(QSet<QString> &taken, const QString &name)
{
    QString unique = name;
    for (int number = 2; !Take(taken, unique); ++number)
        unique = u"%1_%2"_s.arg(name).arg(number);
    return unique;
}

QStringList UniqueNames(const QStringList &texts, QString (*valid)(const QString &text),
                        QSet<QString> taken)
{
    // Those that can be kept come first: no name that is made may be one of theirs.
    QStringList names;
    for (const QString &text : texts)
        names += valid(text) == text && Take(taken, text) ? text : QString();
    for (qsizetype i = 0; i < texts.size(); ++i)
        if (names[i].isEmpty())
            names[i] = TakeUnique(taken, valid(texts[i]));
    return names;
}

} // namespace

QStringList SheetNames(const QStringList &texts, const QString &taken)
{
    return UniqueNames(texts, ValidName, {taken.toLower()});
}

QStringList ChoiceNames(const QStringList &texts)
{
    return UniqueNames(texts, ValidChoice, {});
}

} // namespace vellumo
