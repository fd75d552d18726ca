#include "apps/login/sodium_hasher.h"

#include "base/failure.h"

#include <array>
#include <sodium.h>

namespace quor {

namespace {

void Begin()
{
    if (sodium_init() < 0) {
        throw Failure(failures::internal, "The library for passwords doesn't start.");
    }
}

} // namespace

std::string SodiumHasher::Hash(const std::string& password)
{
    Begin();
    std::array<char, crypto_pwhash_STRBYTES> hash{};
    if (crypto_pwhash_str_alg(hash.data(), password.data(), password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                              crypto_pwhash_MEMLIMIT_INTERACTIVE, crypto_pwhash_ALG_ARGON2ID13) != 0) {
        throw Failure(failures::outOfMemory);
    }
    return hash.data();
}

bool SodiumHasher::Verify(const std::string& hash, const std::string& password)
{
    Begin();
    return hash.size() < crypto_pwhash_STRBYTES &&
           crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

} // namespace quor
