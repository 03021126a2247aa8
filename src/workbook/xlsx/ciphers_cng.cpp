// With CNG, the cryptography of Windows itself; ciphers_openssl.cpp is the same elsewhere.
#include "workbook/xlsx/ciphers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include <windows.h>

#include <bcrypt.h>

namespace tavelo {

namespace {

constexpr std::size_t block_size = 16;

struct CloseAlgorithm {
    using pointer = BCRYPT_ALG_HANDLE;
    void operator()(pointer handle) const { BCryptCloseAlgorithmProvider(handle, 0); }
};
struct DestroyHash {
    using pointer = BCRYPT_HASH_HANDLE;
    void operator()(pointer handle) const { BCryptDestroyHash(handle); }
};
struct DestroyKey {
    using pointer = BCRYPT_KEY_HANDLE;
    void operator()(pointer handle) const { BCryptDestroyKey(handle); }
};
using Algorithm = std::unique_ptr<void, CloseAlgorithm>;
using Hash = std::unique_ptr<void, DestroyHash>;
using Key = std::unique_ptr<void, DestroyKey>;

bool done(NTSTATUS status) { return status >= 0; }

// CNG takes no pointers to what is constant; it changes nothing of its input.
unsigned char* data_of(ByteSpan bytes) {
    return const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(bytes.data()));
}
unsigned char* data_of(Bytes& bytes) { return reinterpret_cast<unsigned char*>(bytes.data()); }

ULONG size_of(ByteSpan bytes) { return static_cast<ULONG>(bytes.size()); }

Algorithm algorithm(const wchar_t* name) {
    BCRYPT_ALG_HANDLE handle = nullptr;
    return Algorithm(done(BCryptOpenAlgorithmProvider(&handle, name, nullptr, 0)) ? handle : nullptr);
}

// Opened once: a locked package asks for a hundred thousand digests, and opening takes longer than computing one.
BCRYPT_ALG_HANDLE digest_named(std::string_view name) {
    struct Digest {
        std::string_view name;
        Algorithm algorithm;
    };
    static const std::array<Digest, 4> digests = {{{"SHA1", algorithm(BCRYPT_SHA1_ALGORITHM)},
                                                   {"SHA256", algorithm(BCRYPT_SHA256_ALGORITHM)},
                                                   {"SHA384", algorithm(BCRYPT_SHA384_ALGORITHM)},
                                                   {"SHA512", algorithm(BCRYPT_SHA512_ALGORITHM)}}};
    const auto* found = std::ranges::find(digests, name, &Digest::name);
    return found == digests.end() ? nullptr : found->algorithm.get();
}

std::optional<ULONG> number_property(BCRYPT_HANDLE handle, const wchar_t* name) {
    ULONG value = 0;
    ULONG size = 0;
    if (!done(BCryptGetProperty(handle, name, reinterpret_cast<unsigned char*>(&value), sizeof value, &size, 0)))
        return std::nullopt;
    return value;
}

bool set_mode(const Algorithm& aes, const wchar_t* mode, std::size_t size) {
    auto* text = reinterpret_cast<unsigned char*>(const_cast<wchar_t*>(mode));
    return done(BCryptSetProperty(aes.get(), BCRYPT_CHAINING_MODE, text, static_cast<ULONG>(size), 0));
}

template <std::size_t n>
std::optional<Bytes> decrypted(const wchar_t (&mode)[n], ByteSpan key_bytes, Bytes first_block, ByteSpan data) {
    const bool fits = key_bytes.size() == 16 || key_bytes.size() == 24 || key_bytes.size() == 32;
    if (!fits || data.size() % block_size != 0 || data.size() > INT32_MAX) return std::nullopt;
    if (data.empty()) return Bytes();
    const Algorithm aes = algorithm(BCRYPT_AES_ALGORITHM);
    if (!aes || !set_mode(aes, mode, sizeof mode)) return std::nullopt;
    BCRYPT_KEY_HANDLE handle = nullptr;
    if (!done(BCryptGenerateSymmetricKey(aes.get(), &handle, nullptr, 0, data_of(key_bytes), size_of(key_bytes), 0)))
        return std::nullopt;
    const Key key(handle);
    Bytes plain(data.size());
    ULONG written = 0;
    if (!done(BCryptDecrypt(key.get(), data_of(data), size_of(data), nullptr,
                            first_block.empty() ? nullptr : data_of(first_block), size_of(first_block), data_of(plain),
                            size_of(plain), &written, 0)) ||
        written != plain.size())
        return std::nullopt;
    return plain;
}

} // namespace

std::optional<Bytes> digest(std::string_view name, std::initializer_list<ByteSpan> parts) {
    const BCRYPT_ALG_HANDLE found = digest_named(name);
    if (found == nullptr) return std::nullopt;
    const std::optional<ULONG> length = number_property(found, BCRYPT_HASH_LENGTH);
    BCRYPT_HASH_HANDLE handle = nullptr;
    if (!length || !done(BCryptCreateHash(found, &handle, nullptr, 0, nullptr, 0, 0))) return std::nullopt;
    const Hash hash(handle);
    for (const ByteSpan part : parts) {
        if (!part.empty() && !done(BCryptHashData(hash.get(), data_of(part), size_of(part), 0))) return std::nullopt;
    }
    Bytes result(*length);
    if (!done(BCryptFinishHash(hash.get(), data_of(result), size_of(result), 0))) return std::nullopt;
    return result;
}

std::optional<Bytes> aes_ecb_decrypted(ByteSpan key, ByteSpan data) {
    return decrypted(BCRYPT_CHAIN_MODE_ECB, key, {}, data);
}

std::optional<Bytes> aes_cbc_decrypted(ByteSpan key, ByteSpan first_block, ByteSpan data) {
    if (first_block.size() != block_size) return std::nullopt;
    return decrypted(BCRYPT_CHAIN_MODE_CBC, key, Bytes(first_block.begin(), first_block.end()), data);
}

} // namespace tavelo
