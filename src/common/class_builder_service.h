#pragma once
// Classes of scales for a host that asks for them without a dialog.

#include "zu/classes.h"

namespace zu {

class class_builder_service_of_common : public referent<class_builder_service_impl> {
 public:
  using referent::referent;
  bool build(Tzu_rng_scale* scale, const wchar_t* source, const wchar_t* field,
             const class_request* request) override;
  bool fill_values(Tzu_val_scale* scale, const wchar_t* source, const wchar_t* field,
                   std::int64_t limit, bool* all) override;
};

}  // namespace zu
