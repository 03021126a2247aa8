#include "dump_rooster.h"

#include "app/programma.h"
#include "basis/system_time.h"
#include "json.h"
#include "schedule/record/kolommen.h"
#include "ui/main/auto_import.h"
#include "ui/main/bediening.h"
#include "ui/main/huidige_combinatie.h"
#include "ui/main/open_rooster.h"
#include "ui/main/rooster_grid.h"

#include <algorithm>
#include <type_traits>

namespace tavelo {

namespace {

class LegeOpslag final : public SettingsStore {
  public:
    [[nodiscard]] std::optional<std::string> get(std::string_view, std::string_view, std::string_view) const override {
        return std::nullopt;
    }
    void save(std::string_view, std::string_view, std::string_view, std::string_view) override {}
};

// Keeps what the program would have shown and what the readers left out.
class Getuige final : public MessageBox, public SkipLog, public WijzigingenLijst, public OpenDialog, public Pointer {
  public:
    void show(std::string_view text) override { berichten.emplace_back(text); }
    void skipped(std::size_t line, std::string_view key, std::string_view reason) override {
        overgeslagen.push_back({line, std::string(key), std::string(reason)});
    }
    void regel(std::string_view tekst) override { wijzigingen.emplace_back(tekst); }
    [[nodiscard]] std::optional<std::string> ask(const OpenRequest&) override { return std::nullopt; }
    void busy() override {}
    void normal() override {}

    struct Overgeslagen {
        std::size_t regel;
        std::string sleutel;
        std::string reden;
    };
    std::vector<std::string> berichten;
    std::vector<Overgeslagen> overgeslagen;
    std::vector<std::string> wijzigingen;
};

bool zet_instellingen(const DumpVraag& vraag, Instellingen& instellingen) {
    for (const auto& [sleutel, waarde] : vraag.instellingen) {
        const auto tabel = instellingen_tabel();
        const auto gevonden = std::ranges::find(tabel, sleutel, &Instelling::sleutel);
        if (gevonden == tabel.end()) return false;
        static_cast<void>(zet_instelling(instellingen, *gevonden, waarde)); // one that does not fit is left as it was
    }
    return true;
}

// Every field of a record by its key; a row of numbered keys gives one member each.
void schrijf_rubriek(JsonWriter& json, const RubriekRecord& rubriek) {
    json.object([&] {
        for (const RubriekVeld& veld : rubriek_velden())
            std::visit(
                [&](auto lid) {
                    const auto& waarde = rubriek.*lid;
                    if constexpr (std::is_same_v<decltype(lid), std::string RubriekRecord::*> ||
                                  std::is_same_v<decltype(lid), std::int16_t RubriekRecord::*>) {
                        json.key(veld.sleutel).value(waarde);
                    } else {
                        int nummer = veld.eerste;
                        for (const std::string& tekst : waarde)
                            json.key(std::string(veld.sleutel) + std::to_string(nummer++)).value(tekst);
                    }
                },
                veld.veld);
    });
}

void schrijf_rubrieken(JsonWriter& json, const Schedule& schedule) {
    json.object([&] {
        for (int nummer = 1; nummer <= hoogste_rubriek; ++nummer) {
            const RubriekLijstRecord& entry = schedule.rubriek(nummer);
            if (entry == RubriekLijstRecord()) continue;
            json.key(std::to_string(nummer)).object([&] {
                for (const RubriekLijstVeld& veld : rubriek_lijst_velden())
                    std::visit([&](auto lid) { json.key(veld.sleutel).value(entry.*lid); }, veld.veld);
            });
        }
    });
}

void schrijf_deelnemers(JsonWriter& json, const Schedule& schedule) {
    json.object([&] {
        for (int nummer = 0; nummer <= hoogste_deelnemer; ++nummer)
            if (const std::string& record = schedule.deelnemer(nummer); !record.empty())
                json.key(std::to_string(nummer)).value(record);
    });
}

void schrijf_rooster(JsonWriter& json, const Grid& grid) {
    json.key("rooster").array([&] {
        for (int rij = 0; rij < grid.rows(); ++rij)
            json.array([&] {
                for (int kolom = 0; kolom <= kolom_laatste; ++kolom)
                    json.value(grid.text(rij, kolom));
            });
    });
    json.key("rijwaarden").array([&] {
        for (int rij = 0; rij < grid.rows(); ++rij)
            json.value(grid.row_value(rij));
    });
}

void schrijf_labels(JsonWriter& json, const RubriekLabels& labels) {
    json.object([&] {
        json.key("lblRubriek").value(labels.lblRubriek);
        json.key("lblRoosterOmschrijving").value(labels.lblRoosterOmschrijving);
        json.key("lblRingType").value(labels.lblRingType);
        json.key("lblRingNaam").value(labels.lblRingNaam);
        json.key("lblDagTijd").value(labels.lblDagTijd);
        json.key("lblRubriekLijsten").value(labels.lblRubriekLijsten);
        json.key("lblJury").value(labels.lblJury);
    });
}

void schrijf_vlak(JsonWriter& json, const Tekenvlak& vlak) {
    json.object([&] {
        json.key("links").value(vlak.links);
        json.key("boven").value(vlak.boven);
        json.key("breedte").value(vlak.breedte);
        json.key("hoogte").value(vlak.hoogte);
        json.key("achtergrond").value(vlak.achtergrond);
        json.key("voorgrond").value(vlak.voorgrond);
        json.key("zichtbaar").value(vlak.zichtbaar);
        json.key("lettertype").value(vlak.lettertype);
        json.key("regels").array([&] {
            for (const GeplaatsteTekst& regel : vlak.regels())
                json.object([&] {
                    json.key("x").value(regel.x);
                    json.key("y").value(regel.y);
                    json.key("punten").value(regel.punten);
                    json.key("tekst").value(regel.tekst);
                });
        });
    });
}

void schrijf_teksten(JsonWriter& json, const std::vector<std::string>& teksten) {
    json.array([&] {
        for (const std::string& tekst : teksten)
            json.value(tekst);
    });
}

// What a helpdesk asks for first: which file it was taken for, what was shown, and what was left out. What is not of
// one line, as a whole file or what a class and its combinations give together, has no number.
void schrijf_log(std::ostream& uit, const std::string& bijschrift, const Getuige& getuige) {
    uit << bijschrift << '\n';
    for (const std::string& bericht : getuige.berichten)
        uit << "melding: " << bericht << '\n';
    for (const Getuige::Overgeslagen& o : getuige.overgeslagen) {
        if (o.regel != 0) uit << "regel " << o.regel << ", ";
        uit << o.sleutel << ": " << o.reden << '\n';
    }
    if (getuige.overgeslagen.empty()) uit << "Er is niets overgeslagen.\n";
}

} // namespace

bool dump_rooster(const DumpVraag& vraag, const TextMeasure& meter, ExcelApplication& excel, std::ostream& uit) {
    Programma programma;
    programma.instellingen = laad_instellingen(LegeOpslag());
    if (!zet_instellingen(vraag, programma.instellingen)) return false;

    const SystemClock klok;
    const SystemFileStamp tijdstempels;
    Getuige getuige;
    Bediening bediening{programma, {meter, getuige, getuige, tijdstempels, klok, getuige, getuige, excel}, {}, {}};
    bediening.voorbeeld.picDeelnemer.breedte = vraag.breedte;
    bediening.voorbeeld.picDeelnemer.hoogte = vraag.hoogte;

    richt_grid_in(programma.grdRooster);
    wis_rooster(bediening);
    programma.zoek_op_nummer = true;
    kies_bestand(bediening, vraag.bestand, 0);
    laad_rooster(bediening, 0);
    if (!vraag.daarna.empty()) {
        programma.rooster_bestand = vraag.daarna;
        programma.rooster_tijdstempel.clear(); // so that any stamp of it is newer
        auto_import(
            bediening, [] {}, &getuige);
    }
    if (vraag.nummer) {
        zet_txtINR(bediening, *vraag.nummer);
        toon_voorbeeld(bediening); // an empty number is no change of the box, but has its picture
    }

    if (vraag.log) {
        schrijf_log(uit, programma.bijschrift, getuige);
        return true;
    }
    JsonWriter json(uit);
    json.object([&] {
        json.key("kop").object([&] {
            json.key("singlesignin").value(programma.schedule.singlesignin);
            json.key("hoofdstelnummerautomatisch").value(programma.schedule.hoofdstelnummerautomatisch);
        });
        json.key("rubriek");
        schrijf_rubriek(json, programma.schedule.huidige_rubriek);
        json.key("rubrieken");
        schrijf_rubrieken(json, programma.schedule);
        json.key("deelnemers");
        schrijf_deelnemers(json, programma.schedule);
        schrijf_rooster(json, programma.grdRooster);
        json.key("bijschrift").value(programma.bijschrift);
        json.key("labels");
        schrijf_labels(json, programma.labels);
        if (vraag.nummer)
            json.key("weergave").object([&] {
                json.key("picRubriek");
                schrijf_vlak(json, bediening.voorbeeld.picRubriek);
                json.key("picDeelnemer");
                schrijf_vlak(json, bediening.voorbeeld.picDeelnemer);
            });
        if (!vraag.daarna.empty()) {
            json.key("wijzigingen");
            schrijf_teksten(json, getuige.wijzigingen);
        }
        json.key("berichten");
        schrijf_teksten(json, getuige.berichten);
        json.key("overgeslagen").array([&] {
            for (const Getuige::Overgeslagen& o : getuige.overgeslagen)
                json.object([&] {
                    json.key("regel").value(o.regel);
                    json.key("sleutel").value(o.sleutel);
                    json.key("reden").value(o.reden);
                });
        });
    });
    uit << '\n';
    return true;
}

} // namespace tavelo
