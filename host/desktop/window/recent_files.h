#pragma once
// What a person opened last, and the other things that the window keeps in the settings.

#include <QByteArray>
#include <QStringList>

namespace zu::desktop {

/// Files and projects, the last one first. A settings file that is refused holds none.
QStringList recent_files();
/// Puts a path to the front. Throws host::failure.
void add_recent_file(const QString& path);
/// Throws host::failure.
void forget_recent_files();

/// Bytes under a name of the settings; empty if there are none or the file is refused.
QByteArray kept_bytes(const char* name);
/// Throws host::failure.
void keep_bytes(const char* name, const QByteArray& bytes);

}  // namespace zu::desktop
