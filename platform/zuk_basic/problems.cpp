#include <algorithm>
#include <deque>
#include <map>
#include <mutex>
#include <string>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_basic.h"

using zu::platform::guarded;

namespace {

struct problem {
  int32_t kind;
  std::wstring text;
};

/// By source, the oldest first.
struct register_of_problems {
  std::mutex lock;
  std::map<std::wstring, std::deque<problem>> by_source;
};

constexpr std::size_t most = 16;

register_of_problems& all() {
  static register_of_problems made;
  return made;
}

}  // namespace

void zu_problems_add(const wchar_t* source, int32_t kind, const wchar_t* text) {
  guarded(source, [&](const wchar_t& name) {
    std::lock_guard hold(all().lock);
    std::deque<problem>& problems = all().by_source[&name];
    std::wstring reason = text != nullptr ? text : L"";
    bool known = std::any_of(problems.begin(), problems.end(),
                             [&](const problem& p) { return p.kind == kind && p.text == reason; });
    if (known) return;
    problems.push_back({kind, std::move(reason)});
    if (problems.size() > most) problems.pop_front();
  });
}

int32_t zu_problems_get_count(const wchar_t* source) {
  return guarded(source, 0, [&](const wchar_t& name) {
    std::lock_guard hold(all().lock);
    auto entry = all().by_source.find(&name);
    return entry != all().by_source.end() ? static_cast<int32_t>(entry->second.size()) : 0;
  });
}

int32_t zu_problems_get(const wchar_t* source, int32_t index, Tzu_string_adp* text) {
  problem found{-1, {}};
  guarded(source, [&](const wchar_t& name) {
    std::lock_guard hold(all().lock);
    auto entry = all().by_source.find(&name);
    if (entry != all().by_source.end() && index >= 0 &&
        static_cast<std::size_t>(index) < entry->second.size())
      found = entry->second[static_cast<std::size_t>(index)];
  });
  if (found.kind >= 0) zu_string_adp_feed(text, found.text.c_str());
  return found.kind;
}

void zu_problems_clear(const wchar_t* source) {
  std::lock_guard hold(all().lock);
  if (source == nullptr)
    all().by_source.clear();
  else
    all().by_source.erase(source);
}
