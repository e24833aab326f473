#pragma once

namespace vellumo {

/// Whether so many more file descriptors can be opened.
bool DescriptorsAreLeft(int count);

} // namespace vellumo
