#pragma once
// Hashes of passwords: made slowly and with salt, compared without a hint of how far they agree.

#include <string>

namespace quor {

class PasswordHasher {
public:
    virtual ~PasswordHasher() = default;

    // One word of printable characters. Fails with 7 where memory is short.
    virtual std::string Hash(const std::string& password) = 0;

    // False too for a text that is no hash. Takes as long as Hash does.
    virtual bool Verify(const std::string& hash, const std::string& password) = 0;
};

} // namespace quor
