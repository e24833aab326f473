#pragma once

namespace vellumo {

/// Whether standard error goes to a terminal, where a person may look on.
bool StandardErrorIsTerminal();

/// From here on standard input and output carry bytes as they are, also where the platform would
/// make other line ends of them.
void TakeStreamsAsBytes();

} // namespace vellumo
