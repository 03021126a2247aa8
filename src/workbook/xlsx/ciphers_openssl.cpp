// With libcrypto; ciphers_cng.cpp is the same on Windows.
#include "workbook/xlsx/ciphers.h"

#include <openssl/evp.h>

#include <array>
#include <memory>

namespace tavelo {

namespace {

constexpr std::size_t block_size = 16;

struct FreeDigest {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};
struct FreeCipher {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};

const unsigned char* data_of(ByteSpan bytes) { return reinterpret_cast<const unsigned char*>(bytes.data()); }
unsigned char* data_of(Bytes& bytes) { return reinterpret_cast<unsigned char*>(bytes.data()); }

const EVP_MD* digest_named(std::string_view name) {
    if (name == "SHA1") return EVP_sha1();
    if (name == "SHA256") return EVP_sha256();
    if (name == "SHA384") return EVP_sha384();
    if (name == "SHA512") return EVP_sha512();
    return nullptr;
}

const EVP_CIPHER* ecb_for(std::size_t key_size) {
    if (key_size == 16) return EVP_aes_128_ecb();
    if (key_size == 24) return EVP_aes_192_ecb();
    return key_size == 32 ? EVP_aes_256_ecb() : nullptr;
}

const EVP_CIPHER* cbc_for(std::size_t key_size) {
    if (key_size == 16) return EVP_aes_128_cbc();
    if (key_size == 24) return EVP_aes_192_cbc();
    return key_size == 32 ? EVP_aes_256_cbc() : nullptr;
}

std::optional<Bytes> decrypted(const EVP_CIPHER* cipher, ByteSpan key, const unsigned char* first_block,
                               ByteSpan data) {
    const std::unique_ptr<EVP_CIPHER_CTX, FreeCipher> context(EVP_CIPHER_CTX_new());
    if (!context || cipher == nullptr || data.size() % block_size != 0 || data.size() > INT32_MAX) return std::nullopt;
    Bytes plain(data.size() + block_size);
    int written = 0;
    int rest = 0;
    if (EVP_DecryptInit_ex(context.get(), cipher, nullptr, data_of(key), first_block) != 1 ||
        EVP_CIPHER_CTX_set_padding(context.get(), 0) != 1 ||
        EVP_DecryptUpdate(context.get(), data_of(plain), &written, data_of(data), static_cast<int>(data.size())) != 1 ||
        EVP_DecryptFinal_ex(context.get(), data_of(plain) + written, &rest) != 1)
        return std::nullopt;
    plain.resize(data.size());
    return plain;
}

} // namespace

std::optional<Bytes> digest(std::string_view name, std::initializer_list<ByteSpan> parts) {
    const EVP_MD* const algorithm = digest_named(name);
    const std::unique_ptr<EVP_MD_CTX, FreeDigest> context(EVP_MD_CTX_new());
    if (algorithm == nullptr || !context || EVP_DigestInit_ex(context.get(), algorithm, nullptr) != 1)
        return std::nullopt;
    for (const ByteSpan part : parts) {
        if (EVP_DigestUpdate(context.get(), part.data(), part.size()) != 1) return std::nullopt;
    }
    Bytes result(static_cast<std::size_t>(EVP_MD_size(algorithm)));
    if (EVP_DigestFinal_ex(context.get(), data_of(result), nullptr) != 1) return std::nullopt;
    return result;
}

std::optional<Bytes> aes_ecb_decrypted(ByteSpan key, ByteSpan data) {
    return decrypted(ecb_for(key.size()), key, nullptr, data);
}

std::optional<Bytes> aes_cbc_decrypted(ByteSpan key, ByteSpan first_block, ByteSpan data) {
    if (first_block.size() != block_size) return std::nullopt;
    return decrypted(cbc_for(key.size()), key, data_of(first_block), data);
}

} // namespace tavelo
