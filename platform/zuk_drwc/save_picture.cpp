#include "platform/zuk_drwc/save_picture.h"

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <cerrno>
#include <csignal>
#include <memory>

#include "platform/zuk_drwc/save_document.h"
#include "platform/zuk_io/atomic_file.h"

namespace zu::platform {
namespace {

struct format {
  const char* driver;
  std::vector<const char*> options;
  bool georeferenced;
};

format format_of(const std::string& path) {
  std::string ending = lower_ending(path);
  // A light compression: pictures of maps shrink little more, and the writing is the wait.
  if (ending == ".png") return {"PNG", {"ZLEVEL=3"}, false};
  if (ending == ".tif" || ending == ".tiff")
    return {"GTiff", {"COMPRESS=DEFLATE", "PREDICTOR=2", "TILED=YES", "BIGTIFF=IF_SAFER"}, true};
  throw write_failure("unknown kind of picture: " + (ending.empty() ? "no ending" : ending));
}

/// While it lives GDAL prints nothing, and the first failure is kept: later ones only follow from
/// it.
class gdal_failure {
 public:
  gdal_failure() { CPLPushErrorHandlerEx(&gdal_failure::hear, this); }
  ~gdal_failure() { CPLPopErrorHandler(); }
  gdal_failure(const gdal_failure&) = delete;
  gdal_failure& operator=(const gdal_failure&) = delete;

  bool happened() const { return happened_; }
  [[noreturn]] void raise() const {
    bool full = error_ == ENOSPC || error_ == EFBIG || error_ == EDQUOT ||
                said_.find("No space left") != std::string::npos ||
                said_.find("File too large") != std::string::npos;
    if (full) throw write_failure("no space left on the device");
    throw write_failure(said_.empty() ? "the picture could not be written" : said_);
  }

 private:
  static void CPL_STDCALL hear(CPLErr grade, CPLErrorNum, const char* text) {
    int error = errno;
    auto* self = static_cast<gdal_failure*>(CPLGetErrorHandlerUserData());
    if (grade < CE_Failure || self->happened_) return;
    self->happened_ = true;
    self->error_ = error;
    self->said_ = text;
  }

  bool happened_ = false;
  int error_ = 0;
  std::string said_;
};

std::unique_ptr<GDALDataset> in_memory(picture& drawn) {
  auto* driver = GetGDALDriverManager()->GetDriverByName("MEM");
  std::unique_ptr<GDALDataset> set(driver->Create(
      "", static_cast<int>(drawn.nx), static_cast<int>(drawn.ny), 0, GDT_Byte, nullptr));
  for (int band = 0; band < 4; ++band) {
    char pointer[64];
    int length = CPLPrintPointer(pointer, drawn.rgba.data() + band, sizeof pointer);
    pointer[length] = '\0';
    CPLStringList options;
    options.SetNameValue("DATAPOINTER", pointer);
    options.SetNameValue("PIXELOFFSET", "4");
    options.SetNameValue("LINEOFFSET", std::to_string(drawn.nx * 4).c_str());
    set->AddBand(GDT_Byte, options.List());
    set->GetRasterBand(band + 1)->SetColorInterpretation(
        static_cast<GDALColorInterp>(GCI_RedBand + band));
  }
  return set;
}

void georeference(GDALDataset& set, const picture& drawn, const Tzu_box_d2& box,
                  const std::string& projection) {
  double transform[6] = {box.x0, (box.x1 - box.x0) / static_cast<double>(drawn.nx), 0, box.y1,
                         0,      -(box.y1 - box.y0) / static_cast<double>(drawn.ny)};
  set.SetGeoTransform(transform);
  OGRSpatialReference system;
  system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  if (!projection.empty() && system.SetFromUserInput(projection.c_str()) == OGRERR_NONE)
    set.SetSpatialRef(&system);
}

}  // namespace

void save_picture(picture& drawn, const std::string& path, const Tzu_box_d2* box,
                  const std::string& projection) {
  format kind = format_of(path);
  GDALAllRegister();
  atomic_file file(path);
  // A limit on the size of files is reported by the write, not by a signal.
  std::signal(SIGXFSZ, SIG_IGN);
  {
    gdal_failure failure;
    std::unique_ptr<GDALDataset> source = in_memory(drawn);
    if (kind.georeferenced && box != nullptr) georeference(*source, drawn, *box, projection);
    CPLStringList options;
    for (const char* option : kind.options) options.AddString(option);
    auto* driver = GetGDALDriverManager()->GetDriverByName(kind.driver);
    if (driver == nullptr) throw write_failure("this build of GDAL cannot write such pictures");
    CPLConfigOptionSetter no_side_file("GDAL_PAM_ENABLED", "NO", false);
    errno = 0;
    std::unique_ptr<GDALDataset> written(driver->CreateCopy(
        file.temporary().c_str(), source.get(), FALSE, options.List(), nullptr, nullptr));
    if (!written) failure.raise();
    written->FlushCache(true);
    written.reset();
    if (failure.happened()) failure.raise();
  }
  file.commit();
}

}  // namespace zu::platform
