#pragma once
// A source that is open for as long as its holder stands.

#include <string>

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"

namespace zu::platform {

class open_source {
 public:
  explicit open_source(const std::wstring& name) {
    handle opened;
    zu_datasource_open(name.c_str(), 1, nullptr, &opened);
    source_ = cast<data_source_impl>(opened);
  }
  ~open_source() { call<&data_source_impl::release>(source_); }
  open_source(const open_source&) = delete;
  open_source& operator=(const open_source&) = delete;

  data_source get() const { return source_; }
  std::wstring projection() const {
    last_text visitor;
    call<&data_source_impl::get_projection>(
        source_, string_visitor(handle_of<string_visitor_impl>(visitor)));
    return visitor.text;
  }

 private:
  struct last_text final : string_visitor_impl {
    void visit(const wchar_t* given) override { text = given; }
    std::wstring text;
  };

  data_source source_;
};

}  // namespace zu::platform
