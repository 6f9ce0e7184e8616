#include "platform/zuk_file_tos4/database.h"

#include <sys/stat.h>

#include <cmath>

#include <sqlite3.h>

namespace zu::platform {
namespace {

constexpr int wait_for_others = 5000;  // milliseconds

std::string reason_of(int code, sqlite3* base) {
  switch (code & 0xFF) {
    case SQLITE_NOTADB:
      return "is no grid file";
    case SQLITE_CORRUPT:
      return "is damaged";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "is being written by another program";
    case SQLITE_FULL:
      return "no space left on the device";
    case SQLITE_READONLY:
      if (base != nullptr && sqlite3_extended_errcode(base) == SQLITE_READONLY_ROLLBACK)
        return "an edit of it was broken off, and it cannot be written to undo that";
      return "cannot be written";
    case SQLITE_TOOBIG:
      return "holds something too large";
    case SQLITE_NOMEM:
      return "not enough memory";
    case SQLITE_CANTOPEN:
      return "cannot be opened";
    default:
      return base != nullptr ? sqlite3_errmsg(base) : sqlite3_errstr(code);
  }
}

void check(int code, sqlite3* base) {
  if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
    throw pgrid_failure(reason_of(code, base));
}

[[noreturn]] void wrong_type() { throw pgrid_failure("holds a value of a wrong type"); }

// SQLite gives some names a meaning of their own; a path that begins with a folder is always a
// path.
std::string plain_path(const std::string& path) { return path[0] == '/' ? path : "./" + path; }

// Undoing writes, which one who reads may not. Without a journal beside the file there is nothing
// to undo; one that nobody may undo is met again by the first read.
void undo_broken_edit(const std::string& path, access mode) {
  struct stat status;
  if (mode != access::read || stat((path + "-journal").c_str(), &status) != 0) return;
  try {
    database(path, access::edit).number("SELECT count(*) FROM sqlite_schema");
  } catch (const pgrid_failure&) {
  }
}

}  // namespace

statement::statement(sqlite3* base, const char* sql) : base_(base) {
  check(sqlite3_prepare_v2(base, sql, -1, &handle_, nullptr), base);
}

statement::~statement() { sqlite3_finalize(handle_); }

statement& statement::bind(int index, std::int64_t value) {
  check(sqlite3_bind_int64(handle_, index, value), base_);
  return *this;
}
statement& statement::bind(int index, double value) {
  check(sqlite3_bind_double(handle_, index, value), base_);
  return *this;
}
statement& statement::bind(int index, std::string_view text) {
  check(
      sqlite3_bind_text64(handle_, index, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8),
      base_);
  return *this;
}
statement& statement::bind(int index, std::span<const std::byte> blob) {
  check(sqlite3_bind_blob64(handle_, index, blob.data(), blob.size(), SQLITE_STATIC), base_);
  return *this;
}
statement& statement::bind_null(int index) {
  check(sqlite3_bind_null(handle_, index), base_);
  return *this;
}

bool statement::step() {
  int code = sqlite3_step(handle_);
  check(code, base_);
  return code == SQLITE_ROW;
}

void statement::run() {
  while (step()) {
  }
  reset();
}

void statement::reset() {
  sqlite3_reset(handle_);
  sqlite3_clear_bindings(handle_);
}

bool statement::is_null(int column) const {
  return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

std::int64_t statement::integer(int column) const {
  if (sqlite3_column_type(handle_, column) != SQLITE_INTEGER) wrong_type();
  return sqlite3_column_int64(handle_, column);
}

double statement::real(int column) const {
  int type = sqlite3_column_type(handle_, column);
  double value = sqlite3_column_double(handle_, column);
  if ((type != SQLITE_FLOAT && type != SQLITE_INTEGER) || !std::isfinite(value)) wrong_type();
  return value;
}

std::string statement::text(int column, std::size_t longest) const {
  if (sqlite3_column_type(handle_, column) != SQLITE_TEXT) wrong_type();
  auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
  if (text == nullptr) throw pgrid_failure("not enough memory");
  std::string out(text, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column)));
  if (out.size() > longest) throw pgrid_failure("holds a text that is too long");
  return out.substr(0, out.find('\0'));
}

std::span<const std::byte> statement::blob(int column) const {
  if (sqlite3_column_type(handle_, column) != SQLITE_BLOB) wrong_type();
  auto* bytes = static_cast<const std::byte*>(sqlite3_column_blob(handle_, column));
  auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_, column));
  if (bytes == nullptr && size > 0) throw pgrid_failure("not enough memory");
  return {bytes, size};
}

database::database(const std::string& path, access mode) : mode_(mode) {
  undo_broken_edit(path, mode);
  int flags = mode == access::read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  int code = sqlite3_open_v2(plain_path(path).c_str(), &base_, flags, nullptr);
  try {
    check(code, base_);
    configure();
    if (mode != access::read && sqlite3_db_readonly(base_, "main") != 0)
      throw pgrid_failure("cannot be written");
  } catch (...) {
    sqlite3_close_v2(base_);
    throw;
  }
}

database::~database() { sqlite3_close_v2(base_); }

// What a file says must neither run nor grow: no code of its schema, nothing longer than the
// largest tile, and no memory map that a file cut short would turn into a crash.
void database::configure() {
  sqlite3_extended_result_codes(base_, 0);
  sqlite3_busy_timeout(base_, wait_for_others);
  static constexpr int off[] = {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER,
                                SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION};
  check(sqlite3_db_config(base_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr), base_);
  for (int option : off) check(sqlite3_db_config(base_, option, 0, nullptr), base_);
  static constexpr int limits[][2] = {
      {SQLITE_LIMIT_LENGTH, 16 << 20},   {SQLITE_LIMIT_SQL_LENGTH, 100000},
      {SQLITE_LIMIT_COLUMN, 64},         {SQLITE_LIMIT_EXPR_DEPTH, 50},
      {SQLITE_LIMIT_COMPOUND_SELECT, 4}, {SQLITE_LIMIT_VDBE_OP, 25000},
      {SQLITE_LIMIT_ATTACHED, 0},        {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
      {SQLITE_LIMIT_WORKER_THREADS, 0}};
  for (auto [limit, value] : limits) sqlite3_limit(base_, limit, value);
  run("PRAGMA mmap_size = 0");
  run("PRAGMA cell_size_check = ON");
  run("PRAGMA temp_store = MEMORY");
  if (mode_ == access::build) {
    run("PRAGMA journal_mode = MEMORY");  // OFF is refused to a defensive connection
    run("PRAGMA synchronous = OFF");
    run("PRAGMA locking_mode = EXCLUSIVE");
  } else if (mode_ == access::edit) {
    // A file of its own next to the grid for the time of an edit, and none between edits.
    run("PRAGMA journal_mode = DELETE");
    run("PRAGMA synchronous = FULL");
  }
}

void database::run(const char* sql) { statement(base_, sql).run(); }

std::int64_t database::number(const char* sql) {
  statement asked(base_, sql);
  if (!asked.step()) throw pgrid_failure("lacks a row");
  return asked.integer(0);
}

bool database::in_transaction() const { return sqlite3_get_autocommit(base_) == 0; }

}  // namespace zu::platform
