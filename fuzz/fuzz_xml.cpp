// A part that is read as plain markup gives the handler what expat gives it, or is refused by both.
#include "eis.h"
#include "workbook/xlsx/xml_events.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view part(reinterpret_cast<const char*>(data), size);
    tavelo::eis(tavelo::test::heard_of(part) == tavelo::test::heard_of(tavelo::test::made_unusual(part)));
    return 0;
}
