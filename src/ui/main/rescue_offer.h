#pragma once

#include "ui/main/rescue_copy.h"

class QWidget;

namespace vellumo {

/// Unsaved work of a designer that was killed.
struct RescuedWork {
    RescueCopy copy;
    Snapshot snapshot;
};

/// Offers the rescue copies that were left, one box after the other, the latest first: what the
/// user wants to open is the outcome, and the others wait for the next start; what the user does
/// not want is removed. Copies that cannot be read are left as they are.
std::optional<RescuedWork> OfferRescuedWork(QWidget *window, const QString &stateFolder);

} // namespace vellumo
