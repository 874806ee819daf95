# Which Debian 12 packages the project needs, and how they get onto the machine. To be sourced:
#   source tools/packages.sh
#   need_packages build run        # the groups needed; asks for root's rights only if one is missing

# What compiles it.
PACKAGES_build=(g++ cmake ninja-build ccache pkg-config
    qtbase5-dev libqt5opengl5-dev libcoin-dev libsoqt520-dev libqwt-qt5-dev libgl-dev)
# What a window needs to draw into.
PACKAGES_run=(libgl1-mesa-dri fonts-dejavu-core)
# A display of one's own, for machines that have none.
PACKAGES_display=(xvfb xauth openbox x11-utils)
# What the tests and checks use beyond all that.
PACKAGES_test=(xdotool imagemagick clang-format clang-tidy python3 locales-all gdb)

missing_packages() {
    local group names package
    for group in "$@"; do
        declare -n names="PACKAGES_$group"
        for package in "${names[@]}"; do
            dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
                echo "$package"
        done
    done
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        env DEBIAN_FRONTEND=noninteractive "$@"
    else
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    fi
}

may_become_root() {
    [ "$(id -u)" -eq 0 ] && return 0
    command -v sudo >/dev/null || return 1
    # With a terminal sudo can ask for the password; without one it must not need it.
    sudo -n true 2>/dev/null || { [ -t 0 ] && [ -t 2 ]; }
}

need_packages() {
    local missing install
    command -v dpkg-query >/dev/null || {
        echo "This is no Debian system: what is needed is listed in tools/packages.sh." >&2
        return 0
    }
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -eq 0 ] && return 0
    install=(apt-get install -y --no-install-recommends "${missing[@]}")
    if ! may_become_root; then
        echo "Some packages are missing. Please run, as root:" >&2
        echo "    ${install[*]}" >&2
        exit 1
    fi
    echo "Installing: ${missing[*]}" >&2
    # Package lists may be absent or stale: once refreshed, the installation is tried again.
    as_root "${install[@]}" >&2 || { as_root apt-get update >&2 && as_root "${install[@]}" >&2; } || {
        echo "The packages could not be installed. Please run, as root:" >&2
        echo "    apt-get update && ${install[*]}" >&2
        exit 1
    }
}
