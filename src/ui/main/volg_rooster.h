// Follows the schedule file while it is shown: every tick it has somebody else look at the file, and read it when there
// is something new. The answers are handled here, on the interface's thread, where all rules run.
#pragma once

#include "basis/file_reader.h"
#include "schedule/herlees_rooster.h"
#include "ui/main/bediening.h"
#include "ui/main/herleesmoment.h"

#include <functional>

namespace tavelo {

class RoosterVolger {
  public:
    struct Venster {
        std::function<void()> toon_label;  // repaints the description label at once: `herlezen_bezig` has changed
        std::function<void()> toon;        // shows what a re-read made of the program's value
        std::function<void()> kijk_straks; // has `kijk_nog_eens` called once, after `rusttijd`
    };
    // References outlive it.
    RoosterVolger(Bediening& bediening, FileReader& lezer, Venster venster);
    ~RoosterVolger();
    RoosterVolger(const RoosterVolger&) = delete;
    RoosterVolger& operator=(const RoosterVolger&) = delete;

    void tik(); // every ten seconds
    void kijk_nog_eens();

  private:
    void kijk();
    void gezien(const std::string& pad, const FileReader::Blik& blik);
    void lees();
    void gelezen(const GelezenBestand& toen, FileReader::Inhoud inhoud);
    [[nodiscard]] GelezenBestand nu() const;

    Bediening& bediening_;
    FileReader& lezer_;
    Venster venster_;
    Herleesmoment moment_;
    bool tik_ = false; // since the last look
};

} // namespace tavelo
