#pragma once
// What dialogs keep in the settings.

#include <QString>
#include <QStringList>

namespace zu::desktop {

/// The value under a name; empty if there is none or the settings file is refused: that is said
/// where settings are changed.
QString kept_text(const char* name);
/// Throws host::failure.
void keep_text(const char* name, const QString& value);

/// A list under a name, the last one used first.
QStringList kept_list(const char* name);
/// Throws host::failure. Texts with "|" are left out.
void keep_list(const char* name, const QStringList& texts);
/// Puts a text to the front of a list of at most `most`. Nothing if the settings cannot be written:
/// a list of what was used is no reason to stop a person.
void keep_used(const char* name, const QString& text, int most = 8);

}  // namespace zu::desktop
