# Shared by run.sh and test.sh: installs what is missing and builds.
set -euo pipefail

NEEDED_PACKAGES=(g++ cmake make ccache pkg-config libgtest-dev libgmock-dev libbenchmark-dev
                 libdw-dev clang-format locales qtbase5-dev libqt5svg5-dev xvfb xauth
                 fonts-dejavu-core)

# A comma-decimal locale for the test that runs a translation under one.
TEST_LOCALE=de_DE.UTF-8

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
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq \
            -o DPkg::Lock::Timeout=600 "${missing[@]}"
    fi
    generate_test_locale
}

# Generates TEST_LOCALE when it is missing; the test that needs it is skipped without it.
generate_test_locale() {
    locale -a 2>/dev/null | grep -qix "${TEST_LOCALE/UTF-8/utf8}" && return 0
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    if [ -f /etc/locale.gen ] && command -v locale-gen >/dev/null 2>&1; then
        echo "Generating the locale $TEST_LOCALE"
        $sudo sed -i "s/^# *\($TEST_LOCALE UTF-8\)/\1/" /etc/locale.gen || true
        grep -q "^$TEST_LOCALE UTF-8" /etc/locale.gen ||
            echo "$TEST_LOCALE UTF-8" | $sudo tee -a /etc/locale.gen >/dev/null || true
        $sudo locale-gen >/dev/null || true
    fi
    locale -a 2>/dev/null | grep -qix "${TEST_LOCALE/UTF-8/utf8}" ||
        echo "Locale $TEST_LOCALE is not available: the locale test will be skipped." >&2
    return 0
}

# Fails when a tracked C++ file differs from what clang-format makes of it.
check_format() {
    local format
    format=$(command -v clang-format-14 || command -v clang-format) || {
        echo "clang-format is missing" >&2
        return 1
    }
    local files=() bad=()
    if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        mapfile -t files < <(git ls-files '*.cpp' '*.h')
    else
        mapfile -t files < <(find . -path ./build -prune -o -path './build-*' -prune -o \
            \( -name '*.cpp' -o -name '*.h' \) -print)
    fi
    for f in "${files[@]}"; do
        [ -f "$f" ] || continue
        "$format" --dry-run -Werror "$f" >/dev/null 2>&1 || bad+=("$f")
    done
    if [ ${#bad[@]} -gt 0 ]; then
        echo "Not formatted (run: $format -i FILE):" >&2
        printf '  %s\n' "${bad[@]}" >&2
        return 1
    fi
}

# build DIR [extra cmake args...]
configure() {
    local dir=$1
    shift
    local werror=OFF
    [ "${CI:-}" = "true" ] && werror=ON
    local launcher=()
    # A compiler cache makes the second build of a tree (and the sanitizer build) much shorter.
    command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake -S . -B "$dir" -DNDD2QFX_WERROR="$werror" "${launcher[@]}" "$@" >/dev/null
}

build() {
    configure "$@"
    cmake --build "$1" -j "$(nproc)"
}

# Builds one target of a tree; quiet when it is up to date.
build_target() {
    local dir=$1 target=$2
    configure "$dir"
    cmake --build "$dir" -j "$(nproc)" --target "$target" >/dev/null
}
