#pragma once
// What the window says, in the language in force. Both languages stand side by side where a text is
// used; whoever shows one says it anew on QEvent::LanguageChange.

#include <QString>

namespace zu::desktop {

enum class language { russian, english };

/// The language of windows and of the bundle's texts.
language language_in_force();
/// Puts a language in force: texts of the window, of the bundle and of Qt's own dialogs. Every
/// window gets a QEvent::LanguageChange.
void choose_language(language chosen);

/// One of two texts in UTF-8. "&" in front of a letter makes it the text's mnemonic, where the text
/// stands in a menu or on a button.
QString words(const char* english, const char* russian);

}  // namespace zu::desktop
