#pragma once
// What forms, controls, bands and tools share: looks that are read as `x.P()`, written as `x.Set(&X::P, value)`, and
// tell whoever draws them.

#include "base/event.h"
#include "base/property.h"

#include <concepts>
#include <utility>

namespace quor {

// Something that is drawn.
class Shown {
public:
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;
    virtual ~Shown() = default;

    Event<> Changed; // it looks different from now on

protected:
    Shown() = default;

    // True if the value is another one; then it has been announced.
    template <class P> bool Write(P& property, typename P::Value value)
    {
        if (property() == value) {
            return false;
        }
        PropertyAccess::Value(property) = std::move(value);
        Changed.Raise();
        return true;
    }
};

// Gives the class Self its Set, for its own properties and those of its bases.
template <class Self, class Base = Shown> class Looks : public Base {
public:
    using Base::Base;

    template <class C, class P>
    requires std::derived_from<Self, C>
    void Set(P C::*property, typename P::Value value)
    {
        this->Write(static_cast<Self&>(*this).*property, std::move(value));
    }
};

} // namespace quor
