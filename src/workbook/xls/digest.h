// The two digests and the cipher that old workbooks are locked with. All three are broken and stay here for reading
// such files only: never lock anything with them.
#pragma once

#include "workbook/xls/biff_stream.h"

#include <array>

namespace tavelo {

[[nodiscard]] std::array<std::byte, 16> md5(ByteSpan message);
[[nodiscard]] std::array<std::byte, 20> sha1(ByteSpan message);

// RC4: the bytes that a text is combined with.
class Rc4 {
  public:
    // `key` has 1 to 256 bytes.
    explicit Rc4(ByteSpan key);
    [[nodiscard]] std::byte next();

  private:
    std::array<std::uint8_t, 256> state_;
    std::uint8_t i_ = 0;
    std::uint8_t j_ = 0;
};

} // namespace tavelo
