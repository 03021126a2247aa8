// Faults in the system calls of a process, on the files whose path matches a pattern. For tests on Linux.
//
// Two ways in. A test program links the library and calls `stoor`. Any other program is started with
//     LD_PRELOAD=.../libstoring.so
//     STORING="RULE; RULE; ..."      the rules, read when the program starts
//     STORING_BESTAND=/path          a file of rules, one a line or parted by ";", that is read again whenever it
//                                    changes, so that a fault comes and goes while the program runs. Replace it by a
//                                    rename. Rules of both count; those of a changed file count from 1 again.
//     STORING_LOG=/path              gets a line "CALL EFFECT PATH" for every call that a rule met
//
// A rule is words parted by blanks:   CALL PATTERN EFFECT [WHICH]
//   CALL     open    open, openat, creat, fopen (all their spellings)
//            read    read, pread, readv, fread, getc, fgets, getline; fread of any size is one call
//            write   write, pwrite, writev, fwrite
//            sync    fsync, fdatasync
//            close   close, fclose (the file is closed all the same)
//            rename  rename, renameat, renameat2: the old or the new path matches
//            remove  unlink, unlinkat, remove
//            truncate   ftruncate, truncate
//            stat    stat, lstat, fstat, fstatat, statx, access
//            mkdir   mkdir, mkdirat
//            *       each of these
//   PATTERN  of the whole path as the shell has it; "*" passes "/" too, "?" serves for a blank in the path.
//            A path that is not absolute counts from the current folder.
//   EFFECT   an error by its name (EIO, ENOSPC, EINTR, EACCES, EMFILE, EDQUOT, EROFS, ...): the call fails
//            250ms    the call is that much slower
//            max7     a read or write handles at most 7 bytes
//            room500  writes succeed for 500 bytes altogether (the last one in part), then fail with ENOSPC
//            kill     the process is killed (SIGKILL) instead
//            log      nothing happens but the line in the log
//   WHICH    3 the third call that matches alone, 3+ the third and later ones, 1-3 the first three; without it all.
//            Each rule counts its own calls. Every rule that matches has its effect, in order, until one ends the call.
//
//     STORING='write *Deelnemer.ini* ENOSPC'     STORING='read *.rst EINTR 2; read *.rst 2000ms'
#pragma once

#include <string_view>

namespace storing {

// Replaces all rules, those of the environment too; "" for none. Ends the program on a rule that makes no sense.
void stoor(std::string_view rules);

// How many calls had the effect of rule `index` (from 0) since it was set; a rule that only logs counts too.
int geraakt(int index);

} // namespace storing
