#pragma once

#include "palmtools/common/options.h"
#include "palmtools/common/result.h"
#include "palmtools/pilrc/diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// What the command line asks for.
struct PilrcCall {
    Wish wish = Wish::work;
    std::string script = {};
    std::string output = {};
    std::vector<std::string> folders = {}; ///< in which the script is looked for
    bool quiet = false;
    MessageStyle style = MessageStyle::gnu;
};

/// Reads the arguments that follow the name of the program.
Result<PilrcCall> ReadPilrcCall(const std::vector<std::string> &arguments);

/// Where the resource file goes. Both are as on the command line; "." asks for the usual place.
/// A name without an ending gets one, but for what is there to be written into, such as a device.
std::string ResourceFileOf(std::string_view script, std::string_view asked);

} // namespace palmtools
