# Shared by run.sh and test.sh: installs what is missing and builds.
set -euo pipefail

NEEDED_PACKAGES=(g++ cmake make ccache libgtest-dev libgmock-dev libbenchmark-dev qtbase5-dev libqt5svg5-dev)

install_missing() {
    local missing=()
    for p in "${NEEDED_PACKAGES[@]}"; do
        dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Installing: ${missing[*]}"
        local sudo=""
        [ "$(id -u)" -ne 0 ] && sudo="sudo"
        $sudo apt-get update -qq
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
    fi
}

# build DIR [extra cmake args...]
build() {
    local dir=$1
    shift
    local werror=OFF
    [ "${CI:-}" = "true" ] && werror=ON
    local launcher=()
    # A compiler cache makes the second build of a tree (and the sanitizer build) much shorter.
    command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S . -B "$dir" -DNDD2QFX_WERROR="$werror" "${launcher[@]}" "$@" >/dev/null
    cmake --build "$dir" -j "$(nproc)"
}
