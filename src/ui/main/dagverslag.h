// The changes that re-reads of the schedule brought, kept for the day for the operator to look back on.
#pragma once

#include "basis/grid.h"
#include "basis/seams.h"
#include "schedule/herlees_rooster.h"

#include <array>
#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// The columns of the report: the time, what happened, "van" or "naar", and the cells that a merge compares.
inline constexpr std::size_t verslag_cellen = 8;
inline constexpr std::array<std::string_view, 3 + verslag_cellen> verslag_titels = {
    "Tijd", "Wijziging", "", "Cnr", "Naam", "HC", "Paard", "Vader", "Vereniging", "Kl.", "Cat."};

struct VerslagRij {
    std::array<std::string, 3 + verslag_cellen> teksten;
    std::array<bool, 3 + verslag_cellen> anders{}; // cells that changed

    bool operator==(const VerslagRij&) const = default;
};

class Dagverslag final : public WijzigingenLijst {
  public:
    // More than this in bytes is not kept: what is oldest goes first.
    static constexpr std::size_t hoogste_omvang = 1 << 20;

    // Around a merge, which tells its lines in between. Rows without a changed cell are not kept.
    void begin(const LocalTime& tijd);
    void regel(std::string_view tekst) override;
    void einde();

    // Of the last merge, "14:02: gewijzigd 1, toegevoegd 2, verwijderd 1"; "" before the first one.
    [[nodiscard]] const std::string& samenvatting() const { return samenvatting_; }
    // The newest merge first, each in the order of the list.
    [[nodiscard]] const std::deque<VerslagRij>& rijen() const { return rijen_; }
    // Merges so far: a view that showed the report at an older count is behind.
    [[nodiscard]] int herlezingen() const { return herlezingen_; }
    void wis();

  private:
    void houd_binnen_omvang();

    std::deque<VerslagRij> rijen_;
    std::size_t omvang_ = 0;
    std::string samenvatting_;
    int herlezingen_ = 0;

    // Of the merge that is going on.
    std::string tijd_;
    std::vector<VerslagRij> nieuw_;
    VerslagRij van_;
    int gewijzigd_ = 0;
    int toegevoegd_ = 0;
    int verwijderd_ = 0;
};

// Rows as a text to paste elsewhere: tabs between the cells, a line feed behind every row, the titles first.
[[nodiscard]] std::string als_tekst(std::span<const VerslagRij> rijen);

// Whether members or order of the list differ from the file just read. Rows are removed from the end of the list, so
// after a withdrawal they do until the file is opened again.
[[nodiscard]] bool wijkt_af(const Grid& lijst, const Grid& bestand);

} // namespace tavelo
