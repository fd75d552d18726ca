#pragma once
// The ordered keyed list: values in order of addition, with lookup by position (from 1) and by text key.
//
// Keys are unique regardless of case. By key everything takes constant time, by position the way from the nearer end.
// Failures: 5 for an unknown key, 9 for an unknown position, 457 for a key in use.

#include "base/failure.h"
#include "base/text.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quor {

template <class T> class KeyedList {
    struct Node {
        Node* previous = nullptr;
        Node* next = nullptr;
        Node* chain = nullptr;
        std::size_t hash = 0;
        std::string key;
        T value;
    };

public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = const T&;

        Iterator() = default;
        explicit Iterator(const Node* node) : m_node(node) {}
        const T& operator*() const { return m_node->value; }
        const T* operator->() const { return &m_node->value; }
        Iterator& operator++()
        {
            m_node = m_node->next;
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const Node* m_node = nullptr;
    };

    KeyedList() = default;
    KeyedList(const KeyedList&) = delete;
    KeyedList& operator=(const KeyedList&) = delete;
    ~KeyedList() { Clear(); }

    std::size_t Count() const noexcept { return m_count; }
    Iterator begin() const { return Iterator(m_first); }
    Iterator end() const { return Iterator(); }

    void Add(std::string_view key, T value) { Link(key, std::move(value), nullptr); }

    // In front of the value at that position.
    void AddBefore(std::size_t position, std::string_view key, T value) { Link(key, std::move(value), &At(position)); }

    // Behind the value at that position.
    void AddAfter(std::size_t position, std::string_view key, T value)
    {
        Link(key, std::move(value), At(position).next);
    }

    const T& Item(std::string_view key) const { return Known(key).value; }
    const T& Item(std::size_t position) const { return At(position).value; }

    // Null if there is no such key.
    const T* Find(std::string_view key) const noexcept
    {
        const Node* node = Lookup(key, FoldedHash(key));
        return node == nullptr ? nullptr : &node->value;
    }

    T Remove(std::string_view key) { return Unlink(Known(key)); }
    T Remove(std::size_t position) { return Unlink(At(position)); }

    // Values go in their order; each is off the list before it ends.
    void Clear() noexcept
    {
        while (m_first != nullptr) {
            Unlink(*m_first);
        }
    }

private:
    Node& At(std::size_t position) const
    {
        if (position < 1 || position > m_count) {
            throw Failure(failures::outOfRange);
        }
        Node* node = m_first;
        if (position <= m_count / 2) {
            for (std::size_t at = 1; at < position; ++at) {
                node = node->next;
            }
            return *node;
        }
        node = m_last;
        for (std::size_t at = m_count; at > position; --at) {
            node = node->previous;
        }
        return *node;
    }

    Node& Known(std::string_view key) const
    {
        Node* node = Lookup(key, FoldedHash(key));
        if (node == nullptr) {
            throw Failure(failures::invalidCall);
        }
        return *node;
    }

    Node* Lookup(std::string_view key, std::size_t hash) const noexcept
    {
        if (m_buckets.empty()) {
            return nullptr;
        }
        for (Node* node = m_buckets[hash & (m_buckets.size() - 1)]; node != nullptr; node = node->chain) {
            if (node->hash == hash && SameText(node->key, key)) {
                return node;
            }
        }
        return nullptr;
    }

    void Link(std::string_view key, T value, Node* before)
    {
        const std::size_t hash = FoldedHash(key);
        if (Lookup(key, hash) != nullptr) {
            throw Failure(failures::keyInUse);
        }
        if (m_count >= m_buckets.size()) {
            Grow();
        }
        auto* node = new Node{
            before == nullptr ? m_last : before->previous, before, nullptr, hash, std::string(key), std::move(value)};
        (node->previous == nullptr ? m_first : node->previous->next) = node;
        (before == nullptr ? m_last : before->previous) = node;
        Chain(*node);
        ++m_count;
    }

    void Chain(Node& node) noexcept
    {
        Node*& bucket = m_buckets[node.hash & (m_buckets.size() - 1)];
        node.chain = bucket;
        bucket = &node;
    }

    void Grow()
    {
        std::vector<Node*> buckets(m_buckets.empty() ? 16 : m_buckets.size() * 2, nullptr);
        m_buckets.swap(buckets);
        for (Node* node = m_first; node != nullptr; node = node->next) {
            Chain(*node);
        }
    }

    T Unlink(Node& node) noexcept
    {
        Node** chain = &m_buckets[node.hash & (m_buckets.size() - 1)];
        while (*chain != &node) {
            chain = &(*chain)->chain;
        }
        *chain = node.chain;
        (node.previous == nullptr ? m_first : node.previous->next) = node.next;
        (node.next == nullptr ? m_last : node.next->previous) = node.previous;
        --m_count;
        const std::unique_ptr<Node> owner(&node);
        return std::move(owner->value);
    }

    Node* m_first = nullptr;
    Node* m_last = nullptr;
    std::size_t m_count = 0;
    std::vector<Node*> m_buckets; // a power of two, or none
};

} // namespace quor
