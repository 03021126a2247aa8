#include "workbook/text/locale.h"

namespace tavelo {

namespace {

// Sources of the tables: for the United States [MS-OE376] 2.1.739; for the other countries the order of sign, symbol
// and number in the Common Locale Data Repository, which Windows has as well since 2009, and the padding of the tables
// in LibreOffice's import of workbooks. Codes that Dutch and German Excel store in files agree. Belgium writes amounts
// as the Netherlands do, France as Germany.
constexpr AmountFormats american_amounts = {
    R"("$"#,##0_);\("$"#,##0\))",
    R"("$"#,##0_);[Red]\("$"#,##0\))",
    R"("$"#,##0.00_);\("$"#,##0.00\))",
    R"("$"#,##0.00_);[Red]\("$"#,##0.00\))",
    R"(#,##0_);\(#,##0\))",
    R"(#,##0_);[Red]\(#,##0\))",
    R"(#,##0.00_);\(#,##0.00\))",
    R"(#,##0.00_);[Red]\(#,##0.00\))",
    R"(_(* #,##0_);_(* \(#,##0\);_(* "-"_);_(@_))",
    R"(_("$"* #,##0_);_("$"* \(#,##0\);_("$"* "-"_);_(@_))",
    R"(_(* #,##0.00_);_(* \(#,##0.00\);_(* "-"??_);_(@_))",
    R"(_("$"* #,##0.00_);_("$"* \(#,##0.00\);_("$"* "-"??_);_(@_))",
};
constexpr AmountFormats british_amounts = {
    R"("£"#,##0;\-"£"#,##0)",
    R"("£"#,##0;[Red]\-"£"#,##0)",
    R"("£"#,##0.00;\-"£"#,##0.00)",
    R"("£"#,##0.00;[Red]\-"£"#,##0.00)",
    R"(#,##0;\-#,##0)",
    R"(#,##0;[Red]\-#,##0)",
    R"(#,##0.00;\-#,##0.00)",
    R"(#,##0.00;[Red]\-#,##0.00)",
    R"(_-* #,##0_-;\-* #,##0_-;_-* "-"_-;_-@_-)",
    R"(_-"£"* #,##0_-;\-"£"* #,##0_-;_-"£"* "-"_-;_-@_-)",
    R"(_-* #,##0.00_-;\-* #,##0.00_-;_-* "-"??_-;_-@_-)",
    R"(_-"£"* #,##0.00_-;\-"£"* #,##0.00_-;_-"£"* "-"??_-;_-@_-)",
};
constexpr AmountFormats euro_in_front = {
    R"("€"\ #,##0;"€"\ \-#,##0)",
    R"("€"\ #,##0;[Red]"€"\ \-#,##0)",
    R"("€"\ #,##0.00;"€"\ \-#,##0.00)",
    R"("€"\ #,##0.00;[Red]"€"\ \-#,##0.00)",
    R"(#,##0;\-#,##0)",
    R"(#,##0;[Red]\-#,##0)",
    R"(#,##0.00;\-#,##0.00)",
    R"(#,##0.00;[Red]\-#,##0.00)",
    R"(_ * #,##0_ ;_ * \-#,##0_ ;_ * "-"_ ;_ @_ )",
    R"(_ "€"\ * #,##0_ ;_ "€"\ * \-#,##0_ ;_ "€"\ * "-"_ ;_ @_ )",
    R"(_ * #,##0.00_ ;_ * \-#,##0.00_ ;_ * "-"??_ ;_ @_ )",
    R"(_ "€"\ * #,##0.00_ ;_ "€"\ * \-#,##0.00_ ;_ "€"\ * "-"??_ ;_ @_ )",
};
constexpr AmountFormats euro_behind = {
    R"(#,##0\ "€";\-#,##0\ "€")",
    R"(#,##0\ "€";[Red]\-#,##0\ "€")",
    R"(#,##0.00\ "€";\-#,##0.00\ "€")",
    R"(#,##0.00\ "€";[Red]\-#,##0.00\ "€")",
    R"(#,##0\ _€;\-#,##0\ _€)",
    R"(#,##0\ _€;[Red]\-#,##0\ _€)",
    R"(#,##0.00\ _€;\-#,##0.00\ _€)",
    R"(#,##0.00\ _€;[Red]\-#,##0.00\ _€)",
    R"(_-* #,##0\ _€_-;\-* #,##0\ _€_-;_-* "-"\ _€_-;_-@_-)",
    R"(_-* #,##0\ "€"_-;\-* #,##0\ "€"_-;_-* "-"\ "€"_-;_-@_-)",
    R"(_-* #,##0.00\ _€_-;\-* #,##0.00\ _€_-;_-* "-"??\ _€_-;_-@_-)",
    R"(_-* #,##0.00\ "€"_-;\-* #,##0.00\ "€"_-;_-* "-"??\ "€"_-;_-@_-)",
};

// The errors that came with Excel 365: #OVERLOPEN!, #BEREKENEN!, #ÜBERLAUF!, #KALK!, #PROPAGATION! and #CHAMP! stand in
// public texts. For #VELD!, #GEBLOKKEERD! and #VERBINDEN! none was found: they are translations. Where German or French
// has none, the English word stays.
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
        .errors = {"#LEEG!", "#DEEL/0!", "#WAARDE!", "#VERW!", "#NAAM?", "#GETAL!", "#N/B", "#GEGEVENS_OPHALEN",
                   "#OVERLOPEN!", "#VERBINDEN!", "#GEBLOKKEERD!", "#VELD!", "#BEREKENEN!"},
        .amounts = euro_in_front,
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
        .errors = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A", "#GETTING_DATA", "#SPILL!",
                   "#CONNECT!", "#BLOCKED!", "#FIELD!", "#CALC!"},
        .amounts = american_amounts,
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
    locale.amounts = british_amounts;
    return locale;
}

Locale german() {
    return {
        .name = "de-DE",
        .decimal_separator = ",",
        .thousands_separator = ".",
        .date_separator = ".",
        .time_separator = ":",
        .months = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
                   "November", "Dezember"},
        .short_months = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"},
        .weekdays = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
        .short_weekdays = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"},
        .am = "AM",
        .pm = "PM",
        .short_date = "dd.mm.yyyy",
        .short_time = "hh:mm",
        .long_date = "dddd, d. mmmm yyyy",
        .long_time = "hh:mm:ss",
        .true_word = "WAHR",
        .false_word = "FALSCH",
        .errors = {"#NULL!", "#DIV/0!", "#WERT!", "#BEZUG!", "#NAME?", "#ZAHL!", "#NV", "#DATEN_ABRUFEN", "#ÜBERLAUF!",
                   "#CONNECT!", "#BLOCKED!", "#FIELD!", "#KALK!"},
        .amounts = euro_behind,
    };
}

Locale french() {
    return {
        .name = "fr-FR",
        .decimal_separator = ",",
        .thousands_separator = "\u202F",
        .date_separator = "/",
        .time_separator = ":",
        .months = {"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre", "octobre",
                   "novembre", "décembre"},
        .short_months = {"janv.", "févr.", "mars", "avr.", "mai", "juin", "juil.", "août", "sept.", "oct.", "nov.",
                         "déc."},
        .weekdays = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
        .short_weekdays = {"dim.", "lun.", "mar.", "mer.", "jeu.", "ven.", "sam."},
        .am = "AM",
        .pm = "PM",
        .short_date = "dd/mm/yyyy",
        .short_time = "hh:mm",
        .long_date = "dddd d mmmm yyyy",
        .long_time = "hh:mm:ss",
        .true_word = "VRAI",
        .false_word = "FAUX",
        .errors = {"#NUL!", "#DIV/0!", "#VALEUR!", "#REF!", "#NOM?", "#NOMBRE!", "#N/A", "#OBTENTION_DONNEES",
                   "#PROPAGATION!", "#CONNECT!", "#BLOCKED!", "#CHAMP!", "#CALC!"},
        .amounts = euro_behind,
    };
}

} // namespace

const Locale& locale_named(std::string_view name) {
    static const std::array<Locale, 6> known = {dutch(), flemish(), british(), american(), german(), french()};
    for (const Locale& locale : known)
        if (locale.name == name) return locale;
    const std::string_view language = name.substr(0, name.find('-'));
    for (const Locale& locale : known)
        if (std::string_view(locale.name).substr(0, locale.name.find('-')) == language) return locale;
    return known.front();
}

} // namespace tavelo
