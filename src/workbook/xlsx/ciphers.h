// The digests and the cipher of locked .xlsx packages, computed by what the system has: libcrypto, on Windows CNG.
#pragma once

#include "workbook/xls/biff_stream.h"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

namespace tavelo {

using Bytes = std::vector<std::byte>;

// The digest of the parts joined; `name` is "SHA1", "SHA256", "SHA384" or "SHA512". Nothing for another name.
[[nodiscard]] std::optional<Bytes> digest(std::string_view name, std::initializer_list<ByteSpan> parts);

// AES without padding; the length of `key` (16, 24 or 32 bytes) decides which. Nothing when a length does not fit.
[[nodiscard]] std::optional<Bytes> aes_ecb_decrypted(ByteSpan key, ByteSpan data);
[[nodiscard]] std::optional<Bytes> aes_cbc_decrypted(ByteSpan key, ByteSpan first_block, ByteSpan data);

// At most 4096 letters, in whole groups of four. Nothing for any other text.
[[nodiscard]] std::optional<Bytes> from_base64(std::string_view text);

} // namespace tavelo
