#include "workbook/text/number_format.h"

namespace tavelo {

namespace {

constexpr std::string_view short_date = "[$-x-shortdate]m/d/yy";
constexpr std::string_view short_date_and_time = "[$-x-shortdatetime]m/d/yy h:mm";
constexpr std::string_view short_time = "[$-x-shorttime]h:mm";
constexpr std::string_view long_time = "[$-x-longtime]h:mm:ss";

} // namespace

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
    case 5:
        return R"("$"#,##0_);\("$"#,##0\))";
    case 6:
        return R"("$"#,##0_);[Red]\("$"#,##0\))";
    case 7:
        return R"("$"#,##0.00_);\("$"#,##0.00\))";
    case 8:
        return R"("$"#,##0.00_);[Red]\("$"#,##0.00\))";
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
        return R"(#,##0_);\(#,##0\))";
    case 38:
        return R"(#,##0_);[Red]\(#,##0\))";
    case 39:
        return R"(#,##0.00_);\(#,##0.00\))";
    case 40:
        return R"(#,##0.00_);[Red]\(#,##0.00\))";
    case 41:
        return R"(_(* #,##0_);_(* \(#,##0\);_(* "-"_);_(@_))";
    case 42:
        return R"(_("$"* #,##0_);_("$"* \(#,##0\);_("$"* "-"_);_(@_))";
    case 43:
        return R"(_(* #,##0.00_);_(* \(#,##0.00\);_(* "-"??_);_(@_))";
    case 44:
        return R"(_("$"* #,##0.00_);_("$"* \(#,##0.00\);_("$"* "-"??_);_(@_))";
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
