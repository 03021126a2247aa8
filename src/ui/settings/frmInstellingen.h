// The settings dialog. What a change does is told in ui/settings/instellingen_dialoog.h; this window shows the controls
// and reads them. Every control bears its name as object name, arrays with their index ("optNummer_0").
#pragma once

#include "ui/settings/instellingen_dialoog.h"

#include <QDialog>

#include <functional>
#include <initializer_list>

class QGroupBox;
class QLabel;
class QScrollBar;

namespace tavelo {

class ElidedLabel;
class KleurKnop;

// One dialog for one opening: it loads when it is made and settles when it closes. `vertoond` is called after every
// composition, to repaint the grid, the preview and the participant window.
class frmInstellingen : public QDialog {
    Q_OBJECT

  public:
    frmInstellingen(Bediening& bediening, ColourDialog& kleurendialoog, std::function<void()> vertoond,
                    QWidget* parent = nullptr);
    ~frmInstellingen() override;

    void done(int uitkomst) override;

  private:
    // How one control of the table is filled and read.
    struct Toegang {
        std::function<void(const Getoond&)> toon;
        std::function<Getoond()> lees;
    };

    struct Benoemd { // a control by its name, and its label
        const char* naam;
        QString tekst;
    };
    struct Genummerd { // an element of a control array, and its label
        int index;
        QString tekst;
    };
    // One of the two areas of the display: the same settings, each with its own mnemonics.
    struct Vlak {
        QString titel;
        Genummerd achtergrond;
        Genummerd tekst;
        Benoemd grootte;
        const char* grootte_waarde;
        Benoemd uitlijning;
    };

    [[nodiscard]] QWidget* maak_weergave();
    [[nodiscard]] QWidget* maak_vlak(const Vlak& vlak);
    [[nodiscard]] QWidget* maak_gegevens();
    [[nodiscard]] QWidget* maak_excel();

    [[nodiscard]] QWidget* maak_lettertype();
    [[nodiscard]] QWidget* maak_kleur(int index, const QString& omschrijving);
    [[nodiscard]] QScrollBar* maak_grootte(const char* naam, QLabel& waarde_label);
    [[nodiscard]] QGroupBox* maak_keuze(const char* naam, const QString& titel, Qt::Orientation richting,
                                        std::initializer_list<QString> teksten);
    [[nodiscard]] QWidget* maak_vinkje(const char* naam, const QString& tekst);
    [[nodiscard]] QWidget* maak_kolom(int index, const QString& veld, ElidedLabel& inhoud);
    [[nodiscard]] Toegang& toegang(const QString& naam);

    void laad();
    void ververs();
    void kies_kleur(KleurKnop& knop);
    void ga_naast_voorbeeld();

    Bediening& bediening_;
    ColourDialog& kleurendialoog_;
    std::function<void()> vertoond_;
    InstellingenDialoog dialoog_;
    std::array<Toegang, aantal_besturingen> toegang_;
    bool laden_ = true;
    bool gesloten_ = false;
};

} // namespace tavelo
