// Microsoft describes two ways of locking in MS-OFFCRYPTO: "standard" of Excel 2007 (AES in single blocks under a key
// by SHA-1) and "agile" of later versions (AES in chained blocks, everything named in a piece of XML).
#include "workbook/xlsx/locked_package.h"

#include "workbook/xls/compound_file.h"
#include "workbook/xlsx/ciphers.h"
#include "workbook/xlsx/xml_reader.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace tavelo {

namespace {

constexpr std::u16string_view password_of_excel = u"VelvetSweatshop";
// Excel takes 100,000 turns; a file that asks for endless ones is not waited for.
constexpr std::uint32_t most_turns = 1'000'000;

Bytes bytes_of(std::u16string_view text) {
    Bytes bytes;
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<std::byte>(unit & 0xFF));
        bytes.push_back(static_cast<std::byte>(unit >> 8));
    }
    return bytes;
}

std::array<std::byte, 4> bytes_of(std::uint32_t number) {
    return {static_cast<std::byte>(number & 0xFF), static_cast<std::byte>(number >> 8 & 0xFF),
            static_cast<std::byte>(number >> 16 & 0xFF), static_cast<std::byte>(number >> 24)};
}

// The password hashed with the salt, and then `turns` times with the number of the turn before it.
std::optional<Bytes> password_digest(std::string_view algorithm, ByteSpan salt, std::uint32_t turns) {
    const Bytes password = bytes_of(password_of_excel);
    auto result = digest(algorithm, {salt, password});
    for (std::uint32_t turn = 0; result && turn < turns; ++turn)
        result = digest(algorithm, {bytes_of(turn), *result});
    return result;
}

// The stream begins with the length of the package in 8 bytes.
std::expected<Bytes, OpenFailure> of_stated_length(ByteSpan stream, Bytes package) {
    const std::uint64_t length = long_at(stream, 0) | std::uint64_t{long_at(stream, 4)} << 32;
    if (length > package.size()) return std::unexpected(OpenFailure::damaged);
    package.resize(static_cast<std::size_t>(length));
    return package;
}

ByteSpan whole_blocks(ByteSpan bytes) { return bytes.first(bytes.size() / 16 * 16); }

// --- standard

constexpr std::uint32_t standard_turns = 50'000;

std::optional<Bytes> standard_key(ByteSpan salt, std::size_t key_size) {
    const auto password = password_digest("SHA1", salt, standard_turns);
    if (!password) return std::nullopt;
    const auto hash = digest("SHA1", {*password, bytes_of(0U)});
    if (!hash) return std::nullopt;
    Bytes key;
    for (const std::byte fill : {std::byte{0x36}, std::byte{0x5C}}) {
        std::array<std::byte, 64> pad;
        pad.fill(fill);
        for (std::size_t i = 0; i < hash->size(); ++i)
            pad[i] ^= (*hash)[i];
        const auto half = digest("SHA1", {pad});
        if (!half) return std::nullopt;
        key.insert(key.end(), half->begin(), half->end());
    }
    if (key_size > key.size()) return std::nullopt;
    key.resize(key_size);
    return key;
}

std::expected<Bytes, OpenFailure> unlock_standard(ByteSpan info, ByteSpan stream) {
    const std::size_t verifier = std::size_t{12} + long_at(info, 8);
    const auto key = standard_key(part_of(info, verifier + 4, 16), long_at(info, 28) / 8);
    if (!key) return std::unexpected(OpenFailure::password);

    const auto input = aes_ecb_decrypted(*key, part_of(info, verifier + 20, 16));
    const auto expected = aes_ecb_decrypted(*key, part_of(info, verifier + 40, 32));
    if (!input || !expected) return std::unexpected(OpenFailure::password);
    const auto hash = digest("SHA1", {*input});
    if (!hash || expected->size() < hash->size() || !std::equal(hash->begin(), hash->end(), expected->begin()))
        return std::unexpected(OpenFailure::password);

    auto package = aes_ecb_decrypted(*key, whole_blocks(part_of(stream, 8)));
    if (!package) return std::unexpected(OpenFailure::damaged);
    return of_stated_length(stream, std::move(*package));
}

// --- agile

struct AgileKey {
    std::string digest_name;
    Bytes salt;
    std::size_t key_size = 0; // in bytes
    bool is_known = false;    // AES in chained blocks
};

struct AgileLock {
    AgileKey data;
    AgileKey password;
    std::uint32_t turns = 0;
    Bytes verifier_input;
    Bytes verifier_hash;
    Bytes locked_key;
};

class AgileHandler : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned, const XmlAttributes& attributes) override {
        if (name == "keyData") lock_.data = key_of(attributes);
        // The first way of unlocking is the password; others, with certificates, come after it.
        if (name != "encryptedKey" || lock_.password.is_known) return;
        lock_.password = key_of(attributes);
        lock_.turns = attributes.number("spinCount").value_or(0);
        lock_.verifier_input = bytes_in(attributes, "encryptedVerifierHashInput");
        lock_.verifier_hash = bytes_in(attributes, "encryptedVerifierHashValue");
        lock_.locked_key = bytes_in(attributes, "encryptedKeyValue");
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

    const AgileLock& lock() const { return lock_; }

  private:
    static Bytes bytes_in(const XmlAttributes& attributes, std::string_view name) {
        return from_base64(attributes.find(name).value_or("")).value_or(Bytes());
    }

    static AgileKey key_of(const XmlAttributes& attributes) {
        AgileKey key;
        key.digest_name = attributes.find("hashAlgorithm").value_or("");
        key.salt = bytes_in(attributes, "saltValue");
        key.key_size = attributes.number("keyBits").value_or(0) / 8;
        key.is_known = attributes.find("cipherAlgorithm") == "AES" && attributes.number("blockSize") == 16U &&
                       attributes.find("cipherChaining") == "ChainingModeCBC";
        return key;
    }

    AgileLock lock_;
};

// Cut off or filled up to `size`.
Bytes of_size(Bytes bytes, std::size_t size) {
    bytes.resize(size, std::byte{0x36});
    return bytes;
}

using Purpose = std::array<std::uint8_t, 8>;
constexpr Purpose for_verifier_input{0xFE, 0xA7, 0xD2, 0x76, 0x3B, 0x4B, 0x9E, 0x79};
constexpr Purpose for_verifier_hash{0xD7, 0xAA, 0x0F, 0x6D, 0x30, 0x61, 0x34, 0x4E};
constexpr Purpose for_key{0x14, 0x6E, 0x0B, 0xE7, 0xAB, 0xAC, 0xD0, 0xD6};

std::optional<Bytes> agile_decrypted(const AgileKey& key, ByteSpan password, const Purpose& purpose, ByteSpan data) {
    const auto hash = digest(key.digest_name, {password, std::as_bytes(std::span(purpose))});
    if (!hash) return std::nullopt;
    return aes_cbc_decrypted(of_size(*hash, key.key_size), of_size(key.salt, 16), data);
}

std::optional<Bytes> agile_key(const AgileLock& lock) {
    const bool is_known = lock.data.is_known && lock.password.is_known && lock.turns <= most_turns &&
                          lock.password.key_size <= 32 && lock.data.key_size <= 32;
    if (!is_known) return std::nullopt;
    const auto password = password_digest(lock.password.digest_name, lock.password.salt, lock.turns);
    if (!password) return std::nullopt;
    const auto input = agile_decrypted(lock.password, *password, for_verifier_input, lock.verifier_input);
    const auto expected = agile_decrypted(lock.password, *password, for_verifier_hash, lock.verifier_hash);
    auto key = agile_decrypted(lock.password, *password, for_key, lock.locked_key);
    if (!input || !expected || !key) return std::nullopt;
    const auto hash = digest(lock.password.digest_name, {*input});
    if (!hash || expected->size() < hash->size() || !std::equal(hash->begin(), hash->end(), expected->begin()))
        return std::nullopt;
    return of_size(std::move(*key), lock.data.key_size);
}

// The package is locked in segments, each chained from a first block of its own.
std::expected<Bytes, OpenFailure> unlock_agile(ByteSpan info, ByteSpan stream) {
    constexpr std::size_t segment_size = 4096;
    AgileHandler handler;
    const ByteSpan xml = part_of(info, 8);
    if (!read_xml({reinterpret_cast<const char*>(xml.data()), xml.size()}, handler))
        return std::unexpected(OpenFailure::damaged);
    const AgileKey& data = handler.lock().data;
    const auto key = agile_key(handler.lock());
    if (!key) return std::unexpected(OpenFailure::password);

    const ByteSpan locked = whole_blocks(part_of(stream, 8));
    Bytes package;
    package.reserve(locked.size());
    for (std::uint32_t segment = 0; segment * segment_size < locked.size(); ++segment) {
        const auto hash = digest(data.digest_name, {data.salt, bytes_of(segment)});
        if (!hash) return std::unexpected(OpenFailure::password);
        const auto plain =
            aes_cbc_decrypted(*key, of_size(*hash, 16), part_of(locked, segment * segment_size, segment_size));
        if (!plain) return std::unexpected(OpenFailure::damaged);
        package.insert(package.end(), plain->begin(), plain->end());
    }
    return of_stated_length(stream, std::move(package));
}

} // namespace

std::expected<std::vector<std::byte>, OpenFailure> unlocked_package(ByteSpan file) {
    const Bytes stream = stream_named(file, u"encryptedpackage");
    if (stream.empty()) return std::unexpected(OpenFailure::not_a_workbook);
    const Bytes info = stream_named(file, u"encryptioninfo");
    const unsigned major = word_at(info, 0);
    const unsigned minor = word_at(info, 2);
    if (major == 4 && minor == 4) return unlock_agile(info, stream);
    if (minor == 2 && major >= 2 && major <= 4) return unlock_standard(info, stream);
    return std::unexpected(OpenFailure::password);
}

} // namespace tavelo
