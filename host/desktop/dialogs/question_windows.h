#pragma once
// Files and colours for which the platform and the bundles ask, as dialogs.

#include <QStringList>
#include <string_view>

namespace zu::desktop {

/// While it lives, questions of the platform for files and colours open a dialog over the window in
/// front. File dialogs begin in the folder that was used last.
class question_windows final {
 public:
  question_windows();
  ~question_windows();
  question_windows(const question_windows&) = delete;
  question_windows& operator=(const question_windows&) = delete;
};

/// The filters of "Name (*.a;*.b)|*.a;*.b|…" as Qt writes them, "Name (*.a *.b)" each. A piece
/// without its patterns is left out.
QStringList name_filters(std::wstring_view text);
/// The ending of the first pattern of such a filter, without the point; none for "*" and "*.*".
QString ending_of(const QString& name_filter);

}  // namespace zu::desktop
