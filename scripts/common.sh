# Shared by ./run, ./test and ./bench: the packages, and how a preset is built.

packages="build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev libgl-dev libxkbcommon-dev
    libsqlite3-dev libzip-dev libgsf-1-dev libxlsxwriter-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    fonts-liberation poppler-utils python3-openpyxl python3-xlrd python3-xlwt"

# Installs what is missing; asks for nothing when all is there.
install_packages() {
    missing=""
    for package in $packages; do
        if ! dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed'; then
            missing="$missing $package"
        fi
    done
    [ -z "$missing" ] && return 0
    if [ "$(id -u)" = 0 ]; then
        sudo=""
    elif command -v sudo >/dev/null; then
        sudo="sudo"
    else
        echo "These packages are missing, and only root can install them:$missing" >&2
        exit 1
    fi
    echo "Installing:$missing"
    $sudo apt-get update -qq
    # shellcheck disable=SC2086
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        $missing >/dev/null
}

# build_preset PRESET [TARGET ...]
build_preset() {
    preset=$1
    shift
    cmake --preset "$preset" >/dev/null
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@"
    else
        cmake --build --preset "$preset"
    fi
}
