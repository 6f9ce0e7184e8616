#pragma once
// Pictures as files.

#include <cstdint>
#include <string>
#include <vector>

#include "zu/platform/zuk_prg.h"

namespace zu::platform {

struct picture {
  std::uint64_t nx, ny;
  std::vector<std::uint8_t> rgba;  ///< the top row first, straight alpha
};

/// Writes PNG or TIFF by the ending of `path`, whole or not at all. `box` (may be null) and
/// `projection` (may be empty) are the georeference. Throws `write_failure`.
void save_picture(picture& drawn, const std::string& path, const Tzu_box_d2* box,
                  const std::string& projection);

}  // namespace zu::platform
