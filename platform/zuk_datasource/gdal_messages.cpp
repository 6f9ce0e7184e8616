#include "platform/zuk_datasource/gdal_messages.h"

#include <cpl_error.h>

namespace zu::platform {

struct message_sink {
  static void CPL_STDCALL take(CPLErr level, CPLErrorNum, const char* text) {
    auto* messages = static_cast<gdal_messages*>(CPLGetErrorHandlerUserData());
    if (level >= CE_Failure && messages->first_failure_.empty() && text != nullptr)
      messages->first_failure_ = text;
  }
};

namespace {

void erase_all(std::string& text, const std::string& part) {
  if (part.empty()) return;
  for (std::size_t at; (at = text.find(part)) != std::string::npos;) text.erase(at, part.size());
}

}  // namespace

gdal_messages::gdal_messages() { CPLPushErrorHandlerEx(message_sink::take, this); }
gdal_messages::~gdal_messages() { CPLPopErrorHandler(); }

std::string gdal_messages::reason(const std::string& file, const std::string& otherwise) const {
  std::string text = first_failure_;
  std::string base = file.substr(file.find_last_of('/') + 1);
  for (const std::string& name : {file, base})
    if (name.size() > 3)
      for (const char* frame : {"'|'", "`|'", "\"|\"", "|: ", "|, ", "|"}) {
        std::string framed = frame;
        erase_all(text, framed.replace(framed.find('|'), 1, name));
      }
  for (char& c : text)
    if (c == '\n' || c == '\r' || c == '\t') c = ' ';
  std::size_t first = text.find_first_not_of(" :,");
  std::size_t last = text.find_last_not_of(" :,.");
  return first == std::string::npos || last < first ? otherwise
                                                    : text.substr(first, last - first + 1);
}

}  // namespace zu::platform
