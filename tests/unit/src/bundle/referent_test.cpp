#include "zu/referent.h"

#include <gtest/gtest.h>

#include <vector>

#include "zu/polymorphic.h"
#include "zu/services.h"
#include "zu/strings.h"

namespace {

using namespace zu;

struct thing_impl : counted_interface<thing_impl> {
  static constexpr char name[] = "zu_thing_interface_3";
  virtual int answer() { return 0; }
  using operations = in_order<&thing_impl::answer>;
};

struct thing : referent<thing_impl> {
  explicit thing(int& ends, handle owner = {}) : referent(owner), ends_(ends) {}
  ~thing() override {
    ++ends_;
    if (on_end) on_end();
  }
  int answer() override { return 42; }
  void (*on_end)() = nullptr;

 private:
  int& ends_;
};

of<thing_impl> handle_to(thing* t) { return handle_of<thing_impl>(*t); }

TEST(handle, with_either_word_zero_is_empty_and_gives_no_call) {
  int ends = 0;
  thing* t = new thing(ends);
  handle full = handle_to(t), no_table = full, no_instance = full;
  no_table.table = nullptr;
  no_instance.instance = nullptr;
  EXPECT_EQ(call<&thing_impl::answer>(full), 42);
  EXPECT_EQ(call<&thing_impl::answer>(no_table), 0);
  EXPECT_EQ(call<&thing_impl::answer>(no_instance), 0);
  EXPECT_FALSE(to_polymorphic(no_table));
  EXPECT_FALSE(to_referent(no_instance));
  EXPECT_FALSE(cast<thing_impl>(no_table));
  strong_ref<thing_impl> end(full);
}

TEST(query, is_exact_about_name_and_version_and_clears_its_outputs) {
  int ends = 0;
  strong_ref<thing_impl> held(handle_to(new thing(ends)));
  handle polymorphic = to_polymorphic(held.get());
  for (const char* name : {"zu_thing_interface_2", "zu_thing_interface_33", "ZU_thing_interface_3",
                           "zu_thing_interface_", ""}) {
    int something = 0;
    const void* table = &something;
    void* instance = &something;
    call<&queried::query>(polymorphic, name, &table, &instance);
    EXPECT_EQ(table, nullptr) << name;
    EXPECT_EQ(instance, nullptr) << name;
  }
  EXPECT_EQ(cast<thing_impl>(held.get()), held.get());
}

TEST(function_table, is_one_for_all_objects_of_an_interface) {
  int ends = 0;
  thing* a = new thing(ends);
  thing* b = new thing(ends);
  EXPECT_EQ(handle_to(a).table, handle_to(b).table);
  strong_ref<thing_impl> end_a(handle_to(a)), end_b(handle_to(b));
}

TEST(ref, the_last_strong_one_ends_the_object_and_a_weak_one_is_found_empty) {
  int ends = 0;
  strong_ref<thing_impl> strong(handle_to(new thing(ends)));
  weak_ref<thing_impl> weak(strong.get());
  EXPECT_TRUE(weak);
  strong.reset();
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(weak);
}

TEST(ref, one_of_two_strong_ones_leaves_the_object_alive) {
  int ends = 0;
  strong_ref<thing_impl> first(handle_to(new thing(ends)));
  {
    strong_ref<thing_impl> second(first);
    EXPECT_EQ(second.get(), first.get());
  }
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(call<&thing_impl::answer>(first.get()), 42);
  first.reset();
  EXPECT_EQ(ends, 1);
}

TEST(ref, taking_the_same_object_again_keeps_it) {
  int ends = 0;
  strong_ref<thing_impl> strong(handle_to(new thing(ends)));
  strong.reset(strong.get());
  EXPECT_EQ(ends, 0);
}

TEST(ref, the_last_weak_one_ends_an_object_that_no_strong_one_holds) {
  int ends = 0;
  weak_ref<thing_impl> weak(handle_to(new thing(ends)));
  EXPECT_EQ(ends, 0);
  weak.reset();
  EXPECT_EQ(ends, 1);
}

TEST(referent, detaching_a_stranger_runs_the_scan_and_ends_an_object_with_an_empty_list) {
  int ends = 0;
  thing* t = new thing(ends);
  referrer_impl stranger;
  call<&referent_impl::detach>(to_referent(handle_to(t)), handle_of<referrer_impl>(stranger));
  EXPECT_EQ(ends, 1);
}

TEST(referent, an_empty_handle_in_the_list_is_a_pin) {
  int ends = 0;
  handle referent = to_referent(handle_to(new thing(ends)));
  EXPECT_EQ(call<&referent_impl::attach>(referent, handle()), 1u);
  {
    weak_ref<thing_impl> weak;
    referrer_impl stranger;
    call<&referent_impl::detach>(referent, handle_of<referrer_impl>(stranger));
  }
  EXPECT_EQ(ends, 0);
  call<&referent_impl::detach>(referent, handle());
  EXPECT_EQ(ends, 1);
}

TEST(referent, attach_counts_the_entries) {
  int ends = 0;
  handle referent = to_referent(handle_to(new thing(ends)));
  EXPECT_EQ(call<&referent_impl::attach>(referent, handle()), 1u);
  EXPECT_EQ(call<&referent_impl::attach>(referent, handle()), 2u);
  call<&referent_impl::detach>(referent, handle());
  call<&referent_impl::detach>(referent, handle());
  EXPECT_EQ(ends, 1);
}

TEST(obj, keeps_its_owner_until_its_own_end_is_over) {
  static int owner_ends;
  static int owner_ends_at_child_end;
  owner_ends = 0;
  owner_ends_at_child_end = -1;
  int child_ends = 0;
  thing* owner = new thing(owner_ends);
  strong_ref<thing_impl> held_owner(handle_to(owner));
  thing* child = new thing(child_ends, to_referent(held_owner.get()));
  child->on_end = [] { owner_ends_at_child_end = owner_ends; };
  strong_ref<thing_impl> held_child(handle_to(child));
  held_owner.reset();
  EXPECT_EQ(owner_ends, 0);
  EXPECT_EQ(call<&referent_impl::owner>(to_referent(held_child.get())).instance,
            to_referent(handle_to(owner)).instance);
  held_child.reset();
  EXPECT_EQ(child_ends, 1);
  EXPECT_EQ(owner_ends_at_child_end, 0);
  EXPECT_EQ(owner_ends, 1);
}

struct first_impl : plain_interface<first_impl> {
  static constexpr char name[] = "zu_first_interface_1";
  virtual int first() { return 0; }
  using operations = in_order<&first_impl::first>;
};
struct second_impl : plain_interface<second_impl> {
  static constexpr char name[] = "zu_second_interface_1";
  virtual int second() { return 0; }
  using operations = in_order<&second_impl::second>;
};
struct both : polymorphic<first_impl>, polymorphic<second_impl> {
  int first() override { return 1; }
  int second() override { return 2; }
};

TEST(polymorphic, every_handle_of_an_object_answers_all_its_names) {
  both object;
  handle first = handle_of<first_impl>(object);
  handle second = cast<second_impl>(first);
  EXPECT_EQ(call<&second_impl::second>(second), 2);
  EXPECT_EQ(call<&first_impl::first>(cast<first_impl>(second)), 1);
  EXPECT_FALSE(cast<string_visitor_impl>(first));
}

TEST(polymorphic, the_interface_constructed_last_is_asked_first_and_all_are_asked) {
  static std::vector<int> asked;
  asked.clear();
  struct first_asked : first_impl {
    int query_interface(const char* n, const void** t, void** i) override {
      asked.push_back(1);
      return first_impl::query_interface(n, t, i);
    }
  };
  struct second_asked : second_impl {
    int query_interface(const char* n, const void** t, void** i) override {
      asked.push_back(2);
      return second_impl::query_interface(n, t, i);
    }
  };
  struct object : polymorphic<first_asked>, polymorphic<second_asked> {
  } o;
  EXPECT_TRUE(cast<second_impl>(handle_of<first_impl>(o)));
  EXPECT_EQ(asked, (std::vector<int>{2, 1}));
}

struct throwing : string_visitor_impl {
  void visit(const wchar_t*) override { throw 1; }
};

TEST(slot, lets_no_exception_out) {
  throwing visitor;
  call<&string_visitor_impl::visit>(handle_of<string_visitor_impl>(visitor), L"");
}

}  // namespace
