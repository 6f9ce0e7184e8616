#include "host/desktop/map/map_view.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "host/core/texts.h"
#include "host/desktop/words.h"
#include "zu/platform/zuk_scn_2d.h"

namespace zu::desktop {
namespace {

constexpr int rest = 150;               // milliseconds without a notch or another size
constexpr double quick_picture = 40;    // milliseconds: drawn while the wheel turns
constexpr double visible_wait = 100;    // beyond it the old picture is shown in its new place first
constexpr double turn_of_drawing = 30;  // then whoever waits has a turn
constexpr double first_glance = 200;    // beyond it layers show one after another

map_view& map_of(void* user) { return *static_cast<map_view*>(user); }

}  // namespace

map_view::map_view(QWidget* parent)
    : QWidget(parent),
      modes_([this] { mode_changed(); }, [this] { mode_spoke(); }),
      // Layers that are being drawn may tell of what they read.
      watch_([this] {
        if (!is_in_layer_) redraw();
      }) {
  Tzu_viewer2d_hooks told = hooks();
  viewer_.reset(zu_viewer2d_create(&told));
  pointer_ = std::make_unique<map_pointer>(viewer(), modes_,
                                           [this](double x, double y) { Q_EMIT clicked(x, y); });
  setObjectName(QStringLiteral("map_view"));
  setAccessibleName(words("Map", "Карта"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &map_view::draw_some);
  show_cursor();
}

map_view::map_view(host::scene& shown, QWidget* parent) : map_view(parent) {
  set_layers(std::make_unique<host_layers>(shown));
  zu_viewer2d_set_scn_2d(viewer(), shown.get());
}

map_view::map_view(const host::bundle* services, QWidget* parent) : map_view(parent) {
  set_layers(std::make_unique<viewer_layers>(viewer(), services));
}

map_view::~map_view() { modes_.set_extension({}); }

Tzu_viewer2d_hooks map_view::hooks() {
  Tzu_viewer2d_hooks told{};
  told.redraw = [](void* user) { map_of(user).ask_for_picture(map_of(user).delay()); };
  told.move_picture = [](std::int32_t dx, std::int32_t dy, void* user) {
    map_of(user).shift_ = QPoint(dx, dy);
    map_of(user).update();
  };
  told.draw_box = [](const Tzu_box_i2* box, void* user) {
    map_of(user).rubber_box_ = box != nullptr ? std::optional(*box) : std::nullopt;
    map_of(user).update();
  };
  told.box_changed = [](void* user) { map_of(user).box_changed(); };
  told.user = this;
  return told;
}

void map_view::box_changed() {
  has_box_ = has_box_ || !is_sizing_;
  shift_ = {};
  is_mode_picture_old_ = is_mode_picture_old_ || !mode_picture_.isNull();
  ask_for_picture(delay());
  Q_EMIT view_changed();
}

void map_view::mode_changed() {
  pointer_->cancel();
  mode_picture_ = QImage();
  update();
  show_cursor();
}

void map_view::mode_spoke() {
  is_mode_picture_old_ = true;
  update();
}

// --- Drawing

QSize map_view::pixels() const {
  return {static_cast<int>(std::lround(width() * devicePixelRatioF())),
          static_cast<int>(std::lround(height() * devicePixelRatioF()))};
}

int map_view::delay() const {
  return (is_wheeling_ || is_sizing_) && last_cost_ > quick_picture ? rest : 0;
}

void map_view::redraw() { ask_for_picture(0); }

void map_view::ask_for_picture(int delay) {
  is_stale_ = true;
  is_cut_short_ = false;
  drawing_.reset();
  update();
  if (can_draw()) timer_.start(delay);
}

void map_view::follow_window() {
  if (pixels() == followed_ || pixels().isEmpty()) return;
  followed_ = pixels();
  is_sizing_ = true;
  zu_viewer2d_set_size(viewer(), followed_.width(), followed_.height(),
                       logicalDpiX() * devicePixelRatioF());
  ask_for_picture(delay());
  is_sizing_ = false;
  pointer_->set_dead_zone(3 * devicePixelRatioF());
  if (wanted_) zoom_to(*std::exchange(wanted_, std::nullopt));
}

void map_view::follow_profile() {
  Tzu_prf_data* profile = zu_scn_2d_get_prf_data_ptr(zu_viewer2d_get_scn_2d(viewer()));
  bool wanted = own_axes_.value_or(zu_prf_data_get_is_profil(profile) &&
                                   zu_prf_data_get_axes_scale(profile) != 1);
  if (wanted == has_own_axes()) return;
  zu_viewer2d_set_anisotropic(viewer(), wanted);
  // The tools of single axes come and go.
  call<&viewer_extension_impl::activated>(modes_.extension());
}

void map_view::set_own_axes(bool own) {
  own_axes_ = own;
  follow_profile();
  zoom_to_all();
  Q_EMIT view_changed();
}

void map_view::begin_drawing() {
  follow_window();
  follow_profile();
  watch_.watch(zu_viewer2d_get_scn_2d(viewer()));
  if (!has_box_) zoom_to_all();
  if (last_cost_ > visible_wait) repaint();
  timer_.stop();
  frame_request request;
  request.pixels = pixels();
  zu_viewer2d_get_box_cr_sml(viewer(), &request.box);
  request.dots_per_inch = logicalDpiX() * devicePixelRatioF();
  request.background = Qt::white;
  is_stale_ = false;
  spent_ = 0;
  drawing_ = std::make_unique<frame_drawing>(*layers_, zu_viewer2d_get_scn_2d(viewer()), request);
}

/// Draws the next layer. False if it was overtaken: a progress window runs the program's events.
bool map_view::draw_layer() {
  std::shared_ptr<frame_drawing> going_on = drawing_;
  QPointer<map_view> self(this);
  is_in_layer_ = true;
  going_on->draw_next();
  if (!self) return false;
  is_in_layer_ = false;
  if (drawing_ == going_on) return true;
  ask_for_picture(0);
  return false;
}

void map_view::draw_some() {
  if (!can_draw() || is_in_layer_) return;
  if (!drawing_) begin_drawing();
  QElapsedTimer turn;
  turn.start();
  auto milliseconds = [&] { return static_cast<double>(turn.nsecsElapsed()) * 1e-6; };
  while (drawing_->is_going_on()) {
    if (!draw_layer()) return;
    if (!drawing_->is_going_on() || milliseconds() < turn_of_drawing) continue;
    spent_ += milliseconds();
    if (spent_ > first_glance) {
      frame_ = drawing_->frame();
      update();
    }
    timer_.start(0);
    return;
  }
  spent_ += milliseconds();
  end_drawing();
}

void map_view::end_drawing() {
  frame_ = drawing_->frame();
  drawing_.reset();
  last_cost_ = spent_;
  update();
  Q_EMIT drawn(spent_);
}

void map_view::stop_drawing() {
  timer_.stop();
  if (drawing_) frame_ = drawing_->frame();
  drawing_.reset();
  is_stale_ = false;
  is_cut_short_ = true;
  update();
}

QImage map_view::picture() {
  if (pixels().isEmpty()) return {};
  if (is_cut_short_) redraw();
  while (!is_up_to_date() && !is_in_layer_) {
    if (!drawing_) begin_drawing();
    timer_.stop();
    QElapsedTimer turn;
    turn.start();
    bool is_whole = true;
    while (is_whole && drawing_->is_going_on()) is_whole = draw_layer();
    spent_ += static_cast<double>(turn.nsecsElapsed()) * 1e-6;
    if (is_whole) end_drawing();
  }
  return frame_.picture;
}

QImage map_view::mode_picture() {
  std::optional<Tzu_box_d2> shown = box();
  if (!shown || !modes_.mode()) return {};
  std::shared_ptr<Tzu_drwc> page(zu_drwc_create_image(static_cast<std::uint64_t>(pixels().width()),
                                                      static_cast<std::uint64_t>(pixels().height()),
                                                      logicalDpiX() * devicePixelRatioF(), false),
                                 &zu_drwc_destroy);
  std::unique_ptr<Izu_render, void (*)(Izu_render*)> render(zu_render_create(page.get(), &*shown),
                                                            &zu_render_destroy);
  call<&viewer_extension_mode_impl::draw>(modes_.mode(), render.get());
  return zu_drwc_has_ink(page.get()) ? image_of(page, pixels(), QImage::Format_ARGB32_Premultiplied)
                                     : QImage();
}

// --- The visible box

std::optional<Tzu_box_d2> map_view::box() const {
  if (wanted_) return wanted_;
  Tzu_box_d2 found;
  if (!has_box_ || !zu_viewer2d_get_box_cr_sml(viewer(), &found)) return {};
  return found;
}

void map_view::zoom_to_all() {
  Tzu_box_d2 all;
  if (!zu_scn_2d_get_clipped_box(zu_viewer2d_get_scn_2d(viewer()), &all)) return;
  double margin_x = (all.x1 - all.x0) / 50, margin_y = (all.y1 - all.y0) / 50;
  zoom_to({all.x0 - margin_x, all.y0 - margin_y, all.x1 + margin_x, all.y1 + margin_y});
}

void map_view::zoom_to(const Tzu_box_d2& box) {
  follow_profile();
  if (followed_.isEmpty()) {
    wanted_ = box;
    return;
  }
  Tzu_box_d2 shown = box;
  double least_x = zu_viewer2d_size_mm2cr_x(viewer(), 10);
  double least_y = zu_viewer2d_size_mm2cr_y(viewer(), 10);
  double middle_x = zu_halfway(box.x0, box.x1), middle_y = zu_halfway(box.y0, box.y1);
  if (!(box.x1 - box.x0 > 0)) shown.x0 = middle_x - least_x, shown.x1 = middle_x + least_x;
  if (!(box.y1 - box.y0 > 0)) shown.y0 = middle_y - least_y, shown.y1 = middle_y + least_y;

  // A section may ask for so many units of y a unit of x.
  Tzu_prf_data* profile = zu_scn_2d_get_prf_data_ptr(zu_viewer2d_get_scn_2d(viewer()));
  double axes = zu_prf_data_get_axes_scale(profile);
  if (zu_viewer2d_is_anisotropic(viewer()) && axes > 0) {
    double per_x = (shown.x1 - shown.x0) / followed_.width();
    double per_y = (shown.y1 - shown.y0) / followed_.height();
    double half_x = std::max(per_x, per_y * axes) * followed_.width() / 2;
    double half_y = std::max(per_y, per_x / axes) * followed_.height() / 2;
    shown = {middle_x - half_x, middle_y - half_y, middle_x + half_x, middle_y + half_y};
  }
  show_box(shown);
}

void map_view::show_box(const Tzu_box_d2& box) {
  zu_viewer2d_set_zoom_box(viewer(), &box);
  zu_viewer2d_redraw_slow(viewer());
}

void map_view::zoom_by(double factor) {
  std::optional<Tzu_box_d2> now = box();
  if (!now) return;
  double cx = zu_halfway(now->x0, now->x1), cy = zu_halfway(now->y0, now->y1);
  double hx = (now->x1 - now->x0) / 2 * factor, hy = (now->y1 - now->y0) / 2 * factor;
  show_box({cx - hx, cy - hy, cx + hx, cy + hy});
}

void map_view::move_by(double parts_x, double parts_y) {
  std::optional<Tzu_box_d2> now = box();
  if (!now) return;
  // Whole pixels: the picture moves without being sampled anew.
  double dx = std::round(parts_x * followed_.width()) * (now->x1 - now->x0) / followed_.width();
  double dy = std::round(parts_y * followed_.height()) * (now->y1 - now->y0) / followed_.height();
  show_box({now->x0 + dx, now->y0 + dy, now->x1 + dx, now->y1 + dy});
}

void map_view::go_back() {
  zu_viewer2d_zoomhist_do_prev(viewer());
  zu_viewer2d_redraw_slow(viewer());
}

void map_view::go_forward() {
  zu_viewer2d_zoomhist_do_next(viewer());
  zu_viewer2d_redraw_slow(viewer());
}

double map_view::metres_a_unit() const {
  Tzu_box_d2 shown;
  if (!zu_viewer2d_get_box_cr_sml(viewer(), &shown)) return 1;
  ground_.set_projection(host::narrow(host::text_of([this](Tzu_string_adp* adapter) {
    zu_scn_2d_get_pj4wstr(zu_viewer2d_get_scn_2d(viewer()), adapter);
  })));
  return ground_.metres(zu_halfway(shown.y0, shown.y1));
}

double map_view::units_a_pixel() const {
  double sx = 0, sy = 0;
  if (box() && !wanted_) zu_viewer2d_get_scale(viewer(), &sx, &sy);
  return sx * 0.0254 / (logicalDpiX() * devicePixelRatioF());
}

double map_view::map_scale() const {
  double sx = 0, sy = 0;
  if (box() && !wanted_) zu_viewer2d_get_scale(viewer(), &sx, &sy);
  return sx * metres_a_unit();
}

void map_view::set_map_scale(double denominator) {
  double sx = 0, sy = 0;
  zu_viewer2d_get_scale(viewer(), &sx, &sy);
  if (!(denominator > 0) || !std::isfinite(denominator) || !(sx > 0)) return;
  const double wanted = denominator / metres_a_unit();
  zu_viewer2d_set_scale(viewer(), wanted, wanted / sx * sy);
  zu_viewer2d_redraw_slow(viewer());
}

handle map_view::use_extension(viewer_2d_extension_service service) {
  struct receiver final : viewer_2d_extension_visitor_impl {
    map_view* map = nullptr;
    handle bar;
    void visit(viewer_extension made, handle tool_bar) override {
      map->set_extension(made);
      bar = tool_bar;
    }
  } taken;
  taken.map = this;
  call<&viewer_2d_extension_service_impl::create>(
      service, zu_viewer2d_safe_upcast(viewer()),
      viewer_2d_extension_visitor(handle_of<viewer_2d_extension_visitor_impl>(taken)));
  return taken.bar;
}

}  // namespace zu::desktop
