// The number formats of cells, and the font of the style Normal: what the FORMAT, XF, FONT and STYLE records of a
// workbook say.
#pragma once

#include "workbook/xls/biff_stream.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// The number format codes of a workbook, each once. Number 0 is always "" (General).
class FormatCodes {
  public:
    [[nodiscard]] std::uint32_t number_of(std::string_view code);
    [[nodiscard]] const std::vector<std::string>& codes() const { return codes_; }

  private:
    std::vector<std::string> codes_ = {""};
    std::map<std::string, std::uint32_t, std::less<>> numbers_ = {{"", 0U}};
};

class CellStyles {
  public:
    // Takes the record when it is one of the four. `cursor` stands behind it.
    void take(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding);
    // What the cells of a sheet store as their style, to the number of their format in `codes`. BIFF2 cells store the
    // place of a FORMAT record, later ones the place of an XF record.
    [[nodiscard]] std::vector<std::uint32_t> cell_formats(Biff version, FormatCodes& codes) const;
    // Pixels of a digit in the font of the style Normal, on which column widths are based.
    [[nodiscard]] int normal_digit_pixels() const;

  private:
    struct CellXf {
        unsigned font = 0;
        unsigned format = 0;
    };
    struct Font {
        std::string name = "Arial";
        double points = 10;
    };

    void take_format(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding);
    void take_font(const BiffRecord& record, BiffCursor& cursor, TextEncoding encoding);
    [[nodiscard]] std::string_view code_of(Biff version, unsigned format) const;

    std::map<unsigned, std::string> formats_; // by the number that XF records use
    std::vector<CellXf> xfs_;
    std::vector<Font> fonts_;
    unsigned normal_xf_ = 0;
};

} // namespace tavelo
