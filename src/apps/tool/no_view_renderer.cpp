#include "apps/tool/view_renderer.h"

namespace quor {

std::unique_ptr<ViewRenderer> MakeViewRenderer()
{
    return nullptr;
}

} // namespace quor
