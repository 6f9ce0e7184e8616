#include <unicode/coll.h>
#include <unicode/ucnv.h>
#include <unicode/unistr.h>

#include <cstring>
#include <memory>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_os.h"

using zu::platform::guarded;

namespace {

icu::UnicodeString from_wide(const wchar_t* text) {
  static_assert(sizeof(wchar_t) == sizeof(UChar32));
  if (text == nullptr) return {};
  return icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(text),
                                       static_cast<int32_t>(std::wcslen(text)));
}

void feed(Tzu_string_adp* adapter, const icu::UnicodeString& text) {
  std::wstring wide;
  for (int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1))
    wide += static_cast<wchar_t>(text.char32At(i));
  zu_string_adp_feed(adapter, wide.c_str());
}

icu::Collator* new_collator() {
  UErrorCode status = U_ZERO_ERROR;
  icu::Collator* root = icu::Collator::createInstance(icu::Locale::getRoot(), status);
  if (U_FAILURE(status)) return nullptr;
  root->setStrength(icu::Collator::SECONDARY);
  return root;
}

/// One for each thread: a collator is not to be shared.
thread_local std::unique_ptr<icu::Collator> collator_of_thread;

icu::Collator* collator() {
  if (!collator_of_thread) collator_of_thread.reset(new_collator());
  return collator_of_thread.get();
}

const char* converter_name(uint32_t code_page) {
  switch (code_page) {
    case 0:
    case 65001:
      return "UTF-8";
    case 1250:
      return "windows-1250";
    case 1251:
      return "windows-1251";
    case 1252:
      return "windows-1252";
    case 1253:
      return "windows-1253";
    case 1254:
      return "windows-1254";
    case 1255:
      return "windows-1255";
    case 1256:
      return "windows-1256";
    case 1257:
      return "windows-1257";
    case 1258:
      return "windows-1258";
    case 866:
      return "ibm-866";
    case 20127:
      return "US-ASCII";
    default:
      return nullptr;
  }
}

}  // namespace

int32_t zu_os_compare_ignoring_case(const wchar_t* a, const wchar_t* b) {
  try {
    icu::UnicodeString left = from_wide(a), right = from_wide(b);
    icu::Collator* rules = collator();
    UErrorCode status = U_ZERO_ERROR;
    if (rules == nullptr) return left.caseCompare(right, U_FOLD_CASE_DEFAULT);
    return rules->compare(left, right, status);
  } catch (...) {
    return 0;
  }
}

void zu_os_lower(const wchar_t* text, Tzu_string_adp* adapter) {
  guarded(adapter,
          [&](Tzu_string_adp& a) { feed(&a, from_wide(text).toLower(icu::Locale::getRoot())); });
}

void zu_os_upper(const wchar_t* text, Tzu_string_adp* adapter) {
  guarded(adapter,
          [&](Tzu_string_adp& a) { feed(&a, from_wide(text).toUpper(icu::Locale::getRoot())); });
}

bool zu_os_multibyte_to_wide(uint32_t code_page, const char* text, int64_t bytes,
                             Tzu_string_adp* adapter) {
  const char* name = converter_name(code_page);
  if (name == nullptr) return false;
  return guarded(adapter, false, [&](Tzu_string_adp& a) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(name, &status),
                                                                 &ucnv_close);
    if (U_FAILURE(status)) return false;
    const char* from = text != nullptr ? text : "";
    int64_t length = bytes < 0 || text == nullptr ? static_cast<int64_t>(std::strlen(from)) : bytes;
    if (length > INT32_MAX) return false;
    icu::UnicodeString wide(from, static_cast<int32_t>(length), converter.get(), status);
    if (U_FAILURE(status)) return false;
    feed(&a, wide);
    return true;
  });
}
