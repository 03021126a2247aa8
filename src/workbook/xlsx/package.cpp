#include "workbook/xlsx/package.h"

#include "workbook/xlsx/part_name.h"

#include <zip.h>

#include <array>
#include <utility>

namespace tavelo {

namespace {

struct CloseMember {
    void operator()(zip_file_t* member) const { zip_fclose(member); }
};

bool begins_as_zip(std::span<const std::byte> bytes) {
    return bytes.size() >= 4 && bytes[0] == std::byte{'P'} && bytes[1] == std::byte{'K'} && bytes[2] == std::byte{3} &&
           bytes[3] == std::byte{4};
}

OpenFailure failure_of(const zip_error_t& error) {
    switch (zip_error_code_zip(&error)) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_ENCRNOTSUPP:
        return OpenFailure::password;
    case ZIP_ER_MEMORY:
        return OpenFailure::no_memory;
    default:
        return OpenFailure::damaged;
    }
}

} // namespace

void Package::CloseZip::operator()(zip* archive) const { zip_discard(archive); }

std::expected<std::unique_ptr<Package>, OpenFailure> Package::open(std::vector<std::byte> bytes) {
    if (!begins_as_zip(bytes)) return std::unexpected(OpenFailure::not_a_workbook);

    std::unique_ptr<Package> package(new Package);
    package->bytes_ = std::move(bytes);
    zip_source_t* source = zip_source_buffer_create(package->bytes_.data(), package->bytes_.size(), 0, nullptr);
    if (source == nullptr) return std::unexpected(OpenFailure::no_memory);
    zip_error_t why{};
    package->archive_.reset(zip_open_from_source(source, ZIP_RDONLY, &why));
    if (!package->archive_) {
        zip_source_free(source); // an opened archive owns its source, a failed opening leaves it with us
        return std::unexpected(failure_of(why));
    }

    const auto members = zip_get_num_entries(package->archive_.get(), 0);
    for (zip_int64_t i = 0; i < members; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        if (const char* name = zip_get_name(package->archive_.get(), index, ZIP_FL_ENC_GUESS))
            package->index_by_key_.try_emplace(part_key(name), index);
    }
    return package;
}

bool Package::has(std::string_view part) const { return index_by_key_.contains(part_key(part)); }

std::expected<void, OpenFailure> Package::read(std::string_view part, std::uint64_t limit, const Sink& sink) const {
    const auto found = index_by_key_.find(part_key(part));
    if (found == index_by_key_.end()) return std::unexpected(OpenFailure::damaged);

    zip_stat_t claimed{};
    if (zip_stat_index(archive_.get(), found->second, 0, &claimed) == 0 && (claimed.valid & ZIP_STAT_SIZE) != 0 &&
        claimed.size > limit)
        return std::unexpected(OpenFailure::too_large);

    const std::unique_ptr<zip_file_t, CloseMember> member(zip_fopen_index(archive_.get(), found->second, 0));
    if (!member) return std::unexpected(failure_of(*zip_get_error(archive_.get())));

    std::array<char, 64 * 1024> chunk{};
    std::uint64_t unpacked = 0; // counted as well, because the claim can be a lie
    while (true) {
        const auto count = zip_fread(member.get(), chunk.data(), chunk.size());
        if (count < 0) return std::unexpected(failure_of(*zip_file_get_error(member.get())));
        if (count == 0) return {};
        unpacked += static_cast<std::uint64_t>(count);
        if (unpacked > limit) return std::unexpected(OpenFailure::too_large);
        if (!sink(std::span(chunk).first(static_cast<std::size_t>(count)))) return {};
    }
}

} // namespace tavelo
