#pragma once

#include "model/project.h"
#include "platform/result.h"

namespace vellumo {

/// What the user is told of a file that cannot be read as a project, whatever the reason.
inline constexpr QLatin1StringView invalidProjectFile{"This file is not a valid VMP file."};

/// What tells the bytes of a file from others; empty = unknown.
using Fingerprint = QByteArray;
/// Their SHA-256.
Fingerprint FingerprintOf(const QByteArray &bytes);

/// The project that a file holds; the cursor stands on its first question. The error has file, line
/// and reason, for those who want more than invalidProjectFile. Where a fingerprint is asked for,
/// it is that of the bytes that were read.
Result<Project> LoadProject(const QString &path, Fingerprint *fingerprint = nullptr);

/// Writes a project to a file. On failure an older file of that name is as it was; the error's text
/// is the platform's own or names the character that cannot be written. Where a fingerprint is
/// asked for, it is that of the bytes that were written.
Outcome SaveProject(const Project &project, const QString &path,
                    Fingerprint *fingerprint = nullptr);

/// Whether a file holds something else than when it had this fingerprint. One that is gone does
/// not, and nothing is known of an empty fingerprint.
bool HoldsSomethingElse(const QString &path, const Fingerprint &fingerprint);

} // namespace vellumo
