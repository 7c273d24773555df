# What ./run, ./check, .ci/run and tools/dev/package have in common. To be sourced, by a script that has set `root`.

set -euo pipefail
script=$(realpath -- "$0")
cd "$root"

jobs=$(nproc)
packages_to_build=(g++ cmake ninja-build liblog4cplus-dev libace-dev libcli11-dev nlohmann-json3-dev)
packages_to_pack=(dpkg-dev file)
packages_to_test=(libgtest-dev libgmock-dev pkg-config python3 sip-tester ffmpeg "${packages_to_pack[@]}")

say() { printf '== %s\n' "$*" >&2; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints the comment at the head of the script.
usage() { sed -n '2,/^$/s/^# \{0,1\}//p' "$script"; }

# Prints those of the named packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        case $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) in
        *' installed') ;;
        *) printf '%s\n' "$package" ;;
        esac
    done
}

# Installs what is missing of the named Debian packages. Asks nothing, and does nothing when all are there.
need_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "not a Debian system: going on in the hope that these are here under other names: $*"
        return
    fi
    local missing apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "these packages are missing, and only root can install them: ${missing[*]}"
        apt=(sudo -n "${apt[@]}")
    fi
    say "installing ${missing[*]}"
    "${apt[@]}" update </dev/null >&2 || say "the package lists could not be renewed; going on with the old ones"
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >&2 ||
        fail "could not install ${missing[*]}"
}

# configure PRESET [OPTION...]
configure() {
    say "configuring build/$1"
    cmake --preset "$@" </dev/null >&2 || fail "cmake could not configure the preset $1"
}

# build PRESET [OPTION...]
build() {
    say "building build/$1"
    cmake --build --preset "$@" -j "$jobs" </dev/null >&2 || fail "the preset $1 does not build"
}

# The names of the presets, one a line.
presets() { sed -n 's/.*"configurePreset": "\([^"]*\)".*/\1/p' CMakePresets.json | sort -u; }
