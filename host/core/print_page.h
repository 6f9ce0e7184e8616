#pragma once
// Pages larger than what is drawn in one go.

#include <functional>
#include <string>

#include "zu/platform/zuk_render.h"

namespace zu::host {

/// Calls `draw`, which draws on the render, once for each piece of its page; a page of less than
/// 5,000 dots a side is one piece, drawn as it is. For a piece the render's map box is the piece
/// and some dots around it, and the page takes no more than the piece itself. So what a layer does
/// along the sides of what it is asked for (a shade leaves the lowest row and column clear, a slope
/// at the frame is one-sided) does not show inside the page. A page of pieces tells its progress
/// under `caption`; where a person stops it, `failure` is thrown.
void print_page(Izu_render* render, const std::function<void()>& draw,
                const std::string& caption = {});

}  // namespace zu::host
