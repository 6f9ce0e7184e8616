#pragma once
// Objects that the host owns: letting go of one ends it.

struct Izu_layer;

namespace zu::toolkit {

/// Ends when an empty view is attached.
template <class T, class H> class reattachable : public T {
 public:
  using T::T;
  void attach_view(H view) override {
    if (view)
      T::attach_view(view);
    else
      delete this;
  }
};

/// A layer object ends when it is bound to null.
template <class T> class reattachable<T, Izu_layer*> : public T {
 public:
  using T::T;
  void bind_entity(Izu_layer* entity) override {
    if (entity != nullptr)
      T::bind_entity(entity);
    else
      delete this;
  }
};

}  // namespace zu::toolkit
