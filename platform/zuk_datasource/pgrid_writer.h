#pragma once
// Any source into a grid file.

#include <string>

#include "zu/handle.h"
#include "zu/platform/zuk_datasource.h"

namespace zu::platform {

/// As zu_datasource_write_pgrid_w; false if stopped, `pgrid_failure` for a reason.
bool write_pgrid(handle source, const std::wstring& path, const Tzu_pgrid_options& options,
                 bool (*progress)(double share, void* user), void* user);

}  // namespace zu::platform
