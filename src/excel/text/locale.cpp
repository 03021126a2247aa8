#include "excel/text/locale.h"

namespace tavelo {

namespace {

Locale dutch() {
    return {
        .name = "nl-NL",
        .decimal_separator = ",",
        .thousands_separator = ".",
        .date_separator = "-",
        .time_separator = ":",
        .months = {"januari", "februari", "maart", "april", "mei", "juni", "juli", "augustus", "september", "oktober",
                   "november", "december"},
        .short_months = {"jan", "feb", "mrt", "apr", "mei", "jun", "jul", "aug", "sep", "okt", "nov", "dec"},
        .weekdays = {"zondag", "maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag"},
        .short_weekdays = {"zo", "ma", "di", "wo", "do", "vr", "za"},
        .am = "AM",
        .pm = "PM",
        .short_date = "d-m-yyyy",
        .short_time = "hh:mm",
        .long_date = "dddd d mmmm yyyy",
        .long_time = "hh:mm:ss",
        .true_word = "WAAR",
        .false_word = "ONWAAR",
        .errors = {"#LEEG!", "#DEEL/0!", "#WAARDE!", "#VERW!", "#NAAM?", "#GETAL!", "#N/B", "#GEGEVENS_OPHALEN"},
    };
}

// With a 24-hour clock and the short year.
Locale american() {
    return {
        .name = "en-US",
        .decimal_separator = ".",
        .thousands_separator = ",",
        .date_separator = "/",
        .time_separator = ":",
        .months = {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
                   "November", "December"},
        .short_months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
        .weekdays = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
        .short_weekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
        .am = "AM",
        .pm = "PM",
        .short_date = "m/d/yy",
        .short_time = "hh:mm",
        .long_date = "dddd, mmmm d, yyyy",
        .long_time = "hh:mm:ss",
        .true_word = "TRUE",
        .false_word = "FALSE",
        .errors = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A", "#GETTING_DATA"},
    };
}

Locale flemish() {
    Locale locale = dutch();
    locale.name = "nl-BE";
    locale.date_separator = "/";
    locale.short_date = "d/mm/yyyy";
    return locale;
}

Locale british() {
    Locale locale = american();
    locale.name = "en-GB";
    locale.short_date = "dd/mm/yyyy";
    locale.long_date = "dd mmmm yyyy";
    return locale;
}

} // namespace

const Locale& locale_named(std::string_view name) {
    static const std::array<Locale, 4> known = {dutch(), american(), flemish(), british()};
    for (const Locale& locale : known)
        if (locale.name == name) return locale;
    return known.front();
}

} // namespace tavelo
