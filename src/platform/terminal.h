#pragma once

namespace vellumo {

/// Whether standard error goes to a terminal, where a person may look on.
bool StandardErrorIsTerminal();

} // namespace vellumo
