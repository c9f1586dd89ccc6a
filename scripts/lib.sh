# What run.sh and test.sh share. Sourced, from the project's folder.

say() { printf '\n== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Missing packages can only be installed as root: run this as root, or install sudo." >&2
        return 1
    fi
}

# install_packages run|test: what packages.txt names for it and the system lacks.
install_packages() {
    if ! command -v apt-get >/dev/null; then
        echo "No apt-get here: taking it that the packages of scripts/packages.txt are there." >&2
        return 0
    fi
    local wanted missing=() package
    if [ "$1" = test ]; then wanted='run|test'; else wanted=run; fi
    for package in $(awk -v wanted="^($wanted)\$" '$1 !~ /^#/ && $2 ~ wanted { print $1 }' scripts/packages.txt); do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -yq --no-install-recommends "${missing[@]}"
}

# build PRESET: configures and builds it with as many jobs as there are processors.
build() {
    say "Building ($1)"
    cmake --preset "$1"
    cmake --build --preset "$1" -j "$(nproc)"
}
