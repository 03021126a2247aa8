#include "platform/linux/safe_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavelo {

namespace {

using Done = std::expected<void, FileFault>;

constexpr std::string_view leftover_end = ".nieuw";
constexpr std::size_t leftover_digits = 16;

std::unexpected<FileFault> fault(std::string_view step) { return std::unexpected(FileFault{step, errno}); }
std::unexpected<FileFault> fault(std::string_view step, int error) { return std::unexpected(FileFault{step, error}); }

// A call that a signal interrupted is made again at once.
template <class Call>
auto again(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

class OpenFile {
  public:
    explicit OpenFile(int number) : number_(number) {}
    ~OpenFile() {
        if (number_ >= 0) ::close(number_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] int number() const { return number_; }
    // Some file systems tell only now that a write failed. An interrupted close has closed.
    [[nodiscard]] bool close() {
        const int number = number_;
        number_ = -1;
        return ::close(number) == 0 || errno == EINTR;
    }

  private:
    int number_;
};

int open_file(const std::string& path, int flags, mode_t mode = 0) {
    return again([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); });
}

// What stands under a name, links followed.
struct Present {
    std::string path; // without links
    struct stat about {};
};
// Nothing when there is nothing; a fault when it is not a plain file.
std::expected<std::optional<Present>, FileFault> present(const std::string& path) {
    Present found;
    if (::stat(path.c_str(), &found.about) != 0) {
        if (errno != ENOENT && errno != ENOTDIR) return fault("stat");
        struct stat link {};
        if (::lstat(path.c_str(), &link) == 0) return fault("a link to nothing", ENOENT);
        return std::nullopt;
    }
    if (!S_ISREG(found.about.st_mode)) return fault("not a plain file", EINVAL);
    std::array<char, PATH_MAX> whole{};
    if (!::realpath(path.c_str(), whole.data())) return fault("realpath");
    found.path = whole.data();
    return found;
}

std::string folder_of(const std::string& path) {
    const std::size_t at = path.rfind('/');
    if (at == std::string::npos) return ".";
    return at == 0 ? "/" : path.substr(0, at);
}

std::string leftover_begin(const std::string& path) {
    return '.' + path.substr(path.rfind('/') + 1) + '.'; // npos + 1 is 0
}

// A name that nobody has.
std::string new_name(const std::string& path) {
    std::uint64_t number = 0;
    if (::getentropy(&number, sizeof number) != 0) number = static_cast<std::uint64_t>(::getpid());
    std::array<char, leftover_digits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
    return folder_of(path) + '/' + leftover_begin(path) + digits.data() + std::string(leftover_end);
}

bool is_leftover(std::string_view name, std::string_view begin) {
    if (!name.starts_with(begin) || !name.ends_with(leftover_end)) return false;
    if (name.size() != begin.size() + leftover_digits + leftover_end.size()) return false;
    return name.substr(begin.size(), leftover_digits).find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

bool write_all(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = again([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Steps 2 and 3.
Done write_new(const std::string& name, const std::optional<Present>& old, std::string_view bytes) {
    OpenFile file(open_file(name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, old ? 0600 : 0666));
    if (file.number() < 0) return fault("open");
    static_cast<void>(::flock(file.number(), LOCK_EX | LOCK_NB));                    // not on every file system
    if (old) static_cast<void>(::fchmod(file.number(), old->about.st_mode & 07777)); // nor are permissions
    if (!write_all(file.number(), bytes)) return fault("write");
    if (again([&] { return ::fsync(file.number()); }) != 0) return fault("sync");
    if (!file.close()) return fault("close");
    return {};
}

// Step 5.
Done sync_folder(const std::string& folder) {
    const OpenFile file(open_file(folder, O_RDONLY | O_DIRECTORY));
    if (file.number() < 0) return fault("open the folder");
    if (again([&] { return ::fsync(file.number()); }) == 0) return {};
    if (errno == EINVAL) return {}; // a file system that does not offer it
    return fault("sync the folder");
}

} // namespace

std::expected<std::optional<std::string>, FileFault> read_small_file(const std::string& path, std::size_t most) {
    const auto found = present(path);
    if (!found) return std::unexpected(found.error());
    if (!*found) return std::nullopt;
    // Something else may have come under the name by now: opening it does not wait, and it is looked at again.
    const OpenFile file(open_file((*found)->path, O_RDONLY | O_NONBLOCK | O_NOCTTY));
    if (file.number() < 0) return fault("open");
    struct stat about {};
    if (::fstat(file.number(), &about) != 0) return fault("fstat");
    if (!S_ISREG(about.st_mode)) return fault("not a plain file", EINVAL);
    if (about.st_size > static_cast<off_t>(most)) return fault("too large", EFBIG);

    std::string bytes;
    std::size_t had = 0;
    while (true) {
        bytes.resize(std::max(static_cast<std::size_t>(about.st_size) + 1, had + 4096)); // room to meet the end
        const ssize_t got = again([&] { return ::read(file.number(), bytes.data() + had, bytes.size() - had); });
        if (got < 0) return fault("read");
        if (got == 0) break;
        had += static_cast<std::size_t>(got);
        if (had > most) return fault("too large", EFBIG);
    }
    bytes.resize(had);
    return bytes;
}

std::expected<void, FileFault> replace_file(const std::string& path, std::string_view bytes) {
    const auto old = present(path);
    if (!old) return std::unexpected(old.error());
    const std::string target = *old ? (*old)->path : path;
    if (*old && ::access(target.c_str(), W_OK) != 0) return fault("not to be written");

    const std::string name = new_name(target);
    Done done = write_new(name, *old, bytes);
    if (done && ::rename(name.c_str(), target.c_str()) != 0) done = fault("rename");
    if (!done) {
        ::unlink(name.c_str());
        return done;
    }
    return sync_folder(folder_of(target));
}

void remove_leftovers(const std::string& path) {
    const auto found = present(path);
    const std::string target = found && *found ? (*found)->path : path;
    const std::string begin = leftover_begin(target);
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder_of(target), error), end; !error && entry != end;
         entry.increment(error)) {
        if (!is_leftover(entry->path().filename().native(), begin)) continue;
        const std::string name = entry->path().native();
        struct stat about {};
        if (::lstat(name.c_str(), &about) != 0 || !S_ISREG(about.st_mode) || about.st_uid != ::geteuid()) continue;
        const OpenFile file(open_file(name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
        const bool is_being_written =
            file.number() >= 0 && ::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (!is_being_written) ::unlink(name.c_str());
    }
}

} // namespace tavelo
