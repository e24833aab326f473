#pragma once

#include <QByteArray>

#include <chrono>

class QUrl;

namespace vellumo {

/// The first bytes that a web server answers with, and at most so many; then the connection is
/// dropped. Empty when there is no answer, or one that tells of a failure. Waits for the end of the
/// answer, for its first bytes or for the end of the time, whichever comes first, and takes what
/// has arrived by then; events are handled meanwhile. Goes through the system's proxies, never from
/// or to a cache, and from one address to another unless that gives up encryption.
QByteArray StartOfAnswer(const QUrl &address, qint64 size, std::chrono::milliseconds timeOut);

} // namespace vellumo
