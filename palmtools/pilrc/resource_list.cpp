#include "palmtools/pilrc/resource_list.h"

#include "palmtools/common/files.h"
#include "palmtools/pilrc/resource_types.h"

#include <string>
#include <utility>

namespace palmtools {
namespace {

constexpr std::uint64_t largestSafeResource = 65000; ///< a larger one may not be transferred
constexpr std::size_t mostResources = 65535;         ///< that a database can count

/// What the resource is called in a message.
std::string NameOf(FourBytes type, std::uint16_t number)
{
    return "resource '" + ShownType(type) + "' " + std::to_string(number);
}

/// Whoever wrote the script knows forms and string tables by these names.
std::string NameAsRepeated(FourBytes type, std::uint16_t number)
{
    if (type == formType)
        return "form " + std::to_string(number);
    if (type == stringTableType)
        return "string table " + std::to_string(number);
    return NameOf(type, number);
}

void CheckSize(ScriptReader &words, FourBytes type, std::uint16_t number, std::uint64_t size)
{
    if (size <= largestSafeResource)
        return;
    const std::string told = NameOf(type, number) + " has " + std::to_string(size) + " bytes";
    if (size > largestResource)
        words.Fail(told + ", more than 65535");
    words.Warn(told);
}

} // namespace

void ResourceList::Admit(ScriptReader &words, FourBytes type, std::uint16_t number,
                         std::uint64_t size)
{
    if (!m_known.insert(KeyOf(type, number)).second)
        words.Fail(NameAsRepeated(type, number) + " is there twice");
    if (m_known.size() > mostResources)
        words.Fail("the script has more than 65535 resources");

    CheckSize(words, type, number, size);
    m_size += size;
    if (m_size > largestFile)
        words.Fail("the resources are too large together for one file");
}

void ResourceList::Add(ScriptReader &words, Resource resource)
{
    Admit(words, resource.type, resource.number, resource.bytes.size());
    Keep(std::move(resource));
}

void ResourceList::Keep(Resource resource)
{
    m_resources.push_back(std::move(resource));
}

} // namespace palmtools
