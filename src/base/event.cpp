#include "base/event.h"

namespace quor::detail {

void Unsubscribe(EventNode* node) noexcept
{
    node->Leave();
    node->isSubscribed = false;
    if (node->runs == 0) {
        delete node;
    }
}

} // namespace quor::detail
