#include "zu/platform/zuk_file_tos4.h"

#include <algorithm>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_file_tos4/pgrid_file.h"

using namespace zu::platform;

struct Tzu_tos4_file {
  std::wstring path;
  // Looking at a file moves what is held of it in memory.
  mutable pgrid_file file;
};

namespace {

/// As guarded, and what failed is kept for the path.
template <class object, class result, class work>
result kept(object* file, std::int32_t kind, result otherwise, work w) {
  return guarded(file, otherwise, [&](object& f) {
    try {
      return static_cast<result>(w(f));
    } catch (const std::exception& failure) {
      zu_problems_add(f.path.c_str(), kind, from_utf8(failure.what()).c_str());
      return otherwise;
    }
  });
}

template <class... arguments>
Tzu_tos4_file* opened(const wchar_t* path, std::int32_t kind, arguments... rest) {
  Tzu_tos4_file* out = nullptr;
  guarded(path, [&](const wchar_t&) {
    try {
      out = new Tzu_tos4_file{path, pgrid_file(to_utf8(path), rest...)};
    } catch (const std::exception& failure) {
      zu_problems_add(path, kind, from_utf8(failure.what()).c_str());
    }
  });
  return out;
}

const grid_property* property_of(const Tzu_tos4_file& f, std::uint32_t index) {
  return index < f.file.properties().size() ? &f.file.properties()[index] : nullptr;
}

}  // namespace

Tzu_tos4_file* zu_tos4_file_open_w(const wchar_t* path, int32_t read_only) {
  return opened(path, zu_problem_open, read_only != 0 ? access::read : access::edit);
}

void zu_tos4_file_close(Tzu_tos4_file* file) { delete file; }

int32_t zu_tos4_get_grid_type(const Tzu_tos4_file* file) {
  return guarded(file, int32_t(0), [](const Tzu_tos4_file& f) { return f.file.head().type; });
}

uint32_t zu_tos4_get_prop_count(const Tzu_tos4_file* file) {
  return guarded(file, uint32_t(0),
                 [](const Tzu_tos4_file& f) { return f.file.properties().size(); });
}

void zu_tos4_get_prop_name_w(const Tzu_tos4_file* file, uint32_t index, Tzu_string_adp* adapter) {
  guarded(file, [&](const Tzu_tos4_file& f) {
    if (auto* property = property_of(f, index))
      zu_string_adp_feed(adapter, from_utf8(property->name).c_str());
  });
}

void zu_tos4_get_prop_caption_w(const Tzu_tos4_file* file, uint32_t index,
                                Tzu_string_adp* adapter) {
  guarded(file, [&](const Tzu_tos4_file& f) {
    if (auto* property = property_of(f, index))
      zu_string_adp_feed(adapter, from_utf8(property->caption).c_str());
  });
}

int32_t zu_tos4_get_coord_prop(const Tzu_tos4_file* file, int32_t axis) {
  return guarded(file, int32_t(-1), [&](const Tzu_tos4_file& f) {
    const auto& all = f.file.properties();
    if (axis < 0 || axis > 2) return int32_t(-1);
    std::int64_t slot = f.file.head().coordinate[static_cast<std::size_t>(axis)];
    for (std::size_t i = 0; i < all.size(); ++i)
      if (all[i].slot == slot) return static_cast<int32_t>(i);
    return int32_t(-1);
  });
}

Tzu_tos4_file* zu_tos4_file_create_w(const wchar_t* path, const Tzu_tos4_grid* grid) {
  Tzu_tos4_file* out = nullptr;
  guarded(grid, [&](const Tzu_tos4_grid& g) {
    grid_head head;
    head.type = g.type, head.azimuth = g.azimuth;
    std::copy_n(g.size, 3, head.size.begin());
    std::copy_n(g.origin, 3, head.origin.begin());
    std::copy_n(g.spacing, 3, head.spacing.begin());
    head.projection = to_utf8(g.projection);
    out = opened(path, zu_problem_write, head);
  });
  return out;
}

int32_t zu_tos4_file_add_prop(Tzu_tos4_file* file, const Tzu_tos4_prop* prop) {
  if (prop == nullptr) return -1;
  return kept(file, zu_problem_write, int32_t(-1), [&](Tzu_tos4_file& f) {
    grid_property made;
    made.name = to_utf8(prop->name), made.caption = to_utf8(prop->caption);
    made.type = prop->type, made.role = prop->kind;
    made.has_nodata = prop->has_nodata, made.nodata = prop->nodata;
    return f.file.add_property(std::move(made));
  });
}

bool zu_tos4_file_set_coord_prop(Tzu_tos4_file* file, int32_t axis, uint32_t prop) {
  return kept(file, zu_problem_write, false, [&](Tzu_tos4_file& f) {
    const grid_property* property = property_of(f, prop);
    if (axis < 0 || axis > 2 || property == nullptr) return false;
    grid_head head = f.file.head();
    head.coordinate[static_cast<std::size_t>(axis)] = property->slot;
    f.file.set_head(head);
    return true;
  });
}

bool zu_tos4_file_write(Tzu_tos4_file* file, uint32_t prop, uint64_t start, uint64_t count,
                        const void* samples) {
  if (samples == nullptr) return false;
  return kept(file, zu_problem_write, false, [&](Tzu_tos4_file& f) {
    f.file.write_run(prop, static_cast<std::int64_t>(start), static_cast<std::int64_t>(count),
                     static_cast<const std::byte*>(samples));
    return true;
  });
}

bool zu_tos4_file_read(const Tzu_tos4_file* file, uint32_t prop, uint64_t start, uint64_t count,
                       void* samples) {
  if (samples == nullptr) return false;
  return kept(file, zu_problem_read, false, [&](const Tzu_tos4_file& f) {
    f.file.read_run(prop, static_cast<std::int64_t>(start), static_cast<std::int64_t>(count),
                    static_cast<std::byte*>(samples));
    return true;
  });
}

bool zu_tos4_file_commit(Tzu_tos4_file* file) {
  return kept(file, zu_problem_write, false, [](Tzu_tos4_file& f) {
    f.file.commit();
    return true;
  });
}
