// Everything that this module offers; the localizer client goes to the head by itself.

#include "src/bundle/localizer_client.h"
#include "src/bundle/modal_dialog.h"
#include "src/bundle/service_factory.h"
#include "src/common/class_builder_service.h"
#include "src/common/gallery.h"
#include "src/common/map_modes_service.h"

namespace zu {
namespace {

util::single_service_factory<map_modes_service, viewer_2d_extension_service_impl,
                             viewer_2d_extension_service_visitor_impl>
    viewer_extension_service(ZU_NAMESPACE(L"/viewer/2d"));
util::single_service_factory<gallery::tool_service, tool_service_impl, tool_service_visitor_impl>
    gallery_tools(ZU_NAMESPACE(L"/gallery"));
util::detail::modal_dialog_service_factory<gallery::dialog> gallery_dialog;
util::single_service_factory<class_builder_service_of_common, class_builder_service_impl,
                             class_builder_service_visitor_impl>
    class_builders(ZU_NAMESPACE(L"/classes"));
detail::local_factory_impl localizer_client;

}  // namespace
}  // namespace zu
