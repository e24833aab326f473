#include "editing/built_in_names.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QStringList ReadNames(const QString &resource)
{
    QFile file(resource);
    [[maybe_unused]] const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    return QString::fromLatin1(file.readAll()).trimmed().split(u';');
}

} // namespace

const QStringList &StateNames()
{
    static const QStringList names = ReadNames(u":/lists/states.txt"_s);
    return names;
}

const QStringList &CountryNames()
{
    static const QStringList names = ReadNames(u":/lists/countries.txt"_s);
    return names;
}

} // namespace vellumo
