#pragma once
// Running a modal dialog: the content is an object with static members `id`, the host's key to the
// dialog, and `caption`, and the root of its elements in `element()`.

#include "src/bundle/modal_dialog.h"
#include "src/toolkit/dockers.h"

namespace zu::toolkit {

/// Shows the content until the person closes it; false when refused, or when no host offered to.
template <class T> bool run_dialog(T& content) {
  detail::dialog_docker<T> docker(content);
  return util::detail::modal_dialog_service_factory<T>::run(handle_of<docker_impl>(docker)) != 0;
}

}  // namespace zu::toolkit
