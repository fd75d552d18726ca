#pragma once
// Several functions as one, each for arguments of its own: for std::visit.

namespace quor {

template <class... Functions> struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions> Overloaded(Functions...) -> Overloaded<Functions...>;

} // namespace quor
