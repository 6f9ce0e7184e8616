#pragma once
// Classes of scales from the data of a field, made by the bundles' own code.

#include <string>

#include "host/core/bundle.h"
#include "host/core/source.h"
#include "zu/classes.h"
#include "zu/platform/zuk_styles.h"

namespace zu::host {

/// The file of the bundle that makes classes, for `bundle`.
inline constexpr char classes_bundle[] = "zuk_common.so";
/// Throws `failure` if the bundles have no such service.
class_builder_service class_builder(const bundle& services);

/// Boundaries and captions of a scale. Throws `failure` if the field cannot be read.
void build_classes(class_builder_service builder, const class_request& request, const source& data,
                   std::size_t field, Tzu_rng_scale* scale);

/// How many values of a field get a row of their own.
inline constexpr std::int64_t most_unique_values = 1000;
/// A row for each value. False if the field has more values than rows are made for. Throws
/// `failure` if the field cannot be read.
bool fill_unique_values(class_builder_service builder, const source& data, std::size_t field,
                        Tzu_val_scale* scale);

}  // namespace zu::host
