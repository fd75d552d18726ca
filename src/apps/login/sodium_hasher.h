#pragma once
// Argon2id by libsodium.

#include "platform/password_hash.h"

namespace quor {

class SodiumHasher final : public PasswordHasher {
public:
    std::string Hash(const std::string& password) override;
    bool Verify(const std::string& hash, const std::string& password) override;
};

} // namespace quor
