#include "workbook/xls/decryption.h"

#include "workbook/xls/digest.h"

#include <algorithm>
#include <bit>
#include <memory>
#include <vector>

namespace tavelo {

namespace {

constexpr std::string_view built_in_password = "VelvetSweatshop";

void append(std::vector<std::byte>& target, ByteSpan bytes) { target.insert(target.end(), bytes.begin(), bytes.end()); }

void append_long(std::vector<std::byte>& target, std::uint32_t value) {
    for (unsigned i = 0; i < 4; ++i)
        target.push_back(static_cast<std::byte>(value >> 8 * i & 0xFF));
}

std::vector<std::byte> wide_password() {
    std::vector<std::byte> bytes;
    for (const char letter : built_in_password) {
        bytes.push_back(static_cast<std::byte>(letter));
        bytes.push_back(std::byte{0});
    }
    return bytes;
}

class Cipher {
  public:
    virtual ~Cipher() = default;
    // Unlocks one byte at `place` in the stream, of a record with `length` bytes of data. Places only go up.
    [[nodiscard]] virtual std::byte unlocked(std::byte value, std::size_t place, std::size_t length) = 0;
};

// Every 1,024 bytes of the stream have an RC4 key of their own. Bytes that are not locked count as well.
class Rc4Cipher : public Cipher {
  public:
    [[nodiscard]] std::byte unlocked(std::byte value, std::size_t place, std::size_t) override {
        constexpr std::size_t block_size = 1024;
        const std::size_t block = place / block_size;
        if (!rc4_ || block != block_) {
            rc4_.emplace(key_of_block(static_cast<std::uint32_t>(block)));
            block_ = block;
            used_ = 0;
        }
        for (; used_ < place % block_size; ++used_)
            static_cast<void>(rc4_->next());
        ++used_;
        return value ^ rc4_->next();
    }

    // The file holds locked bytes and, locked behind them, their digest, so that a wrong password shows.
    template <typename Digest>
    [[nodiscard]] bool fits(ByteSpan locked, ByteSpan locked_digest, Digest digest) const {
        Rc4 rc4(key_of_block(0));
        const auto unlock_part = [&rc4](ByteSpan part) {
            std::vector<std::byte> bytes(part.size());
            std::ranges::transform(part, bytes.begin(), [&rc4](std::byte value) { return value ^ rc4.next(); });
            return bytes;
        };
        const std::vector<std::byte> verifier = unlock_part(locked);
        return std::ranges::equal(unlock_part(locked_digest), digest(verifier));
    }

  protected:
    [[nodiscard]] virtual std::vector<std::byte> key_of_block(std::uint32_t block) const = 0;

  private:
    std::optional<Rc4> rc4_;
    std::size_t block_ = 0;
    std::size_t used_ = 0; // bytes of the current block
};

// RC4 with 40 bits, since Excel 97.
class Rc4Of40Bits final : public Rc4Cipher {
  public:
    explicit Rc4Of40Bits(ByteSpan salt) {
        const auto password = md5(wide_password());
        std::vector<std::byte> repeated;
        for (int i = 0; i < 16; ++i) {
            append(repeated, ByteSpan(password).first(strength));
            append(repeated, salt);
        }
        base_ = md5(repeated);
    }

  protected:
    [[nodiscard]] std::vector<std::byte> key_of_block(std::uint32_t block) const override {
        std::vector<std::byte> key;
        append(key, ByteSpan(base_).first(strength));
        append_long(key, block);
        const auto digest = md5(key);
        return {digest.begin(), digest.end()};
    }

  private:
    static constexpr std::size_t strength = 5;
    std::array<std::byte, 16> base_{};
};

// RC4 with a chosen strength and SHA-1, since Excel 2002.
class Rc4OfChosenStrength final : public Rc4Cipher {
  public:
    Rc4OfChosenStrength(ByteSpan salt, std::size_t strength) : strength_(strength) {
        std::vector<std::byte> salted(salt.begin(), salt.end());
        append(salted, wide_password());
        base_ = sha1(salted);
    }

  protected:
    [[nodiscard]] std::vector<std::byte> key_of_block(std::uint32_t block) const override {
        std::vector<std::byte> key(base_.begin(), base_.end());
        append_long(key, block);
        const auto digest = sha1(key);
        key.assign(digest.begin(), digest.begin() + static_cast<std::ptrdiff_t>(strength_));
        if (strength_ == weak) key.resize(16); // 40 bits are filled up with zeros, other strengths are not
        return key;
    }

  private:
    static constexpr std::size_t weak = 5;
    std::size_t strength_; // bytes of the key
    std::array<std::byte, 20> base_{};
};

// Sixteen bytes made of the password are combined with the data, again and again.
class XorCipher final : public Cipher {
  public:
    XorCipher() {
        static_assert(built_in_password.size() == 15);
        constexpr unsigned filling = 0xBB; // behind the password
        const unsigned key = password_key();
        for (std::size_t i = 0; i < bytes_.size(); ++i) {
            const unsigned letter =
                i < built_in_password.size() ? static_cast<unsigned char>(built_in_password[i]) : filling;
            const unsigned half = i % 2 == 0 ? key & 0xFF : key >> 8;
            bytes_[i] = std::rotl(static_cast<std::uint8_t>(letter ^ half), 2);
        }
    }

    [[nodiscard]] static bool fits(unsigned key, unsigned check) {
        return key == password_key() && check == password_check();
    }

    [[nodiscard]] std::byte unlocked(std::byte value, std::size_t place, std::size_t length) override {
        const std::uint8_t turned = std::rotl(std::to_integer<std::uint8_t>(value), 3);
        return std::byte{static_cast<std::uint8_t>(turned ^ bytes_[(place + length) % bytes_.size()])};
    }

  private:
    // A register of 16 bits that turns once for each bit of the password, last letter first.
    static unsigned password_key() {
        const auto turned = [](std::uint16_t value) {
            value = std::rotl(value, 1);
            return static_cast<std::uint16_t>((value & 1) != 0 ? value ^ 0x1020 : value);
        };
        std::uint16_t base = 0x8000;
        std::uint16_t end = 0xFFFF;
        std::uint16_t key = 0;
        for (auto letter = built_in_password.rbegin(); letter != built_in_password.rend(); ++letter) {
            for (unsigned bit = 0; bit < 8; ++bit) {
                base = turned(base);
                end = turned(end);
                if (bit < 7 && (static_cast<unsigned>(*letter) >> bit & 1) != 0) key ^= base;
            }
        }
        return key ^ end;
    }

    static unsigned password_check() {
        unsigned check = static_cast<unsigned>(built_in_password.size()) ^ 0xCE4B;
        for (unsigned i = 0; i < built_in_password.size(); ++i) {
            const unsigned letter = static_cast<unsigned char>(built_in_password[i]);
            const unsigned turn = (i + 1) % 15;
            check ^= (letter << turn | letter >> (15 - turn)) & 0x7FFF;
        }
        return check;
    }

    std::array<std::uint8_t, 16> bytes_{};
};

std::unique_ptr<Cipher> xor_cipher(unsigned key, unsigned check) {
    return XorCipher::fits(key, check) ? std::make_unique<XorCipher>() : nullptr;
}

std::unique_ptr<Cipher> chosen_strength_cipher(ByteSpan data) {
    constexpr std::uint32_t rc4_number = 0x6801;
    constexpr std::size_t header_place = 14;
    const std::size_t header_size = long_at(data, 10);
    const ByteSpan header = part_of(data, header_place, header_size);
    const ByteSpan verifier = part_of(data, header_place + header.size());
    constexpr std::uint32_t salt_size = 16;
    if (long_at(header, 8) != rc4_number || long_at(verifier, 0) != salt_size) return nullptr;
    const std::uint32_t bits = long_at(header, 16) == 0 ? 40 : long_at(header, 16);
    if (bits < 40 || bits > 128 || bits % 8 != 0) return nullptr;
    auto cipher = std::make_unique<Rc4OfChosenStrength>(part_of(verifier, 4, salt_size), bits / 8);
    if (!cipher->fits(part_of(verifier, 20, 16), part_of(verifier, 40, 20), sha1)) return nullptr;
    return cipher;
}

std::unique_ptr<Cipher> weak_cipher(ByteSpan data) {
    auto cipher = std::make_unique<Rc4Of40Bits>(part_of(data, 6, 16));
    if (!cipher->fits(part_of(data, 22, 16), part_of(data, 38, 16), md5)) return nullptr;
    return cipher;
}

// Nothing when the lock has a password of its own, or is of a kind that is not known.
std::unique_ptr<Cipher> cipher_of(ByteSpan filepass, Biff version) {
    if (version != Biff::biff8) return xor_cipher(word_at(filepass, 0), word_at(filepass, 2));
    constexpr unsigned by_xor = 0;
    if (word_at(filepass, 0) == by_xor) return xor_cipher(word_at(filepass, 2), word_at(filepass, 4));
    constexpr unsigned weak_version = 1;
    return word_at(filepass, 2) == weak_version ? weak_cipher(filepass) : chosen_strength_cipher(filepass);
}

// The first bytes of a record's data that stay readable in a locked workbook.
std::size_t plain_size(const BiffRecord& record) {
    constexpr std::uint16_t interface_head = 0x00E1, users = 0x0194, file_lock = 0x0195;
    constexpr std::uint16_t revision_info = 0x0196, revision_head = 0x0138;
    constexpr std::size_t sheet_offset = 4;
    switch (record.type) {
    case biff::bof:
    case biff::bof_2:
    case biff::bof_3:
    case biff::bof_4:
    case interface_head:
    case users:
    case file_lock:
    case revision_info:
    case revision_head:
        return record.data.size();
    case biff::boundsheet:
        return std::min(sheet_offset, record.data.size());
    default:
        return 0;
    }
}

} // namespace

Lock unlock(std::span<std::byte> stream) {
    BiffCursor cursor(stream);
    const auto first = cursor.next();
    if (!first || !is_bof(first->type)) return Lock::none;
    const Biff version = version_of_bof(*first);
    auto filepass = cursor.next();
    while (filepass && filepass->type != biff::filepass && filepass->type != biff::eof)
        filepass = cursor.next();
    if (!filepass || filepass->type != biff::filepass) return Lock::none;
    const std::unique_ptr<Cipher> cipher = cipher_of(filepass->data, version);
    if (!cipher) return Lock::password;

    constexpr std::size_t header_size = 4;
    for (std::size_t place = cursor.place(); const auto record = cursor.next(); place = cursor.place()) {
        const std::size_t data_place = place + header_size;
        const std::size_t length = record->data.size();
        for (std::size_t i = plain_size(*record); i < length; ++i)
            stream[data_place + i] = cipher->unlocked(stream[data_place + i], data_place + i, length);
    }
    return Lock::opened;
}

} // namespace tavelo
