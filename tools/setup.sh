# Sourced by ./run and ./test: installs what is missing, configures and builds.
# shellcheck shell=bash

root=$(cd -P "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# "a|b": either will do, the first one known is installed.
build_packages=(g++ cmake ninja-build qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" libgl1-mesa-dev
    fonts-liberation libwmf-bin)
display_packages=(xvfb)
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev clang-format-14 xvfb openbox xdotool
    poppler-utils)
fuzz_packages=(clang libclang-rt-dev)
tidy_packages=(clang-tidy)

say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$@"
    exit 1
}

say_needs() {
    say "Ladrix needs, headers included:
  CMake 3.25, Ninja, a C++20 compiler (GCC 12 or Clang 14, or later)
  Qt 6.4 or later with the modules Core, Gui, PrintSupport, Widgets and Svg
  to run without a display: Xvfb; to show Arial's metrics: the Liberation fonts
  to insert .wmf pictures: libwmf's wmf2svg
  for the tests also: GoogleTest with GoogleMock, Google Benchmark, clang-format 14, Xvfb,
  openbox, xdotool and poppler's command-line tools
  (Debian 12: ${build_packages[*]%%|*} ${test_packages[*]})"
}

missing_packages() {
    local names=() installed wanted name
    mapfile -t names < <(printf '%s\n' "${@//|/$'\n'}")
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${names[@]}" 2>/dev/null || true)
    for wanted in "$@"; do
        for name in ${wanted//|/ }; do
            [[ $'\n'$installed$'\n' != *$'\n'"installed $name"$'\n'* ]] || continue 2
        done
        printf '%s\n' "$wanted"
    done
}

first_known() {
    local name
    for name in ${1//|/ }; do
        if [[ -n $(apt-cache madison "$name") ]]; then
            printf '%s\n' "$name"
            return
        fi
    done
    say "This system has no package ${1//|/ or }."
}

install_packages() {
    local as_root=() known=() package
    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            say "Missing packages, and neither root nor sudo is at hand to install them. As root:"
            say "  apt-get install ${*%%|*}"
            return 1
        fi
        as_root=(sudo)
    fi
    say "Installing: ${*%%|*}"
    "${as_root[@]}" apt-get update -q >&2 || say "The package lists could not be refreshed."
    mapfile -t known < <(for package in "$@"; do first_known "$package"; done)
    [[ ${#known[@]} -gt 0 ]] || return 1
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${known[@]}" >&2
}

# need PACKAGE...: asks apt for what is missing, and for nothing otherwise. A machine that has the
# tools from elsewhere is served too, so only their absence ends the run.
need() {
    local missing=() tool absent=()
    if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then
        mapfile -t missing < <(missing_packages "$@")
        if [[ ${#missing[@]} -gt 0 ]] && ! install_packages "${missing[@]}"; then
            say "Not everything could be installed; going on with what is here."
        fi
    elif [[ ! -e $root/build/.told ]]; then
        say "This system is neither Debian nor Ubuntu, so nothing is installed by itself."
        say_needs
        mkdir -p "$root/build" && touch "$root/build/.told"
    fi
    for tool in cmake ninja c++; do
        command -v "$tool" >/dev/null || absent+=("$tool")
    done
    if [[ ${#absent[@]} -gt 0 ]]; then
        say_needs
        fail "Not found: ${absent[*]}"
    fi
}

# configure PRESET: once, and again when the presets changed or the folder has moved. Everything
# else that calls for a new configuration the build sees by itself.
configure() {
    local tree=$root/build/$1 options=()
    if [[ -f $tree/CMakeCache.txt ]]; then
        if ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$tree/CMakeCache.txt"; then
            options=(--fresh)
        elif [[ -f $tree/build.ninja && $tree/.configured -nt $root/CMakePresets.json ]]; then
            return
        fi
    fi
    mkdir -p "$tree"
    say "Configuring build/$1"
    if ! (cd "$root" && cmake --preset "$1" "${options[@]}") >"$tree/configure.log" 2>&1; then
        cat "$tree/configure.log" >&2
        say_needs
        fail "The configuration failed; its output is above."
    fi
    touch "$tree/.configured"
}

# build PRESET [TARGET...]: all targets if none is named.
build() {
    local tree=$root/build/$1
    shift
    cmake --build "$tree" ${1:+--target "$@"} || fail "The build failed; its output is above."
}
