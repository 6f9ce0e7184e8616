#pragma once
// Numbers as a person reads and types them: a decimal point, no groups of digits.

#include <QString>
#include <cstdint>
#include <optional>

namespace zu::desktop {

/// With so many decimals; 0: as many digits as the value needs, 15 at most. NaN is empty.
QString number_text(double value, std::uint32_t decimals = 0);
/// A finite number; a comma is taken for a point. None if the text is no number.
std::optional<double> number_of(const QString& text);

}  // namespace zu::desktop
