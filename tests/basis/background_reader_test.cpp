#include "basis/background_reader.h"

#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <mutex>
#include <new>
#include <semaphore>
#include <thread>

namespace tavelo {
namespace {

using namespace std::chrono_literals;

// The interface's thread as far as a reader knows it: steps come in from any thread and are done here.
class Interface {
  public:
    [[nodiscard]] BackgroundReader::Post post() {
        return [this](std::function<void()> step) {
            const std::lock_guard lock(mutex_);
            steps_.push_back(std::move(step));
            arrived_.notify_one();
        };
    }
    // Waits for the next step and does it.
    void step() {
        std::unique_lock lock(mutex_);
        arrived_.wait(lock, [this] { return !steps_.empty(); });
        const auto next = std::move(steps_.front());
        steps_.pop_front();
        lock.unlock();
        next();
    }
    [[nodiscard]] bool idle() {
        const std::lock_guard lock(mutex_);
        return steps_.empty();
    }

  private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<std::function<void()>> steps_;
};

constexpr std::uint64_t ruim = 10'000'000;

struct BackgroundReaderTest : testing::Test {
    test::TempFolder map;
    Interface venster;
};

TEST_F(BackgroundReaderTest, een_blik_en_een_lezing_komen_aan_op_de_draad_van_het_venster) {
    const std::string pad = map.write("proef.rst", "[kop]en de rest");
    std::filesystem::last_write_time(pad, std::filesystem::file_time_type::clock::now() - 1h);
    BackgroundReader lezer(venster.post());
    std::optional<FileReader::Blik> blik;
    lezer.look(pad, [&](FileReader::Blik b) {
        blik = b;
        EXPECT_FALSE(lezer.busy()); // the next task may be given at once
    });
    EXPECT_TRUE(lezer.busy());
    EXPECT_FALSE(blik);
    venster.step();
    ASSERT_TRUE(blik && *blik);
    EXPECT_EQ((*blik)->kenmerk, kenmerk_van(pad));
    EXPECT_GE((*blik)->leeftijd, 1h);
    EXPECT_LT((*blik)->leeftijd, 2h);

    std::optional<FileReader::Inhoud> inhoud;
    lezer.read(pad, "[kop]", ruim, [&](FileReader::Inhoud i) { inhoud = std::move(i); });
    venster.step();
    ASSERT_TRUE(inhoud && *inhoud);
    EXPECT_EQ((*inhoud)->bytes, "[kop]en de rest");
    EXPECT_FALSE(lezer.busy());
}

TEST_F(BackgroundReaderTest, wat_er_niet_is_of_niet_past_komt_als_fout_aan) {
    BackgroundReader lezer(venster.post());
    FileReader::Blik blik = Bestandsblik{};
    lezer.look(map.file("weg"), [&](FileReader::Blik b) { blik = b; });
    venster.step();
    EXPECT_EQ(blik, std::nullopt);
    std::optional<Leesfout> fout;
    lezer.read(map.write("groot", "123456"), "", 5, [&](const FileReader::Inhoud& i) { fout = i.error(); });
    venster.step();
    EXPECT_EQ(fout, Leesfout::te_groot);
}

TEST_F(BackgroundReaderTest, zonder_geheugen_voor_de_bytes_is_er_niet_gelezen) {
    BackgroundReader::Work werk = BackgroundReader::file_work();
    werk.read = [](const std::string&, const std::string&, std::uint64_t) -> FileReader::Inhoud {
        throw std::bad_alloc();
    };
    BackgroundReader lezer(venster.post(), werk);
    std::optional<Leesfout> fout;
    lezer.read("x", "", ruim, [&](const FileReader::Inhoud& i) { fout = i.error(); });
    venster.step();
    EXPECT_EQ(fout, Leesfout::mislukt);
}

// A share that answers when the test lets it.
struct TraagTest : BackgroundReaderTest {
    std::counting_semaphore<> antwoord{0};
    std::counting_semaphore<> klaar{0};
    [[nodiscard]] BackgroundReader::Work traag() {
        BackgroundReader::Work werk = BackgroundReader::file_work();
        werk.look = [this](const std::string&) -> FileReader::Blik {
            antwoord.acquire();
            klaar.release();
            return Bestandsblik{};
        };
        return werk;
    }
};

TEST_F(TraagTest, een_antwoord_waar_niemand_meer_op_wacht_komt_niet_en_maakt_de_lezer_vrij) {
    BackgroundReader lezer(venster.post(), traag());
    lezer.look("x", [](FileReader::Blik) { FAIL(); });
    lezer.forget();
    EXPECT_TRUE(lezer.busy()); // it still hangs
    antwoord.release();
    venster.step();
    EXPECT_FALSE(lezer.busy());
}

TEST_F(TraagTest, het_einde_wacht_niet_op_een_lezing_die_hangt_en_hoort_er_niets_meer_van) {
    {
        BackgroundReader lezer(venster.post(), traag());
        lezer.look("x", [](FileReader::Blik) { FAIL(); });
    } // would never end if it waited
    antwoord.release();
    klaar.acquire();
    EXPECT_TRUE(venster.idle());
}

TEST_F(TraagTest, een_antwoord_dat_al_onderweg_is_vindt_zijn_lezer_niet_meer) {
    std::optional<BackgroundReader> lezer(std::in_place, venster.post(), traag());
    lezer->look("x", [](FileReader::Blik) { FAIL(); });
    antwoord.release();
    while (venster.idle())
        std::this_thread::yield();
    lezer.reset();
    venster.step();
}

} // namespace
} // namespace tavelo
