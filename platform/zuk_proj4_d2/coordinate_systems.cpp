#include "platform/zuk_proj4_d2/coordinate_systems.h"

#include <map>
#include <utility>

namespace zu::platform {

namespace {

constexpr std::size_t most_kept = 64;

std::string trimmed(const std::string& text) {
  std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// A PROJ text is taken for an operation unless it says that it is a system.
std::string as_system_text(const std::string& text) {
  std::string out = trimmed(text);
  std::size_t plus = out.find_first_not_of('+');
  bool is_proj_text = plus != std::string::npos &&
                      (out.compare(plus, 5, "proj=") == 0 || out.compare(plus, 5, "init=") == 0 ||
                       (plus > 0 && out.find("+proj=") != out.npos));
  if (is_proj_text && out.find("type=crs") == std::string::npos) out += " +type=crs";
  return out;
}

std::shared_ptr<const operation> make_operation(const std::string& source,
                                                const std::string& target) {
  auto out = std::make_shared<operation>();
  out->thread = proj_thread::current();
  PJ_CONTEXT* context = out->thread->context();
  pj_ptr from = out->thread->system(source), to = out->thread->system(target);
  if (from == nullptr || to == nullptr) return nullptr;
  if (source == target ||
      proj_is_equivalent_to_with_ctx(context, from.get(), to.get(),
                                     PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS))
    return out;
  pj_ptr raw(proj_create_crs_to_crs_from_pj(context, from.get(), to.get(), nullptr, nullptr));
  if (raw == nullptr) return nullptr;
  out->pj.reset(proj_normalize_for_visualization(context, raw.get()));
  return out->pj == nullptr ? nullptr : out;
}

}  // namespace

const std::shared_ptr<proj_thread>& proj_thread::current() {
  thread_local auto mine = std::make_shared<proj_thread>();
  return mine;
}

proj_thread::proj_thread() : context_(proj_context_create()) {
  proj_log_func(context_, this, take);
  proj_context_use_proj4_init_rules(context_, 1);
}

proj_thread::~proj_thread() { proj_context_destroy(context_); }

void proj_thread::take(void* self, int, const char* text) {
  if (text != nullptr) static_cast<proj_thread*>(self)->message_ = text;
}

pj_ptr proj_thread::system(const std::string& text) {
  message_.clear();
  std::string prepared = as_system_text(text);
  pj_ptr made(prepared.empty() ? nullptr : proj_create(context_, prepared.c_str()));
  if (made != nullptr && proj_is_crs(made.get())) return made;
  if (prepared.empty()) message_ = "no coordinate system is given";
  if (message_.empty())
    message_ = made != nullptr ? "is not a coordinate system" : "is no known coordinate system";
  std::size_t head = message_.rfind("proj_create: ", 0) == 0 ? 13 : 0;
  message_.erase(0, head);
  return nullptr;
}

std::shared_ptr<const operation> operation_between(const std::string& source,
                                                   const std::string& target) {
  using pair = std::pair<std::string, std::string>;
  thread_local std::map<pair, std::shared_ptr<const operation>> kept;
  auto [place, is_new] = kept.try_emplace(pair(source, target));
  if (!is_new) return place->second;
  std::shared_ptr<const operation> made = make_operation(source, target);
  place->second = made;
  if (kept.size() > most_kept) kept.clear();
  return made;
}

}  // namespace zu::platform
