#include "workbook/workbook.h"

#include "basis/native_path.h"
#include "basis/plain_file.h"
#include "workbook/book/containers.h"
#include "workbook/lookalike/lookalike.h"
#include "workbook/xlsx/locked_package.h"

#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace tavelo {

namespace {

std::expected<std::vector<std::byte>, OpenFailure> read_whole_file(std::string_view file) {
    std::error_code error;
    if (std::filesystem::status(native_path(file), error).type() == std::filesystem::file_type::not_found)
        return std::unexpected(OpenFailure::not_found);
    PlainFile plain(file); // shared: Excel may go on saving it
    if (!plain.is_open()) return std::unexpected(OpenFailure::unreadable);
    const auto known = plain.kenmerk();
    if (known && known->grootte > largest_workbook_file) return std::unexpected(OpenFailure::too_large);

    constexpr std::size_t step = 1024 * 1024;
    std::vector<std::byte> bytes(known ? known->grootte + 1 : step); // one more, to meet the end at once
    std::size_t size = 0;
    while (size <= largest_workbook_file) {
        if (size == bytes.size()) bytes.resize(size + step);
        const auto count = plain.read(reinterpret_cast<char*>(bytes.data() + size), bytes.size() - size);
        if (!count) return std::unexpected(OpenFailure::unreadable);
        size += *count;
        if (*count != 0) continue;
        bytes.resize(size);
        return bytes;
    }
    return std::unexpected(OpenFailure::too_large);
}

bool begins_as_zip(const std::vector<std::byte>& bytes) {
    return bytes.size() >= 2 && bytes[0] == std::byte{'P'} && bytes[1] == std::byte{'K'};
}

// Excel keeps the name of who has a workbook open in a small file beside it, which a file dialog may show too.
bool is_owner_file(std::string_view file, const std::vector<std::byte>& bytes) {
    constexpr std::size_t longest = 1024; // 165 bytes, in fact
    const auto name = file.substr(file.find_last_of("/\\") + 1);
    return name.starts_with("~$") && bytes.size() <= longest && !begins_as_zip(bytes) && !begins_as_xls(bytes);
}

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_by_content(std::vector<std::byte> bytes) {
    if (bytes.empty()) return std::unexpected(OpenFailure::empty);
    if (begins_as_zip(bytes)) return open_xlsx(std::move(bytes));
    auto package = unlocked_package(bytes);
    if (package) return open_xlsx(std::move(*package));
    if (package.error() != OpenFailure::not_a_workbook) return std::unexpected(package.error());
    if (begins_as_xls(bytes)) return open_xls(std::move(bytes));
    return open_text_lookalike(std::move(bytes));
}

} // namespace

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::string_view file) try {
    auto bytes = read_whole_file(file);
    if (!bytes) return std::unexpected(bytes.error());
    if (is_owner_file(file, *bytes)) return std::unexpected(OpenFailure::owner_file);
    return open_by_content(std::move(*bytes));
} catch (const std::bad_alloc&) {
    return std::unexpected(OpenFailure::no_memory);
}

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::vector<std::byte> bytes) try {
    return open_by_content(std::move(bytes));
} catch (const std::bad_alloc&) {
    return std::unexpected(OpenFailure::no_memory);
}

std::string_view sentence_of(OpenFailure failure) {
    switch (failure) {
    case OpenFailure::not_found:
        return "Het bestand is niet gevonden.";
    case OpenFailure::unreadable:
        return "Het bestand kan niet worden gelezen; misschien houdt een ander programma het vast.";
    case OpenFailure::not_a_workbook:
        return "Het bestand is geen Excel-werkmap.";
    case OpenFailure::damaged:
        return "De werkmap is beschadigd of nog niet helemaal opgeslagen.";
    case OpenFailure::password:
        return "De werkmap is met een wachtwoord beveiligd.";
    case OpenFailure::too_large:
        return "De werkmap is te groot om te lezen.";
    case OpenFailure::no_memory:
        return "Er is te weinig geheugen om de werkmap te lezen.";
    case OpenFailure::empty:
        return "Het bestand is leeg of nog niet opgeslagen.";
    case OpenFailure::binary_workbook:
        return "Dit is een binaire Excel-werkmap (.xlsb): sla de werkmap op als .xlsx.";
    case OpenFailure::owner_file:
        return "Dit is een tijdelijk bestand van Excel (~$): kies de werkmap zelf.";
    }
    return "De werkmap kan niet worden geopend.";
}

} // namespace tavelo
