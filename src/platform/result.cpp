#include "platform/result.h"

using namespace Qt::StringLiterals;

namespace vellumo {

QString Describe(const Error &error)
{
    QString where = error.file;
    if (error.line > 0)
        where += u":%1"_s.arg(error.line);
    return where.isEmpty() ? error.text : where + ": "_L1 + error.text;
}

} // namespace vellumo
