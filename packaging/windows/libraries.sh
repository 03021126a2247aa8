# The libraries of the Windows program, built from Debian's own sources into a cache folder. Sourced by `build`.
# Wants: $root (the checkout), $cache (the cache folder).
# shellcheck shell=bash
#
# A library stands in $cache/NAME_VERSION, VERSION being Debian's version of its sources. What is being built stands in
# $cache/work and goes on where it was when a run was cut off.

toolchain=$cache/mingw_w64.cmake
unfinished=$cache/work
apt_lists=$cache/apt/lists

# apt with lists of sources of its own: "deb-src" is on for these calls alone, and nothing of the system's changes.
apt_of_sources() {
    local tool=$1
    shift
    "$tool" --option Dir::State::Lists="$apt_lists" --option Dir::Cache="$cache/apt/cache" \
        --option Dir::Etc::SourceList=/dev/null --option Dir::Etc::SourceParts="$cache/apt/sources" \
        --option APT::Sandbox::User=root "$@"
}

# Lists of a day old are renewed; without a network older ones serve.
refresh_source_lists() {
    [ -z "$(find "$apt_lists" -maxdepth 1 -name '*Sources' -mmin -1440 2>/dev/null)" ] || return 0
    mkdir -p "$apt_lists/partial" "$cache/apt/cache/archives/partial" "$cache/apt/sources"
    cat >"$cache/apt/sources/debian.sources" <<'SOURCES'
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm bookworm-updates
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg

Types: deb-src
URIs: http://deb.debian.org/debian-security
Suites: bookworm-security
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
    apt_of_sources apt-get update --quiet=2 || echo "== the lists of sources could not be renewed" >&2
}

# Newest first.
source_versions() {
    apt_of_sources apt-cache showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort --version-sort --reverse --unique
}

# Sources of NAME, VERSION in $work/source; false when the archive does not hold that version (any more).
fetch_source() {
    local name=$1 version=$2 work=$3
    [ ! -d "$work/source" ] || return 0
    mkdir -p "$work"
    # The signature of the lists covers the sums of the files, so dpkg-source need not check once more.
    (cd "$work" && apt_of_sources apt-get source --quiet=2 --download-only "$name=$version" &&
        dpkg-source --no-check --extract "${name}_${version#*:}.dsc" source >/dev/null)
}

# configure SOURCE BUILD PREFIX OPTION...: release, with the cross compiler.
configure() {
    local source=$1 build=$2 prefix=$3
    shift 3
    cmake -S "$source" -B "$build" -G Ninja -Wno-dev -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
}

# Debian's patches ask for the value of XML_DTD, which this way of configuring defines without one.
configure_expat() {
    local source=$1
    shift
    configure "$source/expat" "$@" -DEXPAT_SHARED_LIBS=OFF -DEXPAT_BUILD_{DOCS,EXAMPLES,TESTS,TOOLS}=OFF
    sed -i 's/^#define XML_DTD$/#define XML_DTD 1/' "$1/expat_config.h"
}

# Only zlib's own compression: what workbooks use. Locked workbooks are no locked zips.
configure_libzip() {
    configure "$@" -DBUILD_SHARED_LIBS=OFF -DBUILD_{TOOLS,REGRESS,EXAMPLES,DOC}=OFF \
        -DENABLE_{COMMONCRYPTO,GNUTLS,MBEDTLS,OPENSSL,WINDOWS_CRYPTO,BZIP2,LZMA,ZSTD}=OFF
}

# Core, Gui, Widgets, and Test for the tests. Off is what the program does not use, and what Debian's sources do not hold:
# the header of drawing tablets. Without OpenGL the Windows plugin must not look for it at run time either (dynamicgl).
# Direct 2D stays: without it large letters on the wall are not smoothed, and the Windows plugin does not link.
configure_qt6_base() {
    configure "$@" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
        -DBUILD_SHARED_LIBS=ON -DQT_BUILD_{EXAMPLES,TESTS}=OFF \
        -DFEATURE_{tabletevent,dynamicgl,opengl,vulkan,direct2d1_1}=OFF -DINPUT_opengl=no \
        -DFEATURE_{network,sql,xml,dbus,concurrent,printsupport,pdf,androiddeployqt,qmake}=OFF \
        -DFEATURE_{graphicsview,mdiarea,wizard,dockwidget,undocommand,systemtrayicon}=OFF \
        -DFEATURE_{textmarkdownreader,textmarkdownwriter,textodfwriter,islamiccivilcalendar,jalalicalendar}=OFF \
        -DFEATURE_{zstd,glib,icu}=OFF -DFEATURE_{testlib,freetype}=ON \
        -DFEATURE_system_{zlib,png,jpeg,freetype,harfbuzz,pcre2,doubleconversion}=OFF
}

# library NAME: builds it unless the cache has it; its folder is in $library.
library() {
    local name=$1 version work log
    for version in $(source_versions "$name"); do
        library=$cache/${name}_$version
        [ ! -e "$library/complete" ] || return 0
        work=$unfinished/${name}_$version
        log=$work.log
        fetch_source "$name" "$version" "$work" || continue

        echo "== building $name $version; its log is $log"
        if ! {
            "configure_${name//-/_}" "$work/source" "$work/build" "$library" && cmake --build "$work/build" &&
                cmake --install "$work/build" --strip
        } >"$log" 2>&1; then
            tail --lines=40 "$log" >&2
            return 1
        fi
        cp "$work/source/debian/copyright" "$library/copyright"
        touch "$library/complete"
        rm -rf "$work"
        return 0
    done
    echo "no sources of $name to be had" >&2
    return 1
}
