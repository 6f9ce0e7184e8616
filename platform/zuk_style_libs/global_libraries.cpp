// The libraries of the style folder and those that come with the program.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_style_libs/style_library.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_xml_data.h"

namespace fs = std::filesystem;
using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::owned;
using zu::platform::text_of;
using zu::platform::to_utf8;

using library_ptr = std::shared_ptr<Tzu_style_lib>;

struct Tzu_style_libs {
  std::vector<library_ptr> libraries;
};

namespace {

struct library_file {
  std::wstring path, name;
  std::int64_t time = 0;
  std::uint64_t size = 0;

  bool operator==(const library_file& other) const {
    return path == other.path && time == other.time && size == other.size;
  }
};

/// What the folders hold now.
struct contents {
  bool has_folder = false;
  std::vector<library_file> files;

  bool operator==(const contents& other) const {
    return has_folder == other.has_folder && files == other.files;
  }
};

/// Adds the library files of a folder by name, but for those whose name is there already.
void gather(const std::wstring& folder, contents& all) {
  std::error_code problem;
  fs::directory_iterator entries(to_utf8(folder), problem);
  if (folder.empty() || problem) return;
  all.has_folder = true;
  std::vector<library_file> found;
  for (; entries != fs::end(entries) && !problem; entries.increment(problem)) {
    std::error_code unreadable;
    library_file file{from_utf8(entries->path().native()),
                      from_utf8(entries->path().filename().native())};
    if (entries->path().extension() != "._ls" || !entries->is_regular_file(unreadable)) continue;
    auto held = [&](const library_file& other) { return other.name == file.name; };
    if (std::any_of(all.files.begin(), all.files.end(), held)) continue;
    file.time = zu_os_get_file_time(file.path.c_str());
    file.size = entries->file_size(unreadable);
    found.push_back(std::move(file));
  }
  std::sort(found.begin(), found.end(), [](const library_file& a, const library_file& b) {
    int order = zu_os_compare_ignoring_case(a.name.c_str(), b.name.c_str());
    return order != 0 ? order < 0 : a.name < b.name;
  });
  std::move(found.begin(), found.end(), std::back_inserter(all.files));
}

contents present() {
  contents all;
  gather(zu_options_get_style_libs_path(), all);
  std::wstring own = zu_options_get_own_style_libs_path();
  if (!own.empty()) gather(own + (zu_res_get_lng() == 0 ? L"/ru" : L"/en"), all);
  return all;
}

/// The library of a file, titled by its name if it has no caption; null, and the reason kept, if it
/// cannot be read.
library_ptr library_of(const library_file& file) {
  library_ptr library(zu_style_lib_create(), &zu_style_lib_destroy);
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  zu_problems_clear(file.path.c_str());
  if (!zu_xml_data_load_style_lib(xml.get(), file.path.c_str(), library.get())) {
    std::wstring reason =
        text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
    zu_problems_add(file.path.c_str(), zu_problem_open, reason.c_str());
    return nullptr;
  }
  if (library->root.caption.empty())
    library->root.caption = file.name.substr(0, file.name.rfind(L'.'));
  return library;
}

/// A file as it was read, with its library; null if it could not be read.
struct read_file {
  library_file file;
  library_ptr library;
};

/// Reads what is new in the folders; null if there are none. A library that was read once stays,
/// for whoever holds it and for a folder or language that comes back.
Tzu_style_libs* refreshed() {
  static contents last;
  static std::vector<read_file> read;
  static Tzu_style_libs shown;
  contents now = present();
  if (!(now == last)) {
    std::vector<library_ptr> libraries;
    for (const library_file& file : now.files) {
      auto same = std::find_if(read.begin(), read.end(),
                               [&](const read_file& each) { return each.file == file; });
      if (same == read.end()) same = read.insert(same, {file, library_of(file)});
      if (same->library) libraries.push_back(same->library);
    }
    shown.libraries = std::move(libraries);
    last = std::move(now);
  }
  return last.has_folder ? &shown : nullptr;
}

}  // namespace

Tzu_style_libs* zu_global_lib_styles_get_libs() {
  static char nothing = 0;
  return guarded(&nothing, static_cast<Tzu_style_libs*>(nullptr), [](char) { return refreshed(); });
}
uint64_t zu_style_libs_get_size(const Tzu_style_libs* libraries) {
  return libraries != nullptr ? libraries->libraries.size() : 0;
}
Tzu_style_lib* zu_style_libs_get_lib_ptr(Tzu_style_libs* libraries, uint64_t index) {
  return index < zu_style_libs_get_size(libraries) ? libraries->libraries[index].get() : nullptr;
}
Tzu_wstrings* zu_global_lib_styles_create_name_list() {
  Tzu_wstrings* names = zu_wstrings_create();
  guarded(zu_global_lib_styles_get_libs(), [&](const Tzu_style_libs& all) {
    for (const auto& library : all.libraries) zu_wstrings_add(names, library->root.caption.c_str());
  });
  return names;
}
