#include "base/event.h"

namespace quor::detail {

void EventHub::Append(EventNode& node) noexcept
{
    node.hub = this;
    node.number = subscriptions++;
    node.previous = previous;
    node.next = this;
    previous->next = &node;
    previous = &node;
}

void EventHub::Unlink(EventNode& node) noexcept
{
    for (EventRound* round = rounds; round != nullptr; round = round->outer) {
        if (round->upcoming == &node) {
            round->upcoming = node.next;
        }
    }
    node.previous->next = node.next;
    node.next->previous = node.previous;
    node.hub = nullptr;
}

EventHub::~EventHub()
{
    while (next != this) {
        Unlink(*next);
    }
    for (EventRound* round = rounds; round != nullptr; round = round->outer) {
        round->isOver = true;
    }
}

void Unsubscribe(EventNode* node) noexcept
{
    if (node->hub != nullptr) {
        node->hub->Unlink(*node);
    }
    node->isSubscribed = false;
    if (node->runs == 0) {
        delete node;
    }
}

void EndRun(EventNode* node) noexcept
{
    --node->runs;
    if (node->runs == 0 && !node->isSubscribed) {
        delete node;
    }
}

} // namespace quor::detail
