#include "designer/orderly_end.h"

#include <QCoreApplication>

#include <chrono>

namespace vellumo {

SignalWatch::End EndInEventLoop(std::function<void()> first)
{
    return [first = std::move(first)](int signal) {
        const auto end = [first, signal] {
            first();
            EndBySignal(signal);
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), end, Qt::QueuedConnection);
        std::thread([signal] {
            std::this_thread::sleep_for(std::chrono::seconds(5));
            EndBySignal(signal);
        }).detach();
    };
}

} // namespace vellumo
