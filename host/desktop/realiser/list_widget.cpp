#include "host/desktop/realiser/list_widget.h"

#include <QVBoxLayout>

#include "host/desktop/realiser/outline_widget.h"

namespace zu::desktop {
namespace {

std::uint32_t row_of(outline_item item) { return call<&outline_item_impl::row>(item); }

class item_of_list final : public outline_item_index_impl {
 public:
  explicit item_of_list(std::uint32_t row) : row_(row) {}
  std::uint32_t row() override { return row_; }

 private:
  std::uint32_t row_;
};

class column_of_list final : public string_outline_column_impl {
 public:
  explicit column_of_list(handle list) : list_(list) {}
  void text(outline_item item, string_visitor visitor) override {
    call<&list_impl::item_text>(list_, row_of(item), visitor);
  }
  void picture(outline_item item, bitmap_visitor visitor) override {
    call<&list_impl::item_picture>(list_, row_of(item), visitor);
  }
  void item_hint(outline_item item, string_visitor visitor) override {
    call<&list_impl::item_hint>(list_, row_of(item), visitor);
  }
  bool is_editable(outline_item item) override {
    return call<&list_impl::is_editable>(list_, row_of(item));
  }
  bool set_text(outline_item item, const wchar_t* text) override {
    return call<&list_impl::set_text>(list_, row_of(item), text);
  }

 private:
  handle list_;
};

}  // namespace

class list_widget::list_as_outline final : public outline_impl {
 public:
  explicit list_as_outline(handle list) : list_(list), column_(list) {}
  bool is_disabled() override { return !call<&list_impl::enabled>(list_); }
  void visit_root(outline_item_visitor visitor) override {
    call<&outline_item_visitor_impl::visit>(visitor, outline_item());
  }
  std::uint32_t column_count() override { return 1; }
  void visit_column(std::uint32_t, outline_column_visitor visitor) override {
    call<&outline_column_visitor_impl::visit>(visitor,
                                              handle_of<string_outline_column_impl>(column_));
  }
  std::uint32_t selection_mode() override { return call<&list_impl::selection_mode>(list_); }
  bool is_tree() override { return false; }
  void visit_hint(string_visitor visitor) override { call<&list_impl::hint>(list_, visitor); }
  void current(outline_item_visitor visitor) override {
    const std::int32_t row = call<&list_impl::current>(list_);
    item_of_list item(std::uint32_t(std::max(row, 0)));
    call<&outline_item_visitor_impl::visit>(
        visitor, outline_item(row < 0 ? handle() : handle_of<outline_item_index_impl>(item)));
  }
  void set_current(outline_item item) override {
    call<&list_impl::set_current>(list_, std::int32_t(row_of(item)));
  }
  bool is_marked(outline_item item) override {
    return call<&list_impl::is_marked>(list_, row_of(item));
  }
  void activate(outline_item item) override { call<&list_impl::activate>(list_, row_of(item)); }
  void set_marked(outline_item item, bool marked) override {
    call<&list_impl::set_marked>(list_, row_of(item), marked);
  }
  std::uint32_t item_count(outline_item item) override {
    return item ? 0 : call<&list_impl::count>(list_);
  }
  std::int32_t tree_column() override { return -1; }
  void attach_view(element_view view) override { call<&list_impl::attach_view>(list_, view); }

 private:
  handle list_;
  column_of_list column_;
};

list_widget::list_widget(handle shown, QWidget* parent)
    : QWidget(parent),
      items_(std::make_unique<list_as_outline>(shown)),
      widget_(std::make_unique<outline_widget>(handle_of<outline_impl>(*items_), this)) {
  setObjectName(QStringLiteral("list"));
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(widget_.get());
  setFocusProxy(widget_.get());
}

list_widget::~list_widget() = default;

}  // namespace zu::desktop
