#include "platform/zuk_datasource/open_dataset.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>

#include <cpl_string.h>
#include <gdal_pam.h>

#include "platform/zuk_datasource/gdal_messages.h"
#include "platform/zuk_datasource/stacked_parts.h"

namespace zu::platform {

namespace {

void start_gdal() {
  static std::once_flag once;
  std::call_once(once, [] {
    GDALAllRegister();
    if (CPLGetConfigOption("GDAL_CACHEMAX", nullptr) == nullptr)
      GDALSetCacheMax64(GIntBig(256) << 20);
    // A .gz file that is only read gets no properties file beside it.
    if (CPLGetConfigOption("CPL_VSIL_GZIP_WRITE_PROPERTIES", nullptr) == nullptr)
      CPLSetConfigOption("CPL_VSIL_GZIP_WRITE_PROPERTIES", "NO");
  });
}

GDALDataset* gdal_open(const std::string& name, bool read_only) {
  unsigned flags = GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR;
  flags |= read_only ? GDAL_OF_READONLY : GDAL_OF_UPDATE;
  return GDALDataset::FromHandle(GDALOpenEx(name.c_str(), flags, nullptr, nullptr, nullptr));
}

bool starts_with(const std::string& text, const char* head) { return text.rfind(head, 0) == 0; }

bool is_path(const std::string& name) {
  return !starts_with(name, "/vsi") && !starts_with(name, "<") &&
         name.find(':') == std::string::npos;
}

// Why a name cannot be tried at all; empty if it can. A pipe would be waited for without end.
std::string obstacle(const std::string& name) {
  struct stat s {};
  if (name.empty()) return "no name is given";
  if (stat(name.c_str(), &s) == 0) {
    if (S_ISFIFO(s.st_mode) || S_ISCHR(s.st_mode) || S_ISSOCK(s.st_mode))
      return "is not a regular file";
    if (access(name.c_str(), R_OK) != 0) return "no permission to read";
    if (S_ISREG(s.st_mode) && s.st_size == 0) return "is empty";
    return "";
  }
  if (errno == EACCES) return "no permission to read";
  return is_path(name) ? "no such file" : "";
}

std::string why_not_opened(const std::string& name, bool read_only, const gdal_messages& said) {
  struct stat s {};
  bool exists = stat(name.c_str(), &s) == 0;
  if (exists && S_ISDIR(s.st_mode)) return "is a directory";
  if (!read_only && exists && access(name.c_str(), W_OK) != 0) return "no permission to write";
  const std::string& text = said.first_failure();
  if (text.find("not recognized as") != std::string::npos)
    return exists ? "not a grid that any driver knows" : "no such file or connection";
  return said.reason(name, "not a grid that any driver knows");
}

struct part {
  std::string name, description;
};

std::string list_of(const std::vector<std::string>& parts) {
  constexpr std::size_t most = 8;
  std::string out = "holds " + std::to_string(parts.size()) + " parts, name one of them: ";
  for (std::size_t i = 0; i < parts.size() && i < most; ++i) out += (i > 0 ? ", " : "") + parts[i];
  return parts.size() > most ? out + ", …" : out;
}

// The rasters in a zip archive. GDAL itself opens an archive of a single file.
std::vector<std::string> rasters_in_zip(const std::string& name) {
  constexpr int most_entries = 200;
  std::string folder = "/vsizip/{" + name + "}";
  CPLStringList entries(VSIReadDirRecursive(folder.c_str()));
  std::vector<std::string> out;
  for (int i = 0; i < entries.size() && i < most_entries; ++i) {
    std::string inside = folder + "/" + entries[i];
    if (inside.back() != '/' &&
        GDALIdentifyDriverEx(inside.c_str(), GDAL_OF_RASTER, nullptr, nullptr) != nullptr)
      out.push_back(inside);
  }
  return out;
}

// The zip archive that a name leads to, a path or /vsizip/ before one; empty if it leads to none.
std::string archive_of(const std::string& name) {
  constexpr std::size_t prefix = sizeof "/vsizip/" - 1;
  std::string path = starts_with(name, "/vsizip/") ? name.substr(prefix) : name;
  bool zip = is_path(path) && path.size() > 4 && EQUAL(path.c_str() + path.size() - 4, ".zip");
  return zip ? path : "";
}

std::vector<std::string> subdataset_names(GDALDataset& dataset) {
  std::vector<std::string> out;
  char** items = dataset.GetMetadata("SUBDATASETS");
  for (int i = 1;; ++i) {
    const char* name =
        CSLFetchNameValue(items, ("SUBDATASET_" + std::to_string(i) + "_NAME").c_str());
    if (name == nullptr) return out;
    out.emplace_back(name);
  }
}

// A container of one part stands for that part, and one whose parts lie on one another for a grid
// with a band each; of other ones the reason says how to name the parts.
dataset_ptr open_raster(const std::string& name, bool read_only, bool may_descend,
                        std::string& reason) {
  gdal_messages said;
  GDALDataset* found = gdal_open(name, read_only);
  if (found == nullptr) {
    if (std::string archive = archive_of(name); may_descend && !archive.empty()) {
      std::vector<std::string> inside = rasters_in_zip(archive);
      if (inside.size() == 1) return open_raster(inside[0], read_only, false, reason);
      if (inside.size() > 1) return reason = list_of(inside), nullptr;
    }
    reason = why_not_opened(name, read_only, said);
    return nullptr;
  }
  auto opened = std::make_shared<open_dataset>(found, name, read_only);
  if (found->GetRasterCount() > 0) return opened;
  std::vector<std::string> parts = subdataset_names(*found);
  if (parts.size() == 1 && may_descend) return open_raster(parts[0], read_only, false, reason);
  if (read_only)
    if (GDALDataset* stack = stack_parts(parts))
      return std::make_shared<open_dataset>(stack, name, read_only);
  reason = parts.empty() ? "holds no bands" : list_of(parts);
  return nullptr;
}

}  // namespace

open_dataset::open_dataset(GDALDataset* dataset, std::string path, bool read_only)
    : dataset_(dataset), path_(std::move(path)), read_only_(read_only) {
  auto* keeps_notes = dynamic_cast<GDALPamDataset*>(dataset);
  if (read_only && keeps_notes != nullptr)
    keeps_notes->SetPamFlags(keeps_notes->GetPamFlags() | GPF_NOSAVE);
}

open_dataset::~open_dataset() {
  gdal_messages quiet;
  GDALClose(GDALDataset::ToHandle(dataset_));
}

const georeference& open_dataset::place() {
  if (!place_) {
    gdal_messages quiet;
    place_ = georeference_of(*dataset_);
  }
  return *place_;
}

plain_tiff_band* open_dataset::plain_band(int index, int level) {
  auto [entry, is_new] = plain_bands_.try_emplace({index, level});
  if (is_new && read_only_)
    entry->second = plain_tiff_band::make(*dataset_, path_, index + 1, level);
  return entry->second.get();
}

dataset_ptr open_by_name(const std::string& name, bool read_only, std::string& reason) {
  start_gdal();
  reason = obstacle(name);
  if (!reason.empty()) return nullptr;
  return open_raster(name, read_only, true, reason);
}

std::string local_file_of(const std::string& name) {
  auto is_file = [](const std::string& path) {
    struct stat s {};
    return stat(path.c_str(), &s) == 0 && S_ISREG(s.st_mode);
  };
  struct stat whole {};
  if (stat(name.c_str(), &whole) == 0) return name;
  std::string rest = name;
  std::size_t quote = rest.find('"');
  if (quote != std::string::npos)
    rest = rest.substr(quote + 1, rest.find('"', quote + 1) - quote - 1);
  while (starts_with(rest, "/vsi")) {
    std::size_t slash = rest.find('/', 4);
    if (slash == std::string::npos || starts_with(rest, "/vsimem/")) return "";
    rest.erase(0, slash + 1);
    if (!rest.empty() && rest[0] == '{') rest = rest.substr(1, rest.rfind('}') - 1);
  }
  // An archive's path goes on inside the archive; a connection text has words around the path.
  for (std::size_t end = rest.size(); end > 0 && end != std::string::npos;
       end = rest.find_last_of("/:", end - 1))
    if (is_file(rest.substr(0, end))) return rest.substr(0, end);
  std::size_t colon = rest.find(':');
  return colon == std::string::npos ? "" : local_file_of(rest.substr(colon + 1));
}

}  // namespace zu::platform
