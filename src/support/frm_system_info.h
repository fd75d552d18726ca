#pragma once
// What the platform knows of the system, in fields whose text can be selected and copied.

#include "forms/fields.h"
#include "forms/form.h"

#include <vector>

namespace quor {

struct SystemFact;

class frmSystemInfo final : public Form {
public:
    explicit frmSystemInfo(const std::vector<SystemFact>& facts);

    Button& cmdOK = Make<Button>("cmdOK", "OK");

private:
    Subscription m_onOk;
};

} // namespace quor
