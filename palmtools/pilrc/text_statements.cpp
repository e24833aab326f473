#include "palmtools/pilrc/text_statements.h"

#include "palmtools/pilrc/resource_types.h"

#include <utility>

namespace palmtools {

void ReadApplicationIconName(ArgumentReader &arguments, ResourceList &resources)
{
    const std::uint16_t number = arguments.Id();
    Bytes bytes;
    AppendZeroEnded(bytes, arguments.Text());
    PadToEven(bytes);
    resources.Add(arguments.words(), {applicationIconNameType, number, std::move(bytes)});
}

void ReadVersion(ArgumentReader &arguments, ResourceList &resources)
{
    const bool isNumbered = !arguments.words().NextIs(WordKind::text);
    const std::uint16_t number = isNumbered ? arguments.Id() : std::uint16_t{1};
    Bytes bytes;
    AppendZeroEnded(bytes, arguments.Text());
    resources.Add(arguments.words(), {versionType, number, std::move(bytes)});
}

} // namespace palmtools
