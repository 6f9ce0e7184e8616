#pragma once
// Why something did not work, in the language in force.

#include <QString>
#include <string>

namespace zu::desktop {

/// What went wrong, "FILE: REASON" as host and platform say it. The most frequent reasons are said
/// in the language in force, the others as they came.
QString reason_in_words(const std::string& problem);

}  // namespace zu::desktop
