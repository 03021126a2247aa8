#include "schedule/lees_rooster.h"

#include "basis/byte_mask.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/items.h"

#include <algorithm>
#include <optional>

namespace tavelo {

namespace {

// Cuts a text into lines.
class Regels {
  public:
    explicit Regels(std::string_view tekst) : tekst_(tekst), einden_(tekst, LineEnd()) {}

    // The next line without its end; nothing behind the last one.
    std::optional<std::string_view> volgende() {
        if (begin_ >= tekst_.size()) return std::nullopt;
        const std::size_t einde = einden_.next();
        const std::string_view regel = tekst_.substr(begin_, einde - begin_);
        begin_ = einde + 1;
        if (begin_ < tekst_.size() && tekst_[einde] == '\r' && tekst_[begin_] == '\n') begin_ = einden_.next() + 1;
        return regel;
    }
    // What stands behind the lines taken so far.
    [[nodiscard]] std::size_t positie() const { return std::min(begin_, tekst_.size()); }

  private:
    std::string_view tekst_;
    Places<LineEnd> einden_;
    std::size_t begin_ = 0;
};

// Applies one line after the other.
class Lezer {
  public:
    Lezer(Schedule& schedule, MessageBox& berichten, SkipLog& logboek)
        : schedule_(schedule), berichten_(berichten), logboek_(logboek) {}

    void lees(std::string_view regel) {
        ++regelnummer_;
        const std::size_t dubbele_punt = regel.find(':');
        if (dubbele_punt == std::string_view::npos) return;
        const std::string_view sleutel = regel.substr(0, dubbele_punt);
        const std::string_view waarde = regel.substr(dubbele_punt + 1);
        if (sleutel == "singlesignin") {
            if (const std::optional<std::int16_t> getal = int16_of(waarde))
                schedule_.singlesignin = *getal;
            else
                sla_over(sleutel, "getal past niet in 16 bits");
        } else if (sleutel == "hoofdstelnummerautomatisch") {
            lees_ja_nee(sleutel, waarde);
        } else if (sleutel == "dnr" || sleutel == "rubriek" || sleutel == "rnr") {
            lees_record(sleutel, waarde);
        }
    }

  private:
    void sla_over(std::string_view sleutel, std::string_view reden) { logboek_.skipped(regelnummer_, sleutel, reden); }

    void lees_ja_nee(std::string_view sleutel, std::string_view waarde) {
        const std::string tekst = lower_case(trimmed(waarde));
        if (tekst == "true" || tekst == "false")
            schedule_.hoofdstelnummerautomatisch = tekst == "true";
        else if (const std::optional<double> getal = number_in(waarde))
            schedule_.hoofdstelnummerautomatisch = *getal != 0;
        else
            sla_over(sleutel, "geen ja of nee");
    }

    // Number, tab, record.
    void lees_record(std::string_view sleutel, std::string_view waarde) {
        const std::size_t tab = waarde.find('\t');
        if (tab == std::string_view::npos) return sla_over(sleutel, "regel zonder tab");
        const std::string_view record = waarde.substr(tab + 1);
        const std::optional<std::int16_t> nummer = int16_of(waarde.substr(0, tab));
        if (!nummer) sla_over(sleutel, "nummer past niet in 16 bits");

        if (sleutel == "rnr") {
            if (nummer) schedule_.rubriek_nummer = *nummer;
            from_windows_1252(record, schedule_.rubriek_record);
        } else if (nummer && sleutel == "dnr") {
            lees_deelnemer(*nummer, record);
        } else if (nummer) {
            lees_rubriek(*nummer, record);
        }
    }

    void lees_deelnemer(std::int16_t nummer, std::string_view record) {
        schedule_.laatste_dnr = nummer;
        std::string* const plaats = schedule_.deelnemer_plaats(nummer);
        if (!plaats) return sla_over("dnr", "nummer buiten 0 tot 4000");
        from_windows_1252(record, *plaats);
    }

    void lees_rubriek(std::int16_t nummer, std::string_view record) {
        std::string* const plaats = schedule_.rubriek_plaats(nummer);
        if (!plaats) return sla_over("rubriek", "nummer buiten 1 tot 2000");
        from_windows_1252(record, *plaats);
        if (const auto gelezen = controleer_rubriek_lijst(*plaats); !gelezen) bericht(gelezen.error());
    }

    // The same message once for a file: an operator cannot click two thousand away.
    void bericht(const std::string& tekst) {
        if (tekst == laatste_bericht_) return;
        laatste_bericht_ = tekst;
        berichten_.show(tekst);
    }

    Schedule& schedule_;
    MessageBox& berichten_;
    SkipLog& logboek_;
    std::size_t regelnummer_ = 1; // the first line is the file's mark
    std::string laatste_bericht_;
};

GeenRooster geen_rooster(Leesfout fout) {
    switch (fout) {
    case Leesfout::mislukt:
        return GeenRooster::lezen_mislukt;
    case Leesfout::te_groot:
        return GeenRooster::te_groot;
    case Leesfout::niet_te_openen:
        break;
    }
    return GeenRooster::niet_te_openen;
}

std::string_view discipline_woord(std::int16_t ringtype) {
    switch (discipline_van(ringtype)) {
    case Discipline::dressuur:
        return " dres.";
    case Discipline::springen:
        return " spr.";
    case Discipline::mennen_dressuur:
        return " mendr.";
    case Discipline::mennen_vaardigheid:
        return " menva.";
    case Discipline::geen:
        break;
    }
    return "";
}

} // namespace

std::expected<Roosterbestand, GeenRooster> als_roosterbestand(std::expected<BestandInhoud, Leesfout> gelezen) {
    if (!gelezen) return std::unexpected(geen_rooster(gelezen.error()));
    Regels regels(gelezen->bytes);
    if (!gelezen->begin_klopt || regels.volgende() != eerste_regel_rooster)
        return std::unexpected(GeenRooster::andere_eerste_regel);
    const std::size_t begin = regels.positie();
    return Roosterbestand{std::move(gelezen->bytes), begin, gelezen->kenmerk};
}

std::expected<Roosterbestand, GeenRooster> open_roosterbestand(std::string_view pad) {
    return als_roosterbestand(lees_bestand_met_begin(pad, eerste_regel_rooster, grootste_rooster));
}

void lees_regels(std::string_view bytes, Schedule& schedule, MessageBox& berichten, SkipLog& logboek) {
    schedule.singlesignin = 0;
    schedule.rubriek_record.clear();
    schedule.hoofdstelnummerautomatisch = false;
    Lezer lezer(schedule, berichten, logboek);
    Regels regels(bytes);
    while (const std::optional<std::string_view> regel = regels.volgende())
        lezer.lees(*regel);
}

std::string rooster_bijschrift(const Schedule& schedule, std::string_view pad) {
    const std::string_view record = schedule.rubriek_record;
    constexpr std::string_view tussen = "     -     ";
    std::string tekst = replaced(klasse_tekst(zoek_waarde("rkla", record)), ", ", "/");
    tekst.append(discipline_woord(schedule.huidige_rubriek.rcom));
    tekst.append(" cat ").append(removed(zoek_waarde("rcat", record), "*"));
    tekst.append(tussen).append(pad).append(tussen).append(zoek_waarde("roms", record));
    return tekst;
}

std::expected<std::string, GeenRooster> lees_rooster(std::string_view pad, const RoosterDoel& doel) {
    const std::expected<Roosterbestand, GeenRooster> bestand = open_roosterbestand(pad);
    if (!bestand) return std::unexpected(bestand.error());
    return lees_rooster(*bestand, pad, doel);
}

std::string lees_rooster(const Roosterbestand& bestand, std::string_view pad, const RoosterDoel& doel) {
    lees_regels(bestand.regels(), doel.schedule, doel.berichten, doel.logboek);
    vul_rooster(doel, doel.schedule.rubriek_record);
    doel.grid.set_row(1);
    doel.grid.set_column(1);
    return rooster_bijschrift(doel.schedule, pad);
}

} // namespace tavelo
