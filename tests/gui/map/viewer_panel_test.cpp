#include "host/desktop/map/viewer_panel.h"

#include <QLabel>

#include "host/desktop/map/viewer_builders.h"
#include "host/desktop/realiser/realiser.h"
#include "tests/gui/map/map_fixture.h"

namespace zu::desktop {

struct noting_panel final : viewer_2d_panel_impl {
  Tzu_scn_2d* scene = nullptr;
  Tzu_viewer* viewer = nullptr;
  std::vector<bool> attached;
  const wchar_t* title = L"";
  int activations = 0;

  double width() override { return 20; }
  double height() override { return 10; }
  void visit_title(string_visitor visitor) override {
    call<&string_visitor_impl::visit>(visitor, title);
  }
  void attach_viewer(Tzu_viewer* given) override {
    viewer = given;
    attached.push_back(given != nullptr);
    if (given == nullptr) return;
    zu_viewer2d_set_scn_2d(zu_viewer2d_safe_downcast(given), scene);
    zu_viewer2d_zoom_to_scn(zu_viewer2d_safe_downcast(given));
  }
  void activate() override { ++activations; }
  of<viewer_2d_panel_impl> get() { return handle_of<viewer_2d_panel_impl>(*this); }
};

TEST_F(map_test, an_embedded_one_gets_its_viewer_when_shown_and_loses_it_before_it_goes) {
  noting_panel panel;
  panel.scene = scene_.get();
  {
    viewer_panel widget(panel.get(), &services_, nullptr);
    widget.resize(200, 150);
    EXPECT_TRUE(panel.attached.empty());
    widget.show();
    ASSERT_EQ(panel.attached, std::vector<bool>{true});
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget.map().is_up_to_date(); }, 20000));
    QImage picture = widget.map().picture();
    EXPECT_NE(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
    widget.hide();
    widget.show();
    EXPECT_EQ(panel.attached.size(), 1u);
    panel.activations = 0;
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&widget.map(), &in);
    EXPECT_EQ(panel.activations, 1);
  }
  EXPECT_EQ(panel.attached, (std::vector<bool>{true, false}));
}

TEST_F(map_test, an_embedded_one_is_built_of_its_element) {
  noting_panel panel;
  panel.scene = scene_.get();
  serve_viewers(&services_);
  QWidget parent;
  auto* widget = qobject_cast<viewer_panel*>(realise(panel.get(), &parent));
  ASSERT_NE(widget, nullptr);
  parent.resize(300, 200);
  widget->resize(200, 150);
  parent.show();
  QImage picture = widget->map().picture();
  EXPECT_NE(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
  serve_viewers(nullptr);
}

TEST_F(map_test, an_embedded_one_that_was_never_shown_gets_no_viewer) {
  noting_panel panel;
  { viewer_panel widget(panel.get(), &services_, nullptr); }
  EXPECT_TRUE(panel.attached.empty());
}

TEST_F(map_test, an_embedded_one_does_not_draw_hidden_layers) {
  noting_panel panel;
  panel.scene = scene_.get();
  viewer_panel widget(panel.get(), &services_, nullptr);
  widget.resize(200, 150);
  widget.show();
  zu_lr2d_set_visible(layer_->entity(), false);
  widget.map().redraw();
  QImage picture = widget.map().picture();
  EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
}

TEST_F(map_test, an_embedded_one_says_its_title_and_likes_a_size) {
  noting_panel panel;
  viewer_panel quiet(panel.get(), &services_, nullptr);
  EXPECT_TRUE(quiet.findChild<QLabel*>()->isHidden());
  EXPECT_EQ(quiet.sizeHint().width(), quiet.fontMetrics().height() * 10);
  panel.title = L"Preview";
  viewer_panel titled(panel.get(), &services_, nullptr);
  EXPECT_EQ(titled.findChild<QLabel*>()->text(), QStringLiteral("Preview"));
  EXPECT_GT(titled.sizeHint().height(), quiet.sizeHint().height());
}

}  // namespace zu::desktop
