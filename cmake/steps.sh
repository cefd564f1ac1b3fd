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

apt_get() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "$@" 2>&1 </dev/null
}

# install PACKAGE...: where it fails, $reason tells why.
install() {
    local log
    [ $# -gt 0 ] || return 0
    log=$(apt_get install "$@") && return 0
    reason=$(grep -m 1 '^E:' <<<"$log" || echo 'apt-get gave no reason')
    return 1
}

# need_packages [--wine32] PACKAGE...: installs those of the named Debian packages that are missing. Asks nothing.
#
# With --wine32 also Wine for 32-bit programs, where that can be had: it is of another architecture, and all that both
# share has to be of one version. Where it cannot, build/without-wine32 keeps the reason and it is not tried again.
need_packages() {
    local missing=() wine32=() added='' package reason without
    if [ "$1" = --wine32 ]; then
        shift
        is_installed wine32:i386 || wine32=(wine32:i386)
    fi
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    if [ ${#wine32[@]} -gt 0 ] && [ -s build/without-wine32 ]; then
        say "32-bit programs are not run: $(cat build/without-wine32)"
        wine32=()
    fi
    [ $((${#missing[@]} + ${#wine32[@]})) -gt 0 ] || return 0

    if [ "$(id -u)" != 0 ] && ! sudo -n true 2>/dev/null; then
        [ ${#missing[@]} -eq 0 ] ||
            fail "these packages are missing and need root, or sudo without a password: ${missing[*]}"
        say "32-bit programs are not run: to install ${wine32[*]} needs root, or sudo without a password"
        return 0
    fi
    say Installing "${missing[@]}" "${wine32[@]}"
    if [ ${#wine32[@]} -gt 0 ] && ! dpkg --print-foreign-architectures | grep -qx i386; then
        as_root dpkg --add-architecture i386
        added=yes
    fi
    apt_get update >/dev/null || true
    # All in one, as what is installed first may leave no version of the rest that fits.
    ! install "${missing[@]}" "${wine32[@]}" || return 0
    [ ${#wine32[@]} -gt 0 ] || fail "cannot install ${missing[*]}: $reason"

    without="cannot install ${wine32[*]}: $reason (./test tries it again without the file build/without-wine32)"
    [ -z "$added" ] || as_root dpkg --remove-architecture i386
    install "${missing[@]}" || fail "cannot install ${missing[*]}: $reason"
    mkdir -p build
    echo "$without" >build/without-wine32
    say "32-bit programs are not run: $without"
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
