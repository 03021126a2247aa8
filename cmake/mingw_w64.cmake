# Toolchain: programs for 64-bit Windows made on Debian, with the threads of the "posix" variant (std::thread, std::mutex).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER /usr/bin/${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER /usr/bin/${mingw}-g++-posix)
set(CMAKE_RC_COMPILER /usr/bin/${mingw}-windres)

# Of a function that stands in several object files the linker keeps one, not always the one that its caller was compiled
# with; without this the caller counts on the registers that its own one leaves alone.
set(CMAKE_C_FLAGS_INIT -fno-ipa-ra)
set(CMAKE_CXX_FLAGS_INIT -fno-ipa-ra)

# Nothing of Debian itself is found by accident: libraries come from the compiler's own folder and from CMAKE_PREFIX_PATH.
set(CMAKE_FIND_ROOT_PATH /usr/${mingw} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Debian's zlib for this compiler; the static one, so that no DLL of it goes along.
set(ZLIB_LIBRARY /usr/${mingw}/lib/libz.a)
