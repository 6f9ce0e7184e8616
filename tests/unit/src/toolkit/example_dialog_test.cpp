// The dialog that ARCHITECTURE.md shows.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "src/toolkit/buttons.h"
#include "src/toolkit/dockers.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/numbers.h"
#include "tests/unit/src/toolkit/element_tree.h"

namespace zu {
namespace {

enum class draw { image, scale };
struct look {
  draw method;
  double transparency;
};

// begin
class look_dialog : public toolkit::with_element {
 public:
  static constexpr wchar_t id[] = L"zu_example_look_dialog";
  static constexpr std::int32_t caption = 10065;  // "Style"

  explicit look_dialog(look& edited) : edited_(edited) {
    method_.add(22, 0, draw::image).add(23, 0, draw::scale);
    method_.assign_value(edited.method);
    method_.on_change = [this](draw chosen) { transparency_.set_enabled(chosen == draw::scale); };
    transparency_.set_range(0, 100, 1);
    transparency_.assign(edited.transparency);
    buttons_.on_accept = [this] {
      edited_ = {method_.value(), transparency_.value()};
      return true;
    };
    fields_.place(method_).place(transparency_).set_column_stretch(1);
    root_.place(fields_).place(buttons_);
  }
  handle element() override { return toolkit::handle_of_element(root_); }

 private:
  look& edited_;
  toolkit::labeled_element<toolkit::dropdownex<draw>> method_{21};
  toolkit::labeled_slider<toolkit::floating_input> transparency_{30};
  toolkit::button_box buttons_{toolkit::button_box::ok | toolkit::button_box::cancel};
  toolkit::grid_layout<2, 2> fields_;
  toolkit::grid_layout<1, 2> root_;
};
// end

TEST(example_dialog, does_what_a_person_asks) {
  look edited = {draw::scale, 20};
  look_dialog dialog(edited);
  toolkit::detail::dialog_docker<look_dialog> docker(dialog);
  std::vector<handle> shown = tests::elements_of(handle_of<docker_impl>(docker));
  auto method = tests::find<dropdown_impl>(shown);
  auto number = tests::find<floating_input_impl>(shown);
  auto slider = tests::find<slider_impl>(shown);
  EXPECT_EQ(call<&dropdown_impl::current>(method), 1);
  EXPECT_EQ(call<&slider_impl::value>(slider), 20);
  call<&slider_impl::set_value>(slider, 45);
  EXPECT_EQ(call<&floating_input_impl::value>(number), 45);
  call<&dropdown_impl::set_current>(method, 0);
  EXPECT_FALSE(call<&slider_impl::enabled>(slider));
  EXPECT_FALSE(call<&label_impl::enabled>(tests::find<label_impl>(shown, 1)));
  EXPECT_EQ(edited.transparency, 20) << "not before it is accepted";
  EXPECT_TRUE(call<&button_box_impl::press>(tests::find<button_box_impl>(shown), 0));
  EXPECT_EQ(edited.method, draw::image);
  EXPECT_EQ(edited.transparency, 45);
}

std::string text_of_file(const std::string& name) {
  std::stringstream text;
  text << std::ifstream(std::string(std::getenv("ZU_SOURCE_DIR")) + "/" + name).rdbuf();
  return text.str();
}

TEST(example_dialog, is_the_one_that_the_document_shows) {
  std::string here = text_of_file("tests/unit/src/toolkit/example_dialog_test.cpp");
  std::size_t begin = here.find("// begin\n") + 9, end = here.find("// end\n");
  ASSERT_LT(begin, end);
  EXPECT_NE(text_of_file("ARCHITECTURE.md").find(here.substr(begin, end - begin)),
            std::string::npos);
}

}  // namespace
}  // namespace zu
