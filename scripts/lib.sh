# Shell functions shared by the scripts. Sourced, never run.

say() { printf '%s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

# Runs a command as root, through sudo when need be.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else command -v sudo >/dev/null && sudo "$@"; fi
}

# Installs those of the named Debian packages that are missing; asks apt only when some are.
install_packages() {
    local missing=() name
    local installed
    installed=$(dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' 2>/dev/null | sed -n 's/^ii *//p')
    for name in "$@"; do
        grep -qxF "$name" <<<"$installed" || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "These packages are missing and neither root nor sudo is at hand: ${missing[*]}"
        root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# Configures (once) and builds one preset. Usage: build_preset NAME [TARGET…]
build_preset() {
    local preset=$1; shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" ${QUORBEL_CMAKE_ARGS:-} >&2
    fi
    cmake --build "build/$preset" ${1:+--target "$@"} >&2
}
