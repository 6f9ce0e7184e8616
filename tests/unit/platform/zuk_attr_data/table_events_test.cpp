// What tables, layers and scenes tell their channels.

#include <gtest/gtest.h>

#include <vector>

#include "platform/zuk_basic/owned.h"
#include "zu/platform/zuk_lr2d.h"

namespace {

using zu::platform::owned;

struct client {
  std::vector<std::vector<int32_t>> heard;  // what a call told
  static void hear(Tzu_event_queue* queue, void* user) {
    auto& heard = static_cast<client*>(user)->heard.emplace_back();
    for (uint64_t i = 0; i < zu_event_queue_count_update_events(queue); ++i) {
      const auto* list = zu_update_event_get_details(zu_event_queue_get_update_event(queue, i));
      for (int32_t property = 0; property < 20; ++property)
        if (zu_update_event_prop_list_find_integer(list, property)) heard.push_back(property);
      EXPECT_EQ(zu_update_event_prop_list_get_count(list), heard.size());
    }
  }
};
using calls = std::vector<std::vector<int32_t>>;

TEST(table_events, a_change_of_the_selection_is_told) {
  owned<zu_table_data_destroy> table(zu_table_data_create());
  client c;
  zu_event_channel_add_client(zu_table_data_get_update_event_channel(table.get()), client::hear,
                              &c);
  zu_table_data_flip_selected_id(table.get(), 4);
  EXPECT_TRUE(zu_table_data_is_selected_id(table.get(), 4));
  EXPECT_EQ(c.heard, (calls{{zu_update_selection}}));
}
TEST(table_events, changes_between_begin_and_end_are_told_once) {
  owned<zu_table_data_destroy> table(zu_table_data_create());
  client c;
  zu_event_channel_add_client(zu_table_data_get_update_event_channel(table.get()), client::hear,
                              &c);
  zu_table_data_begin_update(table.get());
  zu_table_data_begin_update(table.get());
  zu_table_data_set_selected_range(table.get(), 0, 10, true);
  zu_table_data_set_selected_id(table.get(), 3, false);
  zu_table_data_end_update(table.get());
  EXPECT_TRUE(c.heard.empty());
  zu_table_data_end_update(table.get());
  EXPECT_EQ(c.heard, (calls{{zu_update_selection}}));
  EXPECT_EQ(zu_table_data_get_selected_count(table.get()), 9u);
  EXPECT_EQ(zu_table_data_get_selected_run_count(table.get()), 2u);
  uint64_t first = 0, last = 0;
  EXPECT_TRUE(zu_table_data_get_selected_run(table.get(), 1, &first, &last));
  EXPECT_EQ(first, 4u);
  EXPECT_EQ(last, 9u);
  EXPECT_FALSE(zu_table_data_get_selected_run(table.get(), 2, &first, &last));
}
TEST(table_events, an_update_without_a_change_tells_nothing) {
  owned<zu_table_data_destroy> table(zu_table_data_create());
  client c;
  zu_event_channel_add_client(zu_table_data_get_update_event_channel(table.get()), client::hear,
                              &c);
  zu_table_data_begin_update(table.get());
  zu_table_data_clear_selected_ids(table.get());
  zu_table_data_set_selected_range(table.get(), 7, 0, true);
  zu_table_data_end_update(table.get());
  EXPECT_TRUE(c.heard.empty());
}
TEST(table_events, a_client_that_left_hears_nothing_and_may_leave_after_the_channel) {
  owned<zu_table_data_destroy> table(zu_table_data_create());
  Tzu_event_channel* channel = zu_table_data_get_update_event_channel(table.get());
  client c;
  zu_event_channel_add_client(channel, client::hear, &c);
  zu_event_channel_del_client(channel, client::hear, &c);
  zu_table_data_set_selected_id(table.get(), 1, true);
  EXPECT_TRUE(c.heard.empty());
  zu_event_channel_add_client(channel, client::hear, &c);
  table.reset();
  zu_event_channel_del_client(channel, client::hear, &c);
  zu_event_channel_add_client(channel, client::hear, &c);
}
TEST(table_events, a_client_may_leave_while_it_is_told) {
  owned<zu_table_data_destroy> table(zu_table_data_create());
  struct leaving {
    Tzu_event_channel* channel;
    int calls = 0;
    static void hear(Tzu_event_queue* /*queue*/, void* user) {
      auto* self = static_cast<leaving*>(user);
      ++self->calls;
      zu_event_channel_del_client(self->channel, hear, self);
    }
  } one{zu_table_data_get_update_event_channel(table.get())}, two = one;
  zu_event_channel_add_client(one.channel, leaving::hear, &one);
  zu_event_channel_add_client(one.channel, leaving::hear, &two);
  zu_table_data_set_selected_id(table.get(), 1, true);
  zu_table_data_set_selected_id(table.get(), 2, true);
  EXPECT_EQ(one.calls, 1);
  EXPECT_EQ(two.calls, 1);
}
TEST(layer_events, new_data_and_the_layers_of_a_scene_are_told) {
  owned<zu_scn_2d_destroy> scene(zu_scn_2d_create());
  owned<zu_lr2d_destroy> layer(zu_lr2d_create("a"));
  client c, l;
  zu_event_channel_add_client(zu_scn_get_update_event_channel(scene.get()), client::hear, &c);
  zu_event_channel_add_client(zu_lr_get_update_event_channel(layer.get()), client::hear, &l);
  zu_scn_2d_set_active_layer(scene.get(), layer.get());  // not one of its own
  zu_scn_2d_add_layer(scene.get(), layer.get());
  zu_lr2d_set_visible(layer.get(), false);
  zu_lr2d_set_visible(layer.get(), false);
  zu_scn_2d_set_active_layer(scene.get(), layer.get());
  EXPECT_EQ(zu_scn_2d_get_active_layer(scene.get()), layer.get());
  zu_scn_2d_remove_layer(scene.get(), layer.get());
  EXPECT_EQ(zu_scn_2d_get_active_layer(scene.get()), nullptr);
  EXPECT_EQ(
      c.heard,
      (calls{
          {zu_update_layers}, {zu_update_layers}, {zu_update_active_layer}, {zu_update_layers}}));
  zu_lr2d_data_changed(layer.get());
  EXPECT_EQ(l.heard, (calls{{zu_update_data}}));
}

}  // namespace
