#pragma once

class QIODevice;

/// Whether header and directory of a compiled help file are sound: every name and number is within
/// its chunk, no path through the index comes back to a chunk, and every object that is stored as
/// it stands lies within the file. A reader that trusts the directory is safe then.
bool IsSoundArchive(QIODevice &file);
