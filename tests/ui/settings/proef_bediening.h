// Everything that the dialog's rules work on, with fakes for the seams: a letter is as wide as its size in points times
// ten twips and a line twenty times as high, so that compositions are exact.
#pragma once

#include "basis/text.h"
#include "schedule/record/kolommen.h"
#include "ui/main/bediening.h"
#include "ui/main/huidige_combinatie.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

class LetterMeter final : public TextMeasure {
  public:
    [[nodiscard]] double width(std::string_view, double points, std::string_view text) const override {
        return static_cast<double>(code_points(text).size()) * points * 10;
    }
    [[nodiscard]] double height(std::string_view, double points) const override { return points * 20; }
};

class ProefBerichten final : public MessageBox {
  public:
    void show(std::string_view text) override { getoond.emplace_back(text); }
    std::vector<std::string> getoond;
};

class GeenOpenDialoog final : public OpenDialog {
  public:
    [[nodiscard]] std::optional<std::string> ask(const OpenRequest&) override { return std::nullopt; }
};

class VasteKlok final : public Clock {
  public:
    [[nodiscard]] LocalTime now() const override { return {2026, 6, 1, 12, 0, 0}; }
};

class GeenStempels final : public FileStamp {
  public:
    [[nodiscard]] std::optional<LocalTime> modified(std::string_view) const override { return std::nullopt; }
};

class StilleAanwijzer final : public Pointer {
  public:
    void busy() override {}
    void normal() override {}
};

class StilLogboek final : public SkipLog {
  public:
    void skipped(std::size_t, std::string_view, std::string_view) override {}
};

class GeenExcel final : public ExcelApplication {
  public:
    [[nodiscard]] Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override {
        return std::unexpected(std::string("niet aanwezig"));
    }
};

// A program at rest: default settings but for the font, no schedule, a preview of 9600 by 7200 twips and a participant
// window, still closed, of 19200 by 14400.
struct ProefBediening {
    ProefBediening() {
        Instellingen& i = programma.instellingen;
        i.fontname = "Proefletter";
        i.rubricbackcolor = 0xFFFFFF;
        i.backcolor = 0xFFFFFF;
        i.rubrictextsize = 100;
        i.textsize = 100;
        i.showridername = 1;
        i.showhorsename = 1;
        i.showhorsesire = 1;
        i.lastfolder = "C:\\Roosters\\";
        bediening.voorbeeld.picDeelnemer.breedte = 9600;
        bediening.voorbeeld.picDeelnemer.hoogte = 7200;
        bediening.deelnemer_venster.picDeelnemer.breedte = 19200;
        bediening.deelnemer_venster.picDeelnemer.hoogte = 14400;
    }

    // A worksheet of six rows with the texts "A1" to "C6", open as the start list. No column has been named yet.
    void open_werkblad() {
        programma.rooster_bestand = "C:\\Roosters\\plan.xls";
        programma.rooster_extensie = "xls";
        programma.grdExcel.set_columns(3);
        programma.grdExcel.set_rows(6);
        for (int rij = 0; rij < 6; ++rij)
            for (int kolom = 0; kolom < 3; ++kolom)
                programma.grdExcel.set_text(rij, kolom,
                                            std::string(1, static_cast<char>('A' + kolom)) + std::to_string(rij + 1));
        programma.grdRooster.set_columns(kolom_laatste + 1);
        programma.grdRooster.set_rows(7);
        programma.grdRooster.set_fixed_rows(1);
    }

    Programma programma;
    LetterMeter meter;
    ProefBerichten berichten;
    GeenOpenDialoog open_dialoog;
    GeenStempels tijdstempels;
    VasteKlok klok;
    StilleAanwijzer muisaanwijzer;
    StilLogboek logboek;
    GeenExcel excel;
    Bediening bediening{
        programma, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, excel}, {}, {}};
};

} // namespace tavelo
