#include "host/desktop/map/mode_host.h"

#include "host/desktop/map/cursors.h"

namespace zu::desktop {
namespace {

/// Takes the number of a mode's cursor.
struct cursor_number final : bitmap_visitor_impl {
  std::int32_t number = 0;
  bool is_given = false;
  void visit(bitmap picture) override {
    number = call<&bitmap_impl::id>(picture);
    is_given = true;
  }
};

std::int32_t number_of(viewer_extension_mode mode) {
  if (!mode) return cursor_hand;
  cursor_number taken;
  call<&viewer_extension_mode_impl::cursor>(mode,
                                            bitmap_visitor(handle_of<bitmap_visitor_impl>(taken)));
  return taken.is_given ? taken.number : cursor_cross;
}

}  // namespace

mode_host::mode_host(std::function<void()> mode_changed, std::function<void()> mode_spoke)
    : mode_changed_(std::move(mode_changed)) {
  extension_view_.spoke = [this] { take_mode(); };
  mode_view_.spoke = std::move(mode_spoke);
}

void mode_host::set_extension(viewer_extension extension) {
  if (extension_) call<&viewer_extension_impl::attach_view>(extension_.get(), element_view());
  if (mode_) {
    leave_mode();
    mode_changed_();
  }
  extension_.reset(extension);
  call<&viewer_extension_impl::attach_view>(extension, extension_view_.get());
  take_mode();
}

void mode_host::leave_mode() {
  call<&viewer_extension_mode_impl::attach_view>(mode_, element_view());
  mode_ = {};
}

void mode_host::take_mode() {
  viewer_extension_mode next = call<&viewer_extension_impl::current_mode>(extension_.get());
  if (next == mode_) return;
  leave_mode();
  mode_ = next;
  call<&viewer_extension_mode_impl::attach_view>(mode_, mode_view_.get());
  mode_changed_();
}

QCursor mode_host::cursor() const { return map_cursor(number_of(mode_)); }

bool mode_host::is_hand() const { return number_of(mode_) == cursor_hand; }

}  // namespace zu::desktop
