#include "workbook/text/number_format.h"

namespace tavelo {

namespace {

constexpr std::string_view short_date = "[$-x-shortdate]m/d/yy";
constexpr std::string_view short_date_and_time = "[$-x-shortdatetime]m/d/yy h:mm";
constexpr std::string_view short_time = "[$-x-shorttime]h:mm";
constexpr std::string_view long_time = "[$-x-longtime]h:mm:ss";
constexpr std::string_view amount_tag = "[$-x-amount";

} // namespace

std::string_view code_in_locale(std::string_view code, const Locale& locale) {
    if (code == short_date) return locale.short_date;
    if (code == short_time) return locale.short_time;
    if (code == long_time) return locale.long_time;
    if (!code.starts_with(amount_tag) || code.size() == amount_tag.size()) return code;
    const auto place = static_cast<std::size_t>(code[amount_tag.size()] - 'a');
    return place < locale.amounts.size() ? locale.amounts[place] : code;
}

std::string_view builtin_format(unsigned id) {
    switch (id) {
    case 1:
    case 59:
        return "0";
    case 2:
    case 60:
        return "0.00";
    case 3:
    case 61:
        return "#,##0";
    case 4:
    case 62:
        return "#,##0.00";
    // What Locale::amounts has at the place that the tag names.
    case 5:
        return "[$-x-amounta]General";
    case 6:
        return "[$-x-amountb]General";
    case 7:
        return "[$-x-amountc]General";
    case 8:
        return "[$-x-amountd]General";
    case 9:
    case 67:
        return "0%";
    case 10:
    case 68:
        return "0.00%";
    case 11:
        return "0.00E+00";
    case 12:
    case 69:
        return "# ?/?";
    case 13:
    case 70:
        return "# ?\?/?\?"; // the backslashes keep the compiler from seeing trigraphs
    case 15:
    case 73:
        return "d-mmm-yy";
    case 16:
    case 74:
        return "d-mmm";
    case 17:
    case 75:
        return "mmm-yy";
    case 18:
        return "h:mm AM/PM";
    case 19:
        return "h:mm:ss AM/PM";
    case 20:
    case 76:
        return short_time;
    // The East Asian dates and times of 27 to 36 and 50 to 58 are a plain date or time in the west; so are the Thai
    // ones.
    case 21:
    case 32:
    case 33:
    case 34:
    case 35:
    case 77:
        return long_time;
    case 14:
    case 27:
    case 28:
    case 29:
    case 30:
    case 31:
    case 36:
    case 50:
    case 51:
    case 52:
    case 53:
    case 54:
    case 55:
    case 56:
    case 57:
    case 58:
    case 71:
    case 72:
        return short_date;
    case 22:
    case 78:
        return short_date_and_time;
    case 37:
        return "[$-x-amounte]General";
    case 38:
        return "[$-x-amountf]General";
    case 39:
        return "[$-x-amountg]General";
    case 40:
        return "[$-x-amounth]General";
    case 41:
        return "[$-x-amounti]General";
    case 42:
        return "[$-x-amountj]General";
    case 43:
        return "[$-x-amountk]General";
    case 44:
        return "[$-x-amountl]General";
    case 45:
    case 79:
        return "mm:ss";
    case 46:
    case 80:
        return "[h]:mm:ss";
    case 47:
    case 81:
        return "mm:ss.0";
    case 48:
        return "##0.0E+0";
    case 49:
        return "@";
    default:
        return "General";
    }
}

} // namespace tavelo
