#pragma once
// An intrusive ring of nodes that can be walked while nodes come and go, and while the ring itself ends.
//
// A node that is linked during a walk waits for the next one.

#include <cstdint>

namespace quor {

class Ring;

class RingNode {
public:
    RingNode() noexcept = default;
    RingNode(const RingNode&) = delete;
    RingNode& operator=(const RingNode&) = delete;
    ~RingNode() { Leave(); }

    // The ring that it is in, null for none.
    Ring* In() const noexcept { return m_ring; }
    void Leave() noexcept;

private:
    friend class Ring;
    friend class RingWalk;

    RingNode* m_previous = this;
    RingNode* m_next = this;
    Ring* m_ring = nullptr;
    std::uint64_t m_number = 0; // in order of linking
};

// One walk under way, on the stack of who walks.
class RingWalk {
public:
    explicit RingWalk(Ring& ring) noexcept;
    RingWalk(const RingWalk&) = delete;
    RingWalk& operator=(const RingWalk&) = delete;
    ~RingWalk();

    // Null when the walk is over.
    RingNode* Next() noexcept;

private:
    friend class Ring;

    Ring* m_ring; // null when the ring is gone
    RingNode* m_upcoming;
    std::uint64_t m_limit;
    RingWalk* m_outer;
};

class Ring {
public:
    Ring() noexcept = default;
    Ring(const Ring&) = delete;
    Ring& operator=(const Ring&) = delete;
    // Its nodes are in no ring from then on.
    ~Ring();

    bool IsEmpty() const noexcept { return m_head.m_next == &m_head; }

    // At the end; out of the ring in which it was.
    void Append(RingNode& node) noexcept;

private:
    friend class RingNode;
    friend class RingWalk;

    void Unlink(RingNode& node) noexcept;

    RingNode m_head;
    RingWalk* m_walks = nullptr;
    std::uint64_t m_linked = 0;
};

inline RingWalk::~RingWalk()
{
    if (m_ring != nullptr) {
        m_ring->m_walks = m_outer;
    }
}

inline RingNode* RingWalk::Next() noexcept
{
    if (m_ring == nullptr || m_upcoming == &m_ring->m_head || m_upcoming->m_number >= m_limit) {
        return nullptr;
    }
    RingNode* node = m_upcoming;
    m_upcoming = node->m_next;
    return node;
}

} // namespace quor
