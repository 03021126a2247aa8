#include "workbook/book/containers.h"
#include "workbook/xls/biff_stream.h"
#include "workbook/xls/cell_styles.h"
#include "workbook/xls/code_page.h"
#include "workbook/xls/compound_file.h"
#include "workbook/xls/decryption.h"
#include "workbook/xls/sheet_cells.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tavelo {

namespace {

constexpr std::string_view only_sheet_name = "Sheet1"; // of a stream that is one sheet: the file says no name

class XlsWorkbook final : public Workbook {
  public:
    // `stream` is a part of the file.
    XlsWorkbook(std::vector<std::byte> file, ByteSpan stream) : file_(std::move(file)), stream_(stream) {}

    // Everything but the cells. To be called once, first.
    [[nodiscard]] std::expected<void, OpenFailure> read_globals();

    [[nodiscard]] std::span<const SheetInfo> sheets() const override { return sheets_; }
    [[nodiscard]] std::span<const std::string> formats() const override { return formats_.codes(); }
    [[nodiscard]] const TextTable& texts() const override { return texts_; }
    [[nodiscard]] bool dates_from_1904() const override { return dates_from_1904_; }

  private:
    [[nodiscard]] std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) override;
    void take_global(const BiffRecord& record, BiffCursor& cursor);
    void take_sheet_name(const BiffRecord& record, BiffCursor& cursor);
    void take_shared_strings(const BiffRecord& record, BiffCursor& cursor);
    void add_sheet(std::string name, SheetKind kind, std::size_t offset);
    void find_lost_sheets(BiffCursor cursor);
    [[nodiscard]] bool begins_sheet(std::size_t offset) const;
    [[nodiscard]] bool is_dialog(std::size_t offset) const;
    [[nodiscard]] CellStyles styles_of_sheet(BiffCursor cursor) const;

    std::vector<std::byte> file_;
    ByteSpan stream_;
    TextEncoding encoding_;
    std::vector<SheetInfo> sheets_;
    std::vector<std::size_t> offsets_; // of the BOF record of each sheet in the stream
    CellStyles styles_;
    bool sheets_have_styles_ = false; // up to BIFF4 each sheet brings its own
    FormatCodes formats_;
    TextTable texts_; // the shared strings, then the texts of the sheets that were read
    std::size_t shared_strings_ = 0;
    bool too_many_strings_ = false;
    bool dates_from_1904_ = false;
};

SheetKind kind_of_sheet(SubstreamKind kind) {
    switch (kind) {
    case SubstreamKind::chart:
        return SheetKind::chart;
    case SubstreamKind::macro:
    case SubstreamKind::modules:
        return SheetKind::macro;
    default:
        return SheetKind::worksheet;
    }
}

std::expected<void, OpenFailure> XlsWorkbook::read_globals() {
    BiffCursor cursor(stream_);
    const auto first = cursor.next();
    if (!first || !is_bof(first->type)) return std::unexpected(OpenFailure::damaged);
    encoding_.version = version_of_bof(*first);
    const SubstreamKind kind = kind_of_bof(*first);
    sheets_have_styles_ = kind != SubstreamKind::globals;

    std::size_t depth = 1;
    std::string bundle_name; // BIFF4 workbooks have the sheets inside, each behind a record with its name
    for (std::size_t place = cursor.place(); const auto record = cursor.next(); place = cursor.place()) {
        if (is_bof(record->type)) {
            if (depth == 1 && kind == SubstreamKind::book_4 && sheets_.size() < most_sheets)
                add_sheet(std::exchange(bundle_name, {}), kind_of_sheet(kind_of_bof(*record)), place);
            ++depth;
        } else if (record->type == biff::eof) {
            if (--depth == 0) break;
        } else if (depth == 1 && record->type == biff::bundleheader) {
            BiffText text(cursor, part_of(record->data, 4));
            const std::size_t length = text.byte();
            bundle_name = text.string(length, encoding_);
        } else if (depth == 1) {
            take_global(*record, cursor);
        }
    }
    shared_strings_ = texts_.size();

    find_lost_sheets(cursor);
    for (std::size_t i = 0; i < sheets_.size() && encoding_.version >= Biff::biff5; ++i)
        if (sheets_[i].kind == SheetKind::worksheet && is_dialog(offsets_[i])) sheets_[i].kind = SheetKind::dialog;

    const bool is_one_sheet = kind != SubstreamKind::globals && kind != SubstreamKind::book_4;
    if (is_one_sheet) add_sheet(std::string(only_sheet_name), kind_of_sheet(kind), 0);
    if (too_many_strings_) return std::unexpected(OpenFailure::too_large);
    if (sheets_.empty()) return std::unexpected(OpenFailure::damaged);
    return {};
}

void XlsWorkbook::take_global(const BiffRecord& record, BiffCursor& cursor) {
    switch (record.type) {
    case biff::codepage:
        encoding_.code_page = word_at(record.data, 0);
        break;
    case biff::datemode:
        dates_from_1904_ = word_at(record.data, 0) != 0;
        break;
    case biff::boundsheet:
        if (sheets_.size() < most_sheets) take_sheet_name(record, cursor);
        break;
    case biff::sst:
        take_shared_strings(record, cursor);
        break;
    default:
        if (!sheets_have_styles_) styles_.take(record, cursor, encoding_);
    }
}

void XlsWorkbook::take_sheet_name(const BiffRecord& record, BiffCursor& cursor) {
    enum class StoredKind : std::uint8_t { sheet = 0, macro = 1, chart = 2, modules = 6 };
    BiffText text(cursor, record.data);
    const std::size_t offset = text.long_word();
    text.skip(1); // hidden or not
    const auto stored = static_cast<StoredKind>(text.byte());
    const std::size_t length = text.byte();
    SheetKind kind = SheetKind::worksheet;
    if (stored == StoredKind::chart)
        kind = SheetKind::chart;
    else if (stored == StoredKind::macro || stored == StoredKind::modules)
        kind = SheetKind::macro;
    add_sheet(std::string(text.string(length, encoding_)), kind, offset);
}

// Reads up to the end of the table: the counts in front of it are wrong in too many files.
void XlsWorkbook::take_shared_strings(const BiffRecord& record, BiffCursor& cursor) {
    constexpr std::size_t counts = 8;
    BiffText text(cursor, record.data);
    text.skip(counts);
    while (!text.at_end()) {
        const std::size_t length = text.word();
        if (!texts_.add(text.string(length, encoding_))) {
            too_many_strings_ = true;
            return;
        }
    }
}

void XlsWorkbook::add_sheet(std::string name, SheetKind kind, std::size_t offset) {
    sheets_.push_back({.name = std::move(name), .kind = kind});
    offsets_.push_back(offset);
}

bool XlsWorkbook::begins_sheet(std::size_t offset) const {
    const auto record = BiffCursor(stream_, offset).next();
    return record && is_bof(record->type) && kind_of_bof(*record) != SubstreamKind::globals;
}

// A name that points beside the begin of its sheet gets the sheet that begins nearest. `cursor` stands behind the
// globals, where the sheets follow one another.
void XlsWorkbook::find_lost_sheets(BiffCursor cursor) {
    const auto is_found = [this](std::size_t offset) { return begins_sheet(offset); };
    if (std::ranges::all_of(offsets_, is_found)) return;
    std::vector<std::size_t> begins;
    std::size_t depth = 0;
    for (std::size_t place = cursor.place(); const auto record = cursor.next(); place = cursor.place()) {
        if (is_bof(record->type) && depth++ == 0) begins.push_back(place);
        if (record->type == biff::eof && depth > 0) --depth;
    }
    if (begins.empty()) return;
    for (std::size_t& offset : offsets_) {
        if (is_found(offset)) continue;
        const auto behind = std::ranges::lower_bound(begins, offset);
        const bool first = behind == begins.begin();
        const bool before_is_nearer =
            behind == begins.end() || (!first && offset - *std::prev(behind) <= *behind - offset);
        offset = before_is_nearer ? *std::prev(behind) : *behind;
    }
}

bool XlsWorkbook::is_dialog(std::size_t offset) const {
    constexpr unsigned dialog_flag = 0x10;
    constexpr int records_in_front = 256; // the record stands among the first; do not walk over all cells to miss it
    BiffCursor cursor(stream_, offset);
    for (int i = 0; i < records_in_front; ++i) {
        const auto record = cursor.next();
        if (!record || record->type == biff::eof) return false;
        if (record->type == biff::wsbool) return (word_at(record->data, 0) & dialog_flag) != 0;
    }
    return false;
}

CellStyles XlsWorkbook::styles_of_sheet(BiffCursor cursor) const {
    CellStyles styles;
    while (const auto record = cursor.next()) {
        if (record->type == biff::eof) break;
        styles.take(*record, cursor, encoding_);
    }
    return styles;
}

std::expected<Sheet, OpenFailure> XlsWorkbook::sheet_at(std::size_t index) {
    if (index >= offsets_.size()) return std::unexpected(OpenFailure::unreadable);
    BiffCursor cursor(stream_, offsets_[index]);
    const auto first = cursor.next();
    if (!first || !is_bof(first->type)) return std::unexpected(OpenFailure::damaged);
    const SubstreamKind kind = kind_of_bof(*first);
    if (kind == SubstreamKind::chart || kind == SubstreamKind::modules || sheets_[index].kind == SheetKind::dialog)
        return Sheet{};

    const CellStyles styles = sheets_have_styles_ ? styles_of_sheet(cursor) : styles_;
    const std::vector<std::uint32_t> cell_formats = styles.cell_formats(encoding_.version, formats_);
    const XlsSheetContext context{.encoding = encoding_,
                                  .cell_formats = cell_formats,
                                  .shared_strings = shared_strings_,
                                  .digit_pixels = styles.normal_digit_pixels()};
    return read_sheet_cells(cursor, context, texts_);
}

// A stream without a container, as the first versions wrote it, begins with its BOF record.
bool is_bare_stream(ByteSpan file) {
    constexpr std::size_t shortest = 4;
    constexpr std::size_t longest = 32;
    const std::size_t length = word_at(file, 2);
    return is_bof(word_at(file, 0)) && length >= shortest && length <= longest;
}

} // namespace

bool begins_as_xls(std::span<const std::byte> bytes) {
    constexpr std::uint32_t first_half = 0xE011CFD0;
    constexpr std::uint32_t second_half = 0xE11AB1A1;
    return (long_at(bytes, 0) == first_half && long_at(bytes, 4) == second_half) || is_bare_stream(bytes);
}

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xls(std::vector<std::byte> bytes) {
    std::span<std::byte> stream = bytes;
    if (!is_bare_stream(bytes)) {
        const auto found = workbook_stream(bytes);
        if (!found)
            return std::unexpected(found.error() == CompoundFailure::encrypted_package ? OpenFailure::password
                                   : found.error() == CompoundFailure::damaged         ? OpenFailure::damaged
                                                                                       : OpenFailure::not_a_workbook);
        stream = *found;
    }
    if (unlock(stream) == Lock::password) return std::unexpected(OpenFailure::password);
    auto workbook = std::make_unique<XlsWorkbook>(std::move(bytes), stream);
    if (const auto read = workbook->read_globals(); !read) return std::unexpected(read.error());
    return workbook;
}

} // namespace tavelo
