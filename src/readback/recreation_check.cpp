#include "readback/recreation_check.h"

#include "readback/database_content.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// Nothing else is in a file: offsets and size follow from the resources.
auto HeaderOf(const PalmDatabase &database)
{
    return std::tuple(database.name, database.type, database.creator, database.version,
                      database.attributes & ~DatabaseAttribute::backup);
}

bool IsSame(const ResourceKey &one, const ResourceKey &other)
{
    return one.type == other.type && one.number == other.number;
}

/// Null where the database has no resource of this key.
const PalmResource *ResourceIn(const PalmDatabase &database, const ResourceKey &key)
{
    const auto found =
        std::ranges::find_if(database.resources, [&key](const PalmResource &resource) {
            return IsSame(resource.Key(), key);
        });
    return found == database.resources.end() ? nullptr : &*found;
}

Finding ResourceFinding(const PalmResource &resource, QLatin1StringView fate)
{
    return {"recreated-resource"_L1,
            {"resources"_L1},
            u"Created again, the resource %1 %2."_s.arg(Describe(resource.Key()), fate)};
}

} // namespace

QList<Finding> CheckRecreation(const PalmDatabase &recreated, const PalmDatabase &database)
{
    QList<Finding> findings;
    if (HeaderOf(recreated) != HeaderOf(database))
        findings.append({"recreated-header"_L1,
                         {"database header"_L1},
                         u"Created again, the header of the database is another one."_s});
    for (const PalmResource &resource : database.resources) {
        const PalmResource *again = ResourceIn(recreated, resource.Key());
        if (!again)
            findings.append(ResourceFinding(resource, "is missing"_L1));
        else if (again->data != resource.data && !IsSame(resource.Key(), identifierKey))
            findings.append(ResourceFinding(resource, "is another one"_L1));
    }
    for (const PalmResource &resource : recreated.resources) {
        if (!ResourceIn(database, resource.Key()))
            findings.append(ResourceFinding(resource, "is added"_L1));
    }
    return findings;
}

QList<Finding> CheckRecreatedOrder(const PalmDatabase &database)
{
    if (database.disorder.isEmpty())
        return {};
    return {{"recreated-order"_L1,
             {"resources"_L1},
             u"Created again, its bytes differ because the resource %1 in it."_s.arg(
                 database.disorder)}};
}

} // namespace vellumo
