#pragma once
// An event of a class and the subscriptions to it.
//
// A handler may end any subscription, subscribe (the new one waits for the next raise), raise again and destroy the
// publisher. A handler that fails stops the round and the failure reaches the raiser; subscribe it Quietly if not.

#include "base/ring.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace quor {

namespace detail {

// A subscriber in the ring of its event.
struct EventNode : RingNode {
    std::uint32_t runs = 0;   // calls of the handler under way
    bool isSubscribed = true; // a subscription owns the node
    virtual ~EventNode() = default;
};

void Unsubscribe(EventNode* node) noexcept;

inline void EndRun(EventNode* node) noexcept
{
    --node->runs;
    if (node->runs == 0 && !node->isSubscribed) {
        delete node;
    }
}

} // namespace detail

// Ends its subscription with its own life. Move-only.
class Subscription {
public:
    Subscription() noexcept = default;
    explicit Subscription(detail::EventNode* node) noexcept : m_node(node) {}
    Subscription(Subscription&& other) noexcept : m_node(std::exchange(other.m_node, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            End();
            m_node = std::exchange(other.m_node, nullptr);
        }
        return *this;
    }
    ~Subscription() { End(); }

    void End() noexcept
    {
        if (m_node != nullptr) {
            detail::Unsubscribe(std::exchange(m_node, nullptr));
        }
    }

private:
    detail::EventNode* m_node = nullptr;
};

template <class... Arguments> class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    Event() noexcept = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() = default;

    [[nodiscard]] Subscription Subscribe(Handler handler)
    {
        if (m_ring == nullptr) {
            m_ring = std::make_unique<Ring>();
        }
        auto* node = new Node(std::move(handler));
        m_ring->Append(*node);
        return Subscription(node);
    }

    bool HasListeners() const noexcept { return m_ring != nullptr && !m_ring->IsEmpty(); }

    void Raise(Arguments... arguments) const
    {
        if (HasListeners()) {
            RaiseTo(*m_ring, arguments...);
        }
    }

private:
    struct Node final : detail::EventNode {
        explicit Node(Handler handlerOf) : handler(std::move(handlerOf)) {}
        Handler handler;
    };

    struct Run {
        explicit Run(detail::EventNode* nodeOf) noexcept : node(nodeOf) { ++node->runs; }
        ~Run() { detail::EndRun(node); }
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        detail::EventNode* node;
    };

    static void RaiseTo(Ring& ring, const Arguments&... arguments)
    {
        RingWalk walk(ring);
        while (RingNode* next = walk.Next()) {
            auto* node = static_cast<Node*>(next);
            const Run run(node);
            node->handler(arguments...);
        }
    }

    std::unique_ptr<Ring> m_ring; // made for the first subscriber
};

} // namespace quor
