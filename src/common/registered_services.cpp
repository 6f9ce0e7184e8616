// Everything that this module offers; the localizer client goes to the head by itself.

#include "src/bundle/localizer_client.h"
#include "src/bundle/service_factory.h"
#include "src/common/map_modes_service.h"

namespace zu {
namespace {

util::single_service_factory<map_modes_service, viewer_2d_extension_service_impl,
                             viewer_2d_extension_service_visitor_impl>
    viewer_extension_service(ZU_NAMESPACE(L"/viewer/2d"));
detail::local_factory_impl localizer_client;

}  // namespace
}  // namespace zu
