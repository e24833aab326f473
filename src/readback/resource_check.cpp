#include "readback/resource_check.h"

#include "readback/database_content.h"

using namespace Qt::StringLiterals;

namespace vellumo {

void CheckForOthers(const PalmDatabase &database, qsizetype questions, QList<Finding> &findings)
{
    for (const PalmResource &resource : database.resources) {
        if (!IsResourceOf(resource.Key(), questions))
            findings.append(
                {"resource-extra"_L1,
                 {"resources"_L1},
                 u"The resource %1 does not belong here."_s.arg(Describe(resource.Key()))});
    }
}

} // namespace vellumo
