#pragma once
// A SQLite database of which nothing is believed.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace zu::platform {

/// Why a grid file cannot be read or written; the message does not name it.
struct pgrid_failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One prepared statement. Every failure throws `pgrid_failure`.
class statement {
 public:
  statement(sqlite3* base, const char* sql);
  ~statement();
  statement(const statement&) = delete;
  statement& operator=(const statement&) = delete;

  /// Parameters from 1.
  statement& bind(int index, std::int64_t value);
  statement& bind(int index, double value);
  statement& bind(int index, std::string_view text);
  statement& bind(int index,
                  std::span<const std::byte> blob);  ///< not copied: must outlive the run
  statement& bind_null(int index);
  bool step();   ///< true: a row is there
  void run();    ///< to its end; ready to be bound again
  void reset();  ///< also forgets what was bound

  /// Columns from 0, of the type they are read as; anything else throws.
  bool is_null(int column) const;
  std::int64_t integer(int column) const;
  double real(int column) const;  ///< finite
  std::string text(int column, std::size_t longest) const;
  std::span<const std::byte> blob(int column) const;  ///< until the next step

 private:
  sqlite3* base_;
  sqlite3_stmt* handle_ = nullptr;
};

enum class access {
  read,   ///< also in a folder that cannot be written
  edit,   ///< an ended process leaves the state before its edit or after it
  build,  ///< of a file that nobody sees yet: no journal
};

class database {
 public:
  /// Opens a regular file that exists; throws `pgrid_failure`. An edit that somebody's end broke
  /// off is undone first, whatever the mode.
  database(const std::string& path, access mode);
  ~database();
  database(const database&) = delete;
  database& operator=(const database&) = delete;

  sqlite3* get() const { return base_; }
  access mode() const { return mode_; }
  void run(const char* sql);
  std::int64_t number(const char* sql);  ///< the first column of the only row
  bool in_transaction() const;

 private:
  void configure();
  sqlite3* base_ = nullptr;
  access mode_;
};

}  // namespace zu::platform
