// The functions of the C library stand here under their own names and are found first; the real ones are asked of the
// next library. What happens in here goes straight to the kernel, so that it never meets itself.
#include "storing.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>
#include <vector>

namespace {

enum class Effect { fail, slow, most, room, kill, log };

struct Rule {
    std::string call;
    std::string pattern;
    std::string effect_text;
    Effect effect = Effect::log;
    int error = 0;
    long amount = 0; // milliseconds, bytes
    int first = 1;
    int last = INT_MAX;
    int matched = 0;
    int hit = 0;
};

struct ErrorName {
    const char* name;
    int number;
};
constexpr ErrorName error_names[] = {
    {"EACCES", EACCES}, {"EAGAIN", EAGAIN},       {"EBUSY", EBUSY},     {"EDQUOT", EDQUOT}, {"EEXIST", EEXIST},
    {"EFBIG", EFBIG},   {"EINTR", EINTR},         {"EINVAL", EINVAL},   {"EIO", EIO},       {"ELOOP", ELOOP},
    {"EMFILE", EMFILE}, {"ENFILE", ENFILE},       {"ENODEV", ENODEV},   {"ENOENT", ENOENT}, {"ENOLCK", ENOLCK},
    {"ENOMEM", ENOMEM}, {"ENOSPC", ENOSPC},       {"ENOTDIR", ENOTDIR}, {"EPERM", EPERM},   {"EROFS", EROFS},
    {"ESTALE", ESTALE}, {"ETIMEDOUT", ETIMEDOUT},
};

// Never destroyed: calls come until the very end of the process.
struct State {
    std::recursive_mutex mutex;
    std::vector<Rule> rules;
    std::size_t own = 0; // rules before this one are not of the file
    std::string file;
    std::string log;
    struct timespec changed = {};
    unsigned long inode = 0;
    bool started = false;
};
State& state() {
    static State& it = *new State;
    return it;
}
thread_local bool inside = false; // what this library itself needs passes freely

[[noreturn]] void no_sense(const std::string& rule) {
    const std::string message = "storing: cannot read the rule '" + rule + "'\n";
    syscall(SYS_write, STDERR_FILENO, message.data(), message.size());
    syscall(SYS_exit_group, 99);
    std::abort();
}

bool number_after(const std::string& text, const char* word, long& number) {
    const std::size_t length = std::strlen(word);
    if (text.compare(0, length, word) != 0 || text.size() == length) return false;
    char* end = nullptr;
    number = std::strtol(text.c_str() + length, &end, 10);
    return *end == '\0';
}

bool set_effect(Rule& rule, const std::string& text) {
    rule.effect_text = text;
    for (const ErrorName& one : error_names)
        if (text == one.name) {
            rule.effect = Effect::fail;
            rule.error = one.number;
            return true;
        }
    if (text == "kill" || text == "log") {
        rule.effect = text == "kill" ? Effect::kill : Effect::log;
        return true;
    }
    char* end = nullptr;
    rule.amount = std::strtol(text.c_str(), &end, 10);
    rule.effect = Effect::slow;
    if (end != text.c_str() && std::strcmp(end, "ms") == 0) return true;
    rule.effect = Effect::most;
    if (number_after(text, "max", rule.amount)) return true;
    rule.effect = Effect::room;
    return number_after(text, "room", rule.amount);
}

bool set_which(Rule& rule, const std::string& text) {
    char* end = nullptr;
    rule.first = static_cast<int>(std::strtol(text.c_str(), &end, 10));
    rule.last = rule.first;
    if (end == text.c_str() || rule.first < 1) return false;
    if (*end == '+' && end[1] == '\0') {
        rule.last = INT_MAX;
        return true;
    }
    if (*end == '-') rule.last = static_cast<int>(std::strtol(end + 1, &end, 10));
    return *end == '\0';
}

void add_rule(const std::string& text) {
    std::vector<std::string> words;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(" \t\r", at)) != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(" \t\r", at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    if (words.empty()) return;
    Rule rule;
    if (words.size() < 3 || words.size() > 4) no_sense(text);
    rule.call = words[0];
    rule.pattern = words[1];
    if (!set_effect(rule, words[2]) || (words.size() == 4 && !set_which(rule, words[3]))) no_sense(text);
    state().rules.push_back(rule);
}

void add_rules(const std::string& text) {
    std::size_t at = 0;
    while (at <= text.size()) {
        const std::size_t end = std::min(text.find_first_of(";\n", at), text.size());
        add_rule(text.substr(at, end - at));
        at = end + 1;
    }
}

void start() {
    State& s = state();
    if (s.started) return;
    s.started = true;
    if (const char* rules = std::getenv("STORING")) add_rules(rules);
    s.own = s.rules.size();
    if (const char* file = std::getenv("STORING_BESTAND")) s.file = file;
    if (const char* log = std::getenv("STORING_LOG")) s.log = log;
}

void follow_file() {
    State& s = state();
    if (s.file.empty()) return;
    struct stat now = {};
    if (syscall(SYS_newfstatat, AT_FDCWD, s.file.c_str(), &now, 0) != 0) now = {};
    if (now.st_ino == s.inode && now.st_mtim.tv_sec == s.changed.tv_sec && now.st_mtim.tv_nsec == s.changed.tv_nsec)
        return;
    s.inode = now.st_ino;
    s.changed = now.st_mtim;
    s.rules.resize(s.own);
    const long fd = syscall(SYS_openat, AT_FDCWD, s.file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return;
    std::string text;
    char part[4096];
    long got = 0;
    while ((got = syscall(SYS_read, fd, part, sizeof part)) > 0)
        text.append(part, static_cast<std::size_t>(got));
    syscall(SYS_close, fd);
    add_rules(text);
}

void note(const char* call, const Rule& rule, const std::string& path) {
    const State& s = state();
    if (s.log.empty()) return;
    const long fd = syscall(SYS_openat, AT_FDCWD, s.log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (fd < 0) return;
    const std::string line = std::string(call) + ' ' + rule.effect_text + ' ' + path + '\n';
    syscall(SYS_write, fd, line.data(), line.size());
    syscall(SYS_close, fd);
}

// Link `name` of /proc/self as text.
std::string link_text(const std::string& name) {
    char target[PATH_MAX];
    const long length = syscall(SYS_readlinkat, AT_FDCWD, ("/proc/self/" + name).c_str(), target, sizeof target);
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

std::string path_of(int fd) { return link_text("fd/" + std::to_string(fd)); }

std::string path_of(int folder, const char* path) {
    if (!path) return {};
    if (*path == '/') return path;
    return (folder == AT_FDCWD ? link_text("cwd") : path_of(folder)) + '/' + path;
}

void sleep_ms(long ms) {
    struct timespec rest = {ms / 1000, ms % 1000 * 1000000};
    while (syscall(SYS_nanosleep, &rest, &rest) != 0 && errno == EINTR) {
    }
}

struct Verdict {
    bool fails = false; // errno is set
    long most = -1;     // bytes that may be handled; -1 for as many as wanted
};

// What the rules say about a call. `wanted`: the bytes that it would handle.
Verdict judge(const char* call, const std::string& path, const std::string& other = {}, long wanted = 0) {
    Verdict verdict;
    State& s = state();
    long pause = 0;
    {
        const std::lock_guard lock(s.mutex);
        start();
        follow_file();
        for (Rule& rule : s.rules) {
            if (rule.call != "*" && rule.call != call) continue;
            const bool matches = fnmatch(rule.pattern.c_str(), path.c_str(), 0) == 0 ||
                                 (!other.empty() && fnmatch(rule.pattern.c_str(), other.c_str(), 0) == 0);
            if (!matches) continue;
            ++rule.matched;
            if (rule.matched < rule.first || rule.matched > rule.last) continue;
            ++rule.hit;
            note(call, rule, path);
            if (rule.effect == Effect::kill) syscall(SYS_kill, getpid(), SIGKILL);
            if (rule.effect == Effect::slow) pause += rule.amount;
            if (rule.effect == Effect::most && (verdict.most < 0 || rule.amount < verdict.most))
                verdict.most = rule.amount;
            if (rule.effect == Effect::fail || (rule.effect == Effect::room && rule.amount == 0)) {
                errno = rule.effect == Effect::fail ? rule.error : ENOSPC;
                verdict.fails = true;
                break;
            }
            if (rule.effect == Effect::room) {
                const long now = wanted < rule.amount ? wanted : rule.amount;
                rule.amount -= now;
                if (now < wanted) verdict.most = now;
            }
        }
    }
    const int error = errno;
    if (pause > 0) sleep_ms(pause);
    errno = error;
    return verdict;
}

// Judges a call from outside; one that this library makes itself passes.
template <class... Arguments>
Verdict asked(const Arguments&... arguments) {
    if (inside) return {};
    inside = true;
    const int error = errno;
    const Verdict verdict = judge(arguments...);
    if (!verdict.fails) errno = error;
    inside = false;
    return verdict;
}

std::size_t bounded(std::size_t wanted, const Verdict& verdict) {
    const auto most = static_cast<std::size_t>(verdict.most);
    return verdict.most >= 0 && most < wanted ? most : wanted;
}

template <class Function>
Function* real(Function* /*type*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
#define REAL(name) static auto* const next = real(&name, #name)

bool makes_file(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

// The mode of an open call, which is there only when a file may be made.
#define MODE_OF(flags)                                                                                                 \
    mode_t mode = 0;                                                                                                   \
    if (makes_file(flags)) {                                                                                           \
        va_list list;                                                                                                  \
        va_start(list, flags);                                                                                         \
        mode = va_arg(list, mode_t);                                                                                   \
        va_end(list);                                                                                                  \
    }

long counted(const iovec* parts, int count) {
    long bytes = 0;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<long>(parts[i].iov_len);
    return bytes;
}

} // namespace

namespace storing {

void stoor(std::string_view rules) {
    State& s = state();
    const std::lock_guard lock(s.mutex);
    inside = true;
    s.started = true;
    s.rules.clear();
    add_rules(std::string(rules));
    s.own = s.rules.size();
    inside = false;
}

int geraakt(int index) {
    State& s = state();
    const std::lock_guard lock(s.mutex);
    return s.rules.at(static_cast<std::size_t>(index)).hit;
}

} // namespace storing

extern "C" {

int open(const char* path, int flags, ...) {
    REAL(open);
    MODE_OF(flags)
    return asked("open", path_of(AT_FDCWD, path)).fails ? -1 : next(path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    REAL(open64);
    MODE_OF(flags)
    return asked("open", path_of(AT_FDCWD, path)).fails ? -1 : next(path, flags, mode);
}
int openat(int folder, const char* path, int flags, ...) {
    REAL(openat);
    MODE_OF(flags)
    return asked("open", path_of(folder, path)).fails ? -1 : next(folder, path, flags, mode);
}
int openat64(int folder, const char* path, int flags, ...) {
    REAL(openat64);
    MODE_OF(flags)
    return asked("open", path_of(folder, path)).fails ? -1 : next(folder, path, flags, mode);
}
// The spellings of _FORTIFY_SOURCE.
int __open_2(const char* path, int flags) { return open(path, flags); }
int __open64_2(const char* path, int flags) { return open64(path, flags); }
int __openat_2(int folder, const char* path, int flags) { return openat(folder, path, flags); }
int __openat64_2(int folder, const char* path, int flags) { return openat64(folder, path, flags); }
int creat(const char* path, mode_t mode) { return open(path, O_WRONLY | O_CREAT | O_TRUNC, mode); }
int creat64(const char* path, mode_t mode) { return open64(path, O_WRONLY | O_CREAT | O_TRUNC, mode); }
FILE* fopen(const char* path, const char* how) {
    REAL(fopen);
    return asked("open", path_of(AT_FDCWD, path)).fails ? nullptr : next(path, how);
}
FILE* fopen64(const char* path, const char* how) {
    REAL(fopen64);
    return asked("open", path_of(AT_FDCWD, path)).fails ? nullptr : next(path, how);
}

ssize_t read(int fd, void* bytes, size_t wanted) {
    REAL(read);
    const Verdict verdict = asked("read", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict));
}
ssize_t __read_chk(int fd, void* bytes, size_t wanted, size_t /*room*/) { return read(fd, bytes, wanted); }
ssize_t pread(int fd, void* bytes, size_t wanted, off_t from) {
    REAL(pread);
    const Verdict verdict = asked("read", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict), from);
}
ssize_t pread64(int fd, void* bytes, size_t wanted, off64_t from) {
    REAL(pread64);
    const Verdict verdict = asked("read", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict), from);
}
ssize_t readv(int fd, const iovec* parts, int count) {
    REAL(readv);
    const Verdict verdict = asked("read", path_of(fd), std::string(), counted(parts, count));
    if (verdict.fails) return -1;
    if (verdict.most >= 0 && count > 0) return read(fd, parts[0].iov_base, bounded(parts[0].iov_len, verdict));
    return next(fd, parts, count);
}
size_t fread(void* bytes, size_t size, size_t count, FILE* file) {
    REAL(fread);
    const Verdict verdict = asked("read", path_of(fileno(file)), std::string(), static_cast<long>(size * count));
    if (verdict.fails) {
        file->_flags |= _IO_ERR_SEEN;
        return 0;
    }
    return next(bytes, size, size > 0 ? bounded(size * count, verdict) / size : count, file);
}
size_t fread_unlocked(void* bytes, size_t size, size_t count, FILE* file) { return fread(bytes, size, count, file); }
int fgetc(FILE* file) {
    REAL(fgetc);
    if (!asked("read", path_of(fileno(file)), std::string(), 1L).fails) return next(file);
    file->_flags |= _IO_ERR_SEEN;
    return EOF;
}
#undef getc
int getc(FILE* file) { return fgetc(file); }
char* fgets(char* text, int size, FILE* file) {
    REAL(fgets);
    if (!asked("read", path_of(fileno(file)), std::string(), static_cast<long>(size)).fails)
        return next(text, size, file);
    file->_flags |= _IO_ERR_SEEN;
    return nullptr;
}
ssize_t getline(char** text, size_t* size, FILE* file) {
    REAL(getline);
    if (!asked("read", path_of(fileno(file)), std::string(), 1L).fails) return next(text, size, file);
    file->_flags |= _IO_ERR_SEEN;
    return -1;
}

ssize_t write(int fd, const void* bytes, size_t wanted) {
    REAL(write);
    const Verdict verdict = asked("write", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict));
}
ssize_t pwrite(int fd, const void* bytes, size_t wanted, off_t to) {
    REAL(pwrite);
    const Verdict verdict = asked("write", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict), to);
}
ssize_t pwrite64(int fd, const void* bytes, size_t wanted, off64_t to) {
    REAL(pwrite64);
    const Verdict verdict = asked("write", path_of(fd), std::string(), static_cast<long>(wanted));
    return verdict.fails ? -1 : next(fd, bytes, bounded(wanted, verdict), to);
}
ssize_t writev(int fd, const iovec* parts, int count) {
    REAL(writev);
    const Verdict verdict = asked("write", path_of(fd), std::string(), counted(parts, count));
    if (verdict.fails) return -1;
    if (verdict.most >= 0 && count > 0) return write(fd, parts[0].iov_base, bounded(parts[0].iov_len, verdict));
    return next(fd, parts, count);
}
size_t fwrite(const void* bytes, size_t size, size_t count, FILE* file) {
    REAL(fwrite);
    const Verdict verdict = asked("write", path_of(fileno(file)), std::string(), static_cast<long>(size * count));
    if (verdict.fails) {
        file->_flags |= _IO_ERR_SEEN;
        return 0;
    }
    return next(bytes, size, size > 0 ? bounded(size * count, verdict) / size : count, file);
}

int fsync(int fd) {
    REAL(fsync);
    return asked("sync", path_of(fd)).fails ? -1 : next(fd);
}
int fdatasync(int fd) {
    REAL(fdatasync);
    return asked("sync", path_of(fd)).fails ? -1 : next(fd);
}
int close(int fd) {
    REAL(close);
    const bool fails = asked("close", path_of(fd)).fails;
    const int error = errno;
    const int result = next(fd);
    if (!fails) return result;
    errno = error;
    return -1;
}
int fclose(FILE* file) {
    REAL(fclose);
    const bool fails = asked("close", path_of(fileno(file))).fails;
    const int error = errno;
    const int result = next(file);
    if (!fails) return result;
    errno = error;
    return EOF;
}

int rename(const char* from, const char* to) {
    REAL(rename);
    return asked("rename", path_of(AT_FDCWD, from), path_of(AT_FDCWD, to)).fails ? -1 : next(from, to);
}
int renameat(int from_folder, const char* from, int to_folder, const char* to) {
    REAL(renameat);
    return asked("rename", path_of(from_folder, from), path_of(to_folder, to)).fails
               ? -1
               : next(from_folder, from, to_folder, to);
}
int renameat2(int from_folder, const char* from, int to_folder, const char* to, unsigned flags) {
    REAL(renameat2);
    return asked("rename", path_of(from_folder, from), path_of(to_folder, to)).fails
               ? -1
               : next(from_folder, from, to_folder, to, flags);
}
int unlink(const char* path) {
    REAL(unlink);
    return asked("remove", path_of(AT_FDCWD, path)).fails ? -1 : next(path);
}
int unlinkat(int folder, const char* path, int flags) {
    REAL(unlinkat);
    return asked("remove", path_of(folder, path)).fails ? -1 : next(folder, path, flags);
}
int remove(const char* path) {
    REAL(remove);
    return asked("remove", path_of(AT_FDCWD, path)).fails ? -1 : next(path);
}
int truncate(const char* path, off_t size) {
    REAL(truncate);
    return asked("truncate", path_of(AT_FDCWD, path)).fails ? -1 : next(path, size);
}
int ftruncate(int fd, off_t size) {
    REAL(ftruncate);
    return asked("truncate", path_of(fd)).fails ? -1 : next(fd, size);
}
int ftruncate64(int fd, off64_t size) {
    REAL(ftruncate64);
    return asked("truncate", path_of(fd)).fails ? -1 : next(fd, size);
}

int stat(const char* path, struct stat* result) {
    REAL(stat);
    return asked("stat", path_of(AT_FDCWD, path)).fails ? -1 : next(path, result);
}
int stat64(const char* path, struct stat64* result) {
    REAL(stat64);
    return asked("stat", path_of(AT_FDCWD, path)).fails ? -1 : next(path, result);
}
int lstat(const char* path, struct stat* result) {
    REAL(lstat);
    return asked("stat", path_of(AT_FDCWD, path)).fails ? -1 : next(path, result);
}
int lstat64(const char* path, struct stat64* result) {
    REAL(lstat64);
    return asked("stat", path_of(AT_FDCWD, path)).fails ? -1 : next(path, result);
}
int fstat(int fd, struct stat* result) {
    REAL(fstat);
    return asked("stat", path_of(fd)).fails ? -1 : next(fd, result);
}
int fstat64(int fd, struct stat64* result) {
    REAL(fstat64);
    return asked("stat", path_of(fd)).fails ? -1 : next(fd, result);
}
int fstatat(int folder, const char* path, struct stat* result, int flags) {
    REAL(fstatat);
    return asked("stat", path_of(folder, path)).fails ? -1 : next(folder, path, result, flags);
}
int fstatat64(int folder, const char* path, struct stat64* result, int flags) {
    REAL(fstatat64);
    return asked("stat", path_of(folder, path)).fails ? -1 : next(folder, path, result, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* result) {
    REAL(statx);
    const std::string whole = *path ? path_of(folder, path) : path_of(folder); // "": of the folder's own number
    return asked("stat", whole).fails ? -1 : next(folder, path, flags, mask, result);
}
int access(const char* path, int mode) {
    REAL(access);
    return asked("stat", path_of(AT_FDCWD, path)).fails ? -1 : next(path, mode);
}
int mkdir(const char* path, mode_t mode) {
    REAL(mkdir);
    return asked("mkdir", path_of(AT_FDCWD, path)).fails ? -1 : next(path, mode);
}
int mkdirat(int folder, const char* path, mode_t mode) {
    REAL(mkdirat);
    return asked("mkdir", path_of(folder, path)).fails ? -1 : next(folder, path, mode);
}

} // extern "C"
