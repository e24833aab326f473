#pragma once

#include "model/project.h"
#include "model/question.h"
#include "property/random.h"

namespace vellumo {

/// What random texts are made of.
enum class Letters {
    Plain,    ///< arrive everywhere as they are
    Awkward,  ///< also those that scripts, XML or the rules have a meaning for, and line ends
    Anything, ///< also those that no project's file can hold
};

QString RandomText(Random &random, int longest, Letters letters);

/// A length that is often at a limit or next to it.
int RandomLength(Random &random, int limit);

/// A name of a type; of Awkward letters sometimes none that there is.
QString RandomType(Random &random, Letters letters);

/// Any project that can be in memory: numbers, types, texts and items of whatever kind.
Project RandomProject(Random &random, Letters letters);

/// A project as a careful person makes it: every rule of form, questions and items is kept.
Project RandomSoundProject(Random &random);

/// The text without the blanks at its ends.
QString Trimmed(QString text);

/// All that a project has, a line each, for comparison and for reading.
QStringList LinesOf(const Project &project);

} // namespace vellumo
