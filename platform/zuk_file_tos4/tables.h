#pragma once
// The tables of a grid file, as docs/pgrid.md has them.

#include <string>
#include <vector>

#include "platform/zuk_file_tos4/database.h"
#include "platform/zuk_file_tos4/grid_head.h"

namespace zu::platform {

/// Whether a file begins as a grid file does. Looks at its first bytes alone.
bool is_pgrid(const std::string& path);
/// Throws `pgrid_failure` unless it does and may be opened without anything appearing beside it.
void check_first_bytes(const std::string& path);

void make_tables(database& base);
/// All of these throw `pgrid_failure` at the first thing that cannot be.
void check_tables(database& base, const std::string& path);
grid_head read_head(database& base);
std::vector<grid_property> read_properties(database& base, const grid_head& head);

void store_head(database& base, const grid_head& head);
void store_property(database& base, const grid_property& property);

}  // namespace zu::platform
