#include "exchange/Secrets.h"

#include "exchange/RecipeID.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <stdexcept>

namespace exchange::Secrets {
namespace {
void Fill(std::span<unsigned char> bytes) {
    if (RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) != 1)
        throw std::runtime_error("no random numbers");
}

std::string Hex(std::span<const unsigned char> bytes) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const auto byte : bytes)
        text.append({digits[byte >> 4], digits[byte & 15]});
    return text;
}
} // namespace

int RandomID() {
    for (;;) {
        std::array<unsigned char, 4> bytes{};
        Fill(bytes);
        std::uint32_t number = 0;
        std::memcpy(&number, bytes.data(), sizeof number);
        if ((number &= RecipeID::Most) >= RecipeID::Least)
            return static_cast<int>(number);
    }
}

std::string RandomToken() {
    std::array<unsigned char, 32> bytes{};
    Fill(bytes);
    return Hex(bytes);
}

std::string Digest(std::string_view text) {
    std::array<unsigned char, 32> bytes{};
    unsigned int size = 0;
    if (EVP_Digest(text.data(), text.size(), bytes.data(), &size, EVP_sha256(), nullptr) != 1)
        throw std::runtime_error("no digest");
    return Hex(bytes);
}

std::string Keyed(std::string_view key, std::string_view text) {
    std::array<unsigned char, 32> bytes{};
    unsigned int size = 0;
    if (!HMAC(EVP_sha256(), key.data(), static_cast<int>(key.size()),
              reinterpret_cast<const unsigned char*>(text.data()), text.size(), bytes.data(),
              &size))
        throw std::runtime_error("no digest");
    return Hex(bytes);
}

bool Equal(std::string_view one, std::string_view other) {
    return one.size() == other.size() && CRYPTO_memcmp(one.data(), other.data(), one.size()) == 0;
}

} // namespace exchange::Secrets
