#include "src/bundle/strings.h"

Tzu_string_adapter_base::Tzu_string_adapter_base()
    : adapter(zu_string_adp_create(
          [](const char* text, void* self) {
            static_cast<Tzu_string_adapter_base*>(self)->take(text);
          },
          [](const wchar_t* text, void* self) {
            static_cast<Tzu_string_adapter_base*>(self)->take(text);
          },
          this)) {}

void Tzu_std_wstring_adapter::take(const wchar_t* text) { target_ = text != nullptr ? text : L""; }

void Tzu_std_wstring_adapter::take(const char* text) {
  target_ = text != nullptr ? zu::wide_from(text, zu::system_encoding) : L"";
}
