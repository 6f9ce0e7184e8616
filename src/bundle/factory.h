#pragma once
// The global list of service factories. A factory is a static object of the module: it enters the
// list in its constructor and leaves it in its destructor.

#include <list>
#include <string>

#include "zu/services.h"

namespace zu {

class basic_service_factory_impl : public service_factory_impl {
 public:
  explicit basic_service_factory_impl(const wchar_t* name_space)
      : name_space_(name_space != nullptr ? name_space : L"") {}
  basic_service_factory_impl(const basic_service_factory_impl&) = delete;
  basic_service_factory_impl& operator=(const basic_service_factory_impl&) = delete;
  virtual ~basic_service_factory_impl() = default;
  const std::wstring& name_space() const { return name_space_; }

 private:
  std::wstring name_space_;
};

/// In the order in which they are offered to the host.
std::list<basic_service_factory_impl*>& service_factories();

/// Stands at the end of the list.
class custom_service_factory_impl : public basic_service_factory_impl {
 public:
  explicit custom_service_factory_impl(const wchar_t* name_space);
  ~custom_service_factory_impl() override;
};

/// Stands at the head of the list: the host meets it first.
class custom_client_factory_impl : public basic_service_factory_impl {
 public:
  explicit custom_client_factory_impl(const wchar_t* name_space);
  ~custom_client_factory_impl() override;
};

/// A namespace of this system, from its path.
#define ZU_NAMESPACE(path) L"zugrid" path

}  // namespace zu
