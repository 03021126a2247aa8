#include "basis/background_reader.h"

#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tavelo {

// Between a thread and its reader, and alive as long as either of them.
struct BackgroundReader::Line {
    std::mutex mutex;
    Post post;                          // none once the reader is gone
    BackgroundReader* reader = nullptr; // for the interface's thread alone
};

namespace {

FileReader::Blik look_at(const std::string& pad) {
    const std::optional<Bestandskenmerk> kenmerk = kenmerk_van(pad);
    if (!kenmerk) return std::nullopt;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return Bestandsblik{*kenmerk, now - std::chrono::nanoseconds(kenmerk->gewijzigd)};
}

} // namespace

BackgroundReader::Work BackgroundReader::file_work() { return {look_at, lees_bestand_met_begin}; }

BackgroundReader::BackgroundReader(Post post, Work work) : line_(std::make_shared<Line>()), work_(std::move(work)) {
    line_->post = std::move(post);
    line_->reader = this;
}

BackgroundReader::~BackgroundReader() {
    const std::lock_guard lock(line_->mutex);
    line_->post = nullptr;
    line_->reader = nullptr;
}

void BackgroundReader::look(std::string pad, std::function<void(Blik)> done) {
    const auto blik = std::make_shared<Blik>();
    start([blik, pad = std::move(pad), look = work_.look] { *blik = look(pad); },
          [blik, done = std::move(done)] { done(*blik); });
}

void BackgroundReader::read(std::string pad, std::string begin, std::uint64_t hoogstens,
                            std::function<void(Inhoud)> done) {
    const auto inhoud = std::make_shared<Inhoud>(std::unexpected(Leesfout::mislukt));
    start([inhoud, pad = std::move(pad), begin = std::move(begin), hoogstens,
           read = work_.read] { *inhoud = read(pad, begin, hoogstens); },
          [inhoud, done = std::move(done)] { done(std::move(*inhoud)); });
}

void BackgroundReader::start(std::function<void()> work, std::function<void()> done) {
    // The thread lets go of itself. Let go of at once, the thread library of the Windows compiler loses it now and then
    // before it has begun, and nothing would ever be read again.
    const auto own = std::make_shared<std::thread>();
    const auto run = [line = line_, own, work = std::move(work)] {
        try {
            work();
        } catch (const std::exception&) { // no memory for the bytes: they were not read
        }
        const std::lock_guard lock(line->mutex);
        own->detach();
        if (!line->post) return;
        line->post([line] {
            if (line->reader) line->reader->finish();
        });
    };
    try {
        const std::lock_guard lock(line_->mutex);
        *own = std::thread(run);
    } catch (const std::system_error&) { // no thread to be had: there is no answer, and the next task tries again
        return;
    }
    busy_ = true;
    done_ = std::move(done);
}

void BackgroundReader::finish() {
    busy_ = false;
    if (const auto done = std::exchange(done_, nullptr)) done();
}

} // namespace tavelo
