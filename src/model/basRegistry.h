#pragma once

#include <QString>

namespace vellumo {

// The settings file keeps one preference between runs, in the application folder or what stands
// in for it: whether the start-up chooser is shown. Nothing here ever stops a start; nothing
// switches the chooser on again but deleting the file.

inline constexpr QLatin1StringView damagedSettingsFile{"There is a bug with setting file."};

struct ShowOpenForm {
    qint16 value = -1;    ///< 1 = show the chooser, 0 = skip it, -1 = unknown, which skips it too
    QString message = {}; ///< for the user; empty = nothing to tell
    QString file = {};    ///< that the message is about
};

/// True when the file was there before; false when it was missing, and now is there, saying 1, if
/// the folder can be written. The folder comes without a separator at its end.
bool EnsureSettingsFile(const QString &applicationFolder);

/// Makes a missing file first. A file that says neither 0 nor 1, that cannot be understood, has
/// more than 64 KiB or is no regular file gives -1 and damagedSettingsFile and stays as it is; a
/// file that cannot be made gives -1 in silence.
ShowOpenForm ReadShowOpenForm(const QString &applicationFolder);

/// Sets the value to 0 and keeps what else the document holds. A file that is not understood,
/// would grow too large or cannot be replaced stays as it is.
void HideOpenFormNextTime(const QString &applicationFolder);

} // namespace vellumo
