# The Debian 12 packages of the project, and how to get those that are missing. Sourced by the other scripts.
# shellcheck shell=bash disable=SC2034 # the lists are for whoever sources this

# To build and run the program. The fonts give the display its metric equal of Arial.
packages_run=(
    cmake ninja-build g++ pkgconf
    qt6-base-dev libgl1-mesa-dev libzip-dev libexpat1-dev libssl-dev libxcb1-dev
    fonts-liberation cmark-gfm
)

# To play the demonstration on a virtual display: servers with one output and with two, window manager, keys and mouse,
# pictures.
packages_demo=(
    python3
    xvfb openbox xdotool imagemagick x11-utils
    xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils
)

# To test: everything above and these, among them a compositor to fade the splash in, one of Wayland, and the
# accessibility bus.
packages_test=(
    libgtest-dev libbenchmark-dev clang-format-14 clang-tidy-16 shellcheck xcompmgr
    weston qt6-wayland
    at-spi2-core gir1.2-atspi-2.0 python3-gi dbus-daemon
)

# To make the Debian package and have it checked (./package).
packages_package=(dpkg-dev file lintian appstream desktop-file-utils)

# To try that package in a clean Debian (scripts/test_package.sh).
packages_try_package=(debootstrap desktop-file-utils python3-gi)

# To fuzz, in the tests for a short while and with scripts/fuzz.sh for longer; <expected> needs clang 16.
packages_fuzz=(clang-16 libclang-rt-16-dev)

# Only on request: benchmarks (scripts/bench.sh), the example workbook.
packages_bench=(libbenchmark-dev unzip python3-xlsxwriter python3-openpyxl python3-xlrd)
packages_examples=(python3-xlsxwriter)

# Only on request: the delivery for Windows (packaging/windows/build), and trying it (packaging/windows/try).
packages_windows=(
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev
    qt6-base-dev qt6-base-dev-tools cmake ninja-build pkgconf dpkg-dev perl python3
    librsvg2-bin icoutils nsis zip googletest cmark-gfm
)
packages_windows_try=(
    wine wine64 xvfb openbox xdotool imagemagick x11-utils fonts-liberation python3
    xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils
)

# install_missing PACKAGE...: asks apt for what is not installed yet and stays silent when nothing is missing.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ "${#missing[@]}" -gt 0 ] || return 0

    echo "== installing: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update --quiet=2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --quiet=2 --no-install-recommends "${missing[@]}"
}
