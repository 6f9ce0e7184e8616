#include "src/bundle/encoding.h"

#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

namespace zu {
namespace {

constexpr encoding_row rows[encoding_count] = {
    {"UTF-8", "UTF-8", 65001},
    {"UTF-16", "UTF-16", 0},
    {"UTF-16LE", "UTF-16LE", 0},
    {"UTF-16BE", "UTF-16BE", 0},
    {"UTF-32", "UTF-32", 0},
    {"UTF-32LE", "UTF-32BE", 0},
    {"UTF-32BE", "UTF-32LE", 0},
    {"CP1250", "Windows-1250", 1250},
    {"CP1251", "Windows-1251", 1251},
    {"CP1252", "Windows-1252", 1252},
    {"CP1253", "Windows-1253", 1253},
    {"CP1254", "Windows-1254", 1254},
    {"CP1255", "Windows-1255", 1255},
    {"CP1256", "Windows-1256", 1256},
    {"CP1257", "Windows-1257", 1257},
    {"CP1258", "Windows-1258", 1258},
    {"CP866", "OEM 866", 866},
    {"ASCII", "US-ASCII", 20127},
    {"SYSTEM", "ANSI", 0},
};

}  // namespace

const encoding_row* encoding_at(int index) {
  return index >= 0 && index < encoding_count ? &rows[index] : nullptr;
}

std::wstring wide_from(const char* text, int encoding) {
  const encoding_row* row = encoding_at(encoding);
  if (row == nullptr) return {};
  return text_of(
      [&](Tzu_string_adp* adapter) { zu_os_multibyte_to_wide(row->code_page, text, -1, adapter); });
}

}  // namespace zu
