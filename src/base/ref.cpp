#include "base/ref.h"

namespace quor {

static_assert(!detail::BlocksOverlap(), "a reference number stands twice");
static_assert(detail::NamesAreUnique(), "a procedure stands twice");
static_assert(detail::MainFormKeepsItsRange(), "the main form has 14001 to 14068");

} // namespace quor
