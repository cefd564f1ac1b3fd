# Shared by ./run and ./test; sourced, with the repository's root as working directory.

say() { printf '\n==> %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Wine's display driver and fonts come as recommendations of its packages and are named here one by one.
wine_packages=(wine64 fonts-wine fonts-liberation libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1
    libxrandr2 libxrender1)

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo -n "$@"
    fi
}

# Installs those of the named Debian packages that are missing. Asks nothing.
need_packages() {
    local missing=() package log
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    if [ "$(id -u)" != 0 ] && ! sudo -n true 2>/dev/null; then
        fail "these packages are missing and need root, or sudo without a password: ${missing[*]}"
    fi
    log=$(mktemp)
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update >"$log" 2>&1 || true
    if ! as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y --no-install-recommends install "${missing[@]}" >>"$log" 2>&1 </dev/null; then
        local reason
        reason=$(grep '^E:' "$log" | head -n 1 || true)
        rm -f "$log"
        fail "cannot install ${missing[*]}: ${reason:-apt-get gave no reason}"
    fi
    rm -f "$log"
}

# build PRESET [TARGET...]
build() {
    local preset=$1 targets=()
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 || {
        cat "build/$preset.configure.log" >&2
        return 1
    }
    cmake --build --preset "$preset" "${targets[@]}"
}
