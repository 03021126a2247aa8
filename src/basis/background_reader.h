// Reads files on a thread of their own. The thread owns a path and a buffer and knows nothing else of the program; it
// hands the buffer over and ends. One that hangs is left behind: nobody waits for it, not even the end of the program.
#pragma once

#include "basis/file_reader.h"

#include <memory>

namespace tavelo {

class BackgroundReader final : public FileReader {
  public:
    // Has a step done on the interface's thread, soon; called from any thread.
    using Post = std::function<void(std::function<void()>)>;
    // What the thread does; a test puts slow and hanging ones in their place.
    struct Work {
        std::function<Blik(const std::string& pad)> look;
        std::function<Inhoud(const std::string& pad, const std::string& begin, std::uint64_t hoogstens)> read;
    };
    [[nodiscard]] static Work file_work();

    explicit BackgroundReader(Post post, Work work = file_work());
    ~BackgroundReader() override;
    BackgroundReader(const BackgroundReader&) = delete;
    BackgroundReader& operator=(const BackgroundReader&) = delete;

    [[nodiscard]] bool busy() const override { return busy_; }
    void look(std::string pad, std::function<void(Blik)> done) override;
    void read(std::string pad, std::string begin, std::uint64_t hoogstens, std::function<void(Inhoud)> done) override;
    void forget() override { done_ = nullptr; }

  private:
    struct Line;
    void start(std::function<void()> work, std::function<void()> done);
    void finish();

    std::shared_ptr<Line> line_;
    Work work_;
    bool busy_ = false;
    std::function<void()> done_;
};

} // namespace tavelo
