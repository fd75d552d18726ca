#pragma once
// The rows that the pages of the round and the rectangular LED have in common.

#include "pages/page.h"

namespace quor {

template <class E> class LampPage : public ElementPage<E> {
protected:
    using ElementPage<E>::ElementPage;

    void LampRows()
    {
        this->ListRow("cboBevelStyle", "Bevel Style:", {"None", "Raised", "Lowered"}, &E::BevelStyle);
        this->ColorRow("clrOn", "cmdBrwsOnColor", "On Color:", &E::ColorActive);
        this->ColorRow("clrOff", "cmdBrwsOffColor", "Off Color:", &E::ColorInactive);
        this->CheckRow("chkReflection", "Show Reflection", &E::Reflection);
        this->AutoColorBox("chkAutoOffColor", "Automatically determine Off Color", &E::AutoInactive, "clrOff",
                           "cmdBrwsOffColor", &E::ColorInactive);
    }
};

} // namespace quor
