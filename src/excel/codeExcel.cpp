#include "excel/codeExcel.h"

#include "basis/codeBestand.h"
#include "basis/number.h"
#include "basis/scoped.h"
#include "basis/text.h"
#include "excel/automation.h"
#include "schedule/record/kolommen.h"
#include "vocabulary/rubriek_woorden.h"

#include <cstdint>
#include <memory>
#include <new>
#include <vector>

namespace tavelo {

namespace {

constexpr std::string_view melding_kolommen =
    "Geef bij 'Bestand | Instellingen' op in welke Excel kolommen velden 'nr--tijd' "
    "en 'naam', etc. staan.";

void maak_leeg(Grid& grid) {
    grid.set_fixed_rows(0);
    grid.set_fixed_columns(0);
    grid.set_rows(0);
    grid.set_columns(0);
}

Automation<std::unique_ptr<ExcelWorkbook>> open_werkmap(ExcelApplication& excel, std::string_view bestand) {
    const auto werkmappen = excel.Workbooks();
    if (!werkmappen) return std::unexpected(werkmappen.error());
    return (*werkmappen)->Open(bestand);
}

// Null when the enumeration ends, or fails, before it.
std::unique_ptr<ExcelWorksheet> zoek_blad(ExcelSheets& bladen, int blad) {
    for (int nummer = 1;; ++nummer) {
        auto volgend = bladen.Next();
        if (!volgend || !*volgend) return nullptr;
        if (nummer == blad) return std::move(*volgend);
    }
}

// A size that cannot be had leaves the grid without rows or columns.
void lees_maat(ExcelWorksheet& werkblad, Grid& grid) {
    const auto gebruikt = werkblad.UsedRange();
    if (!gebruikt) return;
    if (const auto kolommen = (*gebruikt)->Columns_Count()) grid.set_columns(*kolommen);
    if (const auto rijen = (*gebruikt)->Rows_Count()) grid.set_rows(*rijen);
    grid.set_top_row(0);
}

// In whole points; 0 when it cannot be had.
std::int32_t breedte_van_kolom(ExcelWorksheet& werkblad, int kolom) {
    const auto cel = werkblad.Cells(1, kolom);
    if (!cel) return 0;
    const auto breedte = (*cel)->Width();
    return breedte ? to_int32(*breedte).value_or(0) : 0;
}

void lees_breedtes(ExcelWorksheet& werkblad, Grid& grid) {
    std::vector<std::int32_t> breedtes;
    double som = 0;
    for (int kolom = 1; kolom <= grid.columns(); ++kolom) {
        breedtes.push_back(breedte_van_kolom(werkblad, kolom));
        som += breedtes.back();
    }
    if (!(som > 0)) return;
    int kolom = 0;
    for (const std::int32_t breedte : breedtes) {
        if (const auto aandeel = to_int32(grid_excel_breedte * static_cast<double>(breedte) / som))
            grid.set_column_width(kolom, *aandeel);
        ++kolom;
    }
}

// A cell that cannot be read stays empty. The stored value is read as well and not used; it is meant so.
void lees_cellen_van_rij(ExcelWorksheet& werkblad, int rij, Grid& grid) {
    for (int kolom = 1; kolom <= grid.columns(); ++kolom) {
        const auto cel = werkblad.Cells(rij, kolom);
        if (!cel) continue;
        static_cast<void>((*cel)->Value());
        if (const auto tekst = (*cel)->Text()) grid.set_text(rij - 1, kolom - 1, *tekst);
    }
}

void lees_cellen(ExcelWorksheet& werkblad, Grid& grid) {
    std::vector<std::string_view> teksten(static_cast<std::size_t>(grid.columns()));
    for (int rij = 1; rij <= grid.rows(); ++rij) {
        if (werkblad.row_texts(rij, teksten))
            grid.set_row_texts(rij - 1, teksten);
        else
            lees_cellen_van_rij(werkblad, rij, grid);
    }
}

bool lees_werkmap(ExcelWorkbook& werkmap, int blad, Grid& grid) {
    const auto bladen = werkmap.Sheets();
    if (!bladen) return true;
    const auto werkblad = zoek_blad(**bladen, blad);
    if (!werkblad) return true;
    lees_maat(*werkblad, grid);
    lees_breedtes(*werkblad, grid);
    lees_cellen(*werkblad, grid);
    const auto aantal = (*bladen)->Count();
    return !aantal || blad >= *aantal;
}

constexpr std::string_view geen_geheugen = "Er is te weinig geheugen om de werkmap te lezen.";

bool lees_bestand_met_excel(std::string_view bestand, int blad, Grid& grid, ExcelApplication& excel,
                            MessageBox& berichten) {
    const auto werkmap = open_werkmap(excel, bestand);
    if (!werkmap) {
        berichten.show("YEP1: " + werkmap.error());
        return true;
    }
    const bool laatste = lees_werkmap(**werkmap, blad, grid);
    (*werkmap)->Close(); // when it refuses there is nothing left to do
    return laatste;
}

} // namespace

bool lees_excel(std::string_view bestand, int blad, Grid& grid, ExcelApplication& excel, MessageBox& berichten,
                Pointer& muisaanwijzer) {
    const BusyPointer bezig(muisaanwijzer);
    const WithoutRedraw ongezien(grid);
    try {
        maak_leeg(grid);
        const std::string extensie = bestand_extensie(bestand);
        const bool is_excel = extensie == "xls" || extensie == "xlsx";
        return !is_excel || lees_bestand_met_excel(bestand, blad, grid, excel, berichten);
    } catch (const std::bad_alloc&) { // of whatever takes memory, from the file's bytes to the grid's texts
        maak_leeg(grid);
        berichten.show(std::string("YEP1: ").append(geen_geheugen));
        return true;
    }
}

std::string excel_kolom(const Grid& bron, int rij, std::string_view kolom_letter) {
    if (kolom_letter.empty()) return {};
    const auto letter = static_cast<std::int64_t>(code_points(upper_case(kolom_letter)).front());
    const std::int64_t kolom = letter - 'A';
    if (kolom < 0 || kolom > bron.columns() - 1) return {};
    return std::string(bron.text(rij, static_cast<int>(kolom)));
}

void vul_xls_rooster(Grid& doel, const Grid& bron, Meldingen meldingen, Programma& programma, MessageBox& berichten,
                     Pointer& muisaanwijzer) {
    const Instellingen& instellingen = programma.instellingen;
    bool geen_startnummers = true;
    bool geen_namen = true;
    {
        rubriek_leeg(doel, programma.schedule, programma.labels);
        const BusyPointer bezig(muisaanwijzer);
        const WithoutRedraw ongezien(doel);
        doel.set_columns(kolom_laatste + 1);
        for (int i = 0; i < bron.rows(); ++i) {
            const int rij = doel.append_row();
            doel.set_text(rij, kolom_nrtijd, excel_kolom(bron, i, instellingen.col_startnumber));
            doel.set_text(rij, kolom_hnr, excel_kolom(bron, i, instellingen.col_hnr));
            doel.set_text(rij, kolom_naam, excel_kolom(bron, i, instellingen.col_rider_name));
            doel.set_text(rij, kolom_paard, excel_kolom(bron, i, instellingen.col_horse_name));
            doel.set_text(rij, kolom_vader, excel_kolom(bron, i, instellingen.col_horse_sire));
            doel.set_text(rij, kolom_vereniging, excel_kolom(bron, i, instellingen.col_union_name));
            if (!doel.text(rij, kolom_nrtijd).empty()) geen_startnummers = false;
            if (!doel.text(rij, kolom_naam).empty()) geen_namen = false;
        }
        for (int kolom = 0; kolom <= kolom_laatste; ++kolom)
            doel.set_text(0, kolom, kolom_titels[static_cast<std::size_t>(kolom)]);
    }
    if (geen_startnummers && geen_namen && meldingen == Meldingen::tonen) berichten.show(melding_kolommen);
}

void open_excel_rooster(std::string_view bestand, int /*slot*/, Programma& programma, ExcelApplication& excel,
                        MessageBox& berichten, Pointer& muisaanwijzer) {
    programma.schedule.singlesignin = 0;
    lees_excel(bestand, 1, programma.grdExcel, excel, berichten, muisaanwijzer);
    vul_xls_rooster(programma.grdRooster, programma.grdExcel, Meldingen::tonen, programma, berichten, muisaanwijzer);
    programma.grdRooster.set_row(1);
    programma.grdRooster.set_column(1);
    const std::string titel = bestand_titel(bestand);
    programma.labels.lblRoosterOmschrijving = titel;
    programma.bijschrift = std::string(programma_titel).append(" - ").append(titel);
}

} // namespace tavelo
