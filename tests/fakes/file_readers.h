// Readers beside the interface's thread without a thread: one that a test answers for, and one that answers at once.
#pragma once

#include "basis/background_reader.h"

#include <string>
#include <utility>

namespace tavelo::test {

// Holds the present task until a test answers it.
struct FakeReader final : FileReader {
    std::string looks_at; // "" for no such task
    std::string reads;
    std::function<void(Blik)> look_done;
    std::function<void(Inhoud)> read_done;
    int looks = 0;
    int forgotten = 0;

    [[nodiscard]] bool busy() const override { return !looks_at.empty() || !reads.empty(); }
    void look(std::string pad, std::function<void(Blik)> done) override {
        looks_at = std::move(pad);
        look_done = std::move(done);
        ++looks;
    }
    void read(std::string pad, std::string, std::uint64_t, std::function<void(Inhoud)> done) override {
        reads = std::move(pad);
        read_done = std::move(done);
    }
    void forget() override { ++forgotten; }

    void answer(Blik blik) {
        looks_at.clear();
        std::exchange(look_done, nullptr)(blik);
    }
    void answer(Inhoud inhoud) {
        reads.clear();
        std::exchange(read_done, nullptr)(std::move(inhoud));
    }
};

// Does the work itself, before the call returns.
struct DirectReader final : FileReader {
    BackgroundReader::Work work = BackgroundReader::file_work();
    [[nodiscard]] bool busy() const override { return false; }
    void look(std::string pad, std::function<void(Blik)> done) override { done(work.look(pad)); }
    void read(std::string pad, std::string begin, std::uint64_t hoogstens, std::function<void(Inhoud)> done) override {
        done(work.read(pad, begin, hoogstens));
    }
    void forget() override {}
};

} // namespace tavelo::test
