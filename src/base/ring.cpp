#include "base/ring.h"

namespace quor {

void RingNode::Leave() noexcept
{
    if (m_ring != nullptr) {
        m_ring->Unlink(*this);
    }
}

RingWalk::RingWalk(Ring& ring) noexcept
    : m_ring(&ring), m_upcoming(ring.m_head.m_next), m_limit(ring.m_linked), m_outer(ring.m_walks)
{
    ring.m_walks = this;
}

Ring::~Ring()
{
    while (!IsEmpty()) {
        Unlink(*m_head.m_next);
    }
    for (RingWalk* walk = m_walks; walk != nullptr; walk = walk->m_outer) {
        walk->m_ring = nullptr;
    }
}

void Ring::Append(RingNode& node) noexcept
{
    node.Leave();
    node.m_ring = this;
    node.m_number = m_linked++;
    node.m_previous = m_head.m_previous;
    node.m_next = &m_head;
    m_head.m_previous->m_next = &node;
    m_head.m_previous = &node;
}

void Ring::Unlink(RingNode& node) noexcept
{
    for (RingWalk* walk = m_walks; walk != nullptr; walk = walk->m_outer) {
        if (walk->m_upcoming == &node) {
            walk->m_upcoming = node.m_next;
        }
    }
    node.m_previous->m_next = node.m_next;
    node.m_next->m_previous = node.m_previous;
    node.m_previous = &node;
    node.m_next = &node;
    node.m_ring = nullptr;
}

} // namespace quor
