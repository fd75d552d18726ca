#pragma once
// An event of a class and the subscriptions to it.
//
// A handler may end any subscription, subscribe (the new one waits for the next raise), raise again and destroy the
// publisher. A handler that fails stops the round and the failure reaches the raiser; subscribe it Quietly if not.

#include <cstdint>
#include <functional>
#include <utility>

namespace quor {

namespace detail {

struct EventHub;

// A subscriber in the ring of its hub; the hub itself is the ring's fixed node.
struct EventNode {
    EventNode* previous = this;
    EventNode* next = this;
    EventHub* hub = nullptr;
    std::uint64_t number = 0; // in order of subscription
    std::uint32_t runs = 0;   // calls of the handler under way
    bool isSubscribed = true; // a subscription owns the node
    virtual ~EventNode() = default;
};

// One round under way, on the stack of its raise.
struct EventRound {
    EventNode* upcoming = nullptr;
    std::uint64_t limit = 0; // subscriptions from this number on wait for the next raise
    EventRound* outer = nullptr;
    bool isOver = false; // the publisher is gone
};

struct EventHub final : EventNode {
    EventRound* rounds = nullptr;
    std::uint64_t subscriptions = 0;

    EventHub() = default;
    EventHub(const EventHub&) = delete;
    EventHub& operator=(const EventHub&) = delete;
    ~EventHub() override;
    void Append(EventNode& node) noexcept;
    void Unlink(EventNode& node) noexcept;
};

void Unsubscribe(EventNode* node) noexcept;
void EndRun(EventNode* node) noexcept;

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
    ~Event() { delete m_hub; }

    [[nodiscard]] Subscription Subscribe(Handler handler)
    {
        if (m_hub == nullptr) {
            m_hub = new detail::EventHub;
        }
        auto* node = new Node(std::move(handler));
        m_hub->Append(*node);
        return Subscription(node);
    }

    bool HasListeners() const noexcept { return m_hub != nullptr && m_hub->next != m_hub; }

    void Raise(Arguments... arguments) const
    {
        if (HasListeners()) {
            RaiseTo(*m_hub, arguments...);
        }
    }

private:
    struct Node final : detail::EventNode {
        explicit Node(Handler handlerOf) : handler(std::move(handlerOf)) {}
        Handler handler;
    };

    struct Round : detail::EventRound {
        explicit Round(detail::EventHub& hubOf) : EventRound{hubOf.next, hubOf.subscriptions, hubOf.rounds}, hub(hubOf)
        {
            hub.rounds = this;
        }
        ~Round()
        {
            if (!isOver) {
                hub.rounds = outer;
            }
        }
        Round(const Round&) = delete;
        Round& operator=(const Round&) = delete;
        detail::EventHub& hub;
    };

    struct Run {
        explicit Run(detail::EventNode* nodeOf) noexcept : node(nodeOf) { ++node->runs; }
        ~Run() { detail::EndRun(node); }
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        detail::EventNode* node;
    };

    static void RaiseTo(detail::EventHub& hub, const Arguments&... arguments)
    {
        Round round(hub);
        while (!round.isOver && round.upcoming != &hub && round.upcoming->number < round.limit) {
            detail::EventNode* node = round.upcoming;
            round.upcoming = node->next;
            const Run run(node);
            static_cast<Node*>(node)->handler(arguments...);
        }
    }

    detail::EventHub* m_hub = nullptr;
};

} // namespace quor
