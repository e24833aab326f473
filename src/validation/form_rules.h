#pragma once

#include <QString>

namespace vellumo {

// What the form information and the size of the question list must satisfy before a Vellsheet can
// be created. Every rule stops at its first failing check: then it sets the flag and stores that
// check's message. A rule that passes leaves both as they were, so one flag can serve several.
//
// The rules of texts first take the blanks (U+0020 alone) from both ends of the text, and leave it
// so whether or not it passes. Lengths are counted in UTF-16 units after that.

void ValidateAppName(QString &name, bool &failed, QString &message);

/// An empty version passes.
void ValidateAppVersion(QString &version, bool &failed, QString &message);

/// An empty description passes.
void ValidateAppDesc(QString &description, bool &failed, QString &message);

/// The data folder lies on the PC that collects the data: a path from the root of a drive, such as
/// C:\Data, on any platform. Nothing is looked up on disk.
void ValidateAppDir(QString &folder, bool &failed, QString &message);

void ValidateQuestionCount(int count, bool &failed, QString &message);

} // namespace vellumo
