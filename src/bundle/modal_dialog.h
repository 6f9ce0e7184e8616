#pragma once
// Modal dialogs: the host leaves a runner in the dialog of each id; code of the bundle runs a
// docker through it. A dialog class has a static member `id`, a wide text.

#include "src/bundle/factory.h"

namespace zu::util::detail {

template <class dialog> class modal_dialog : public modal_dialog_impl {
 public:
  void attach_view(modal_dialog_runner runner) override { runner_ = runner; }
  modal_dialog_runner runner() const { return runner_; }

 private:
  modal_dialog_runner runner_;
};

template <class dialog> class modal_dialog_service : public referent<modal_dialog_service_impl> {
 public:
  using referent::referent;
  void get_dialog(modal_dialog_visitor visitor) override {
    call<&modal_dialog_visitor_impl::visit>(visitor, dialog::id,
                                            handle_of<modal_dialog_impl>(dialog_));
  }
  modal_dialog<dialog>& get() { return dialog_; }

 private:
  modal_dialog<dialog> dialog_;
};

template <class dialog> class modal_dialog_service_factory : public custom_service_factory_impl {
 public:
  modal_dialog_service_factory() : custom_service_factory_impl(L"") { factory_ = this; }
  ~modal_dialog_service_factory() override { factory_ = nullptr; }

  void create(handle owner, handle visitor) override {
    auto receiver = cast<modal_dialog_service_visitor_impl>(visitor);
    if (!receiver) return;
    strong_ref<modal_dialog_service_impl> service(service_.get());
    if (!service) {
      auto* made = new modal_dialog_service<dialog>(to_referent(owner));
      service.reset(handle_of<modal_dialog_service_impl>(*made));
      dialog_ = &made->get();
    }
    call<&modal_dialog_service_visitor_impl::visit>(receiver, service.get());
    service_.reset(service.get());
  }

  /// Runs a docker; non-zero when the person accepted. 0 too where no host has offered to.
  static int run(handle docker) {
    if (factory_ == nullptr || !factory_->service_ || dialog_ == nullptr) return 0;
    return call<&modal_dialog_runner_impl::run>(dialog_->runner(), docker);
  }

 private:
  weak_ref<modal_dialog_service_impl> service_;
  static inline modal_dialog_service_factory* factory_ = nullptr;
  static inline modal_dialog<dialog>* dialog_ = nullptr;
};

}  // namespace zu::util::detail
