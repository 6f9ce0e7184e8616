#include "host/core/classes.h"

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

[[noreturn]] void throw_unread(const source& data, std::size_t field) {
  std::wstring name = wide(data.name());
  std::int32_t count = zu_problems_get_count(name.c_str());
  std::string reason = "\"" + data.fields().at(field).name + "\" has no values to make classes of";
  if (count > 0)
    reason =
        narrow(text_of([&](Tzu_string_adp* a) { zu_problems_get(name.c_str(), count - 1, a); }));
  throw failure(data.name(), reason);
}

}  // namespace

class_builder_service class_builder(const bundle& services) {
  if (!services.classes()) throw failure(classes_bundle, "is not there, or makes no classes");
  return services.classes();
}

void build_classes(class_builder_service builder, const class_request& request, const source& data,
                   std::size_t field, Tzu_rng_scale* scale) {
  if (!call<&class_builder_service_impl::build>(builder, scale, wide(data.name()).c_str(),
                                                wide(data.fields().at(field).name).c_str(),
                                                &request))
    throw_unread(data, field);
}

bool fill_unique_values(class_builder_service builder, const source& data, std::size_t field,
                        Tzu_val_scale* scale) {
  bool all = false;
  if (!call<&class_builder_service_impl::fill_values>(builder, scale, wide(data.name()).c_str(),
                                                      wide(data.fields().at(field).name).c_str(),
                                                      most_unique_values, &all))
    throw_unread(data, field);
  return all;
}

}  // namespace zu::host
