#pragma once
// The two dialogs that fill a scale from the values of a field, and the same without asking.

#include <string>

#include "src/data/generic_datasource.h"
#include "zu/platform/zuk_stat.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

/// Class boundaries by one of seven methods. `stat` holds what is known of the field; empty ones
/// give pages that begin at 0. True if the person accepted, and the scale has new boundaries;
/// false, and nothing changed, otherwise and without a host that shows dialogs.
bool run_range_scale_dialog(Tzu_rng_scale* scale, Tzu_stat* stat,
                            const data::open_reference& source, const std::wstring& field);

/// The same with the statistics and the histogram of the field. Without a source the dialog opens
/// on empty ones; false, and no dialog, if a source does not open or has no such field.
bool run_range_scale_dialog(Tzu_rng_scale* scale, const data::open_reference& source,
                            const std::wstring& field);

/// The unique values of a field as rows of a value scale. False, and no dialog, if a source does
/// not open or has no such field; without a source it opens with no values.
bool run_value_scale_dialog(Tzu_val_scale* scale, const data::open_reference& source,
                            const std::wstring& field);

/// Ten equal intervals between the limits of a field, rounded as the scale says, with captions.
/// False, and nothing changed, if the source does not open or has no such field.
bool fill_from_data(Tzu_rng_scale* scale, const data::open_reference& source,
                    const std::wstring& field);
/// A row for each unique value of a field; above 1,000 the person is asked whether all are read.
bool fill_from_data(Tzu_val_scale* scale, const data::open_reference& source,
                    const std::wstring& field);

}  // namespace zu::style
