#pragma once

#include "model/project.h"
#include "model/texts.h"

#include <vector>

namespace vellumo {

/// What ends a value in a project file, even in the middle of it: WriteProject writes it as it
/// stands.
inline constexpr QLatin1StringView valueEnd{"]]>"};

/// A text of a project that holds valueEnd, so that the file cannot be opened again.
struct UnreadableText {
    TextPlace place;
    QString text;
};

/// All of them, in the order of the file. Items that share an Id stand for the first question with
/// that Id.
std::vector<UnreadableText> FindUnreadableTexts(const Project &project);

/// What comes of such a text, in a clause.
QString UnreadableReason();

/// What the user is told after such a project was saved, with the texts that are the cause, ten at
/// most; empty where there is none.
QString UnreadableNotice(const Project &project);

} // namespace vellumo
