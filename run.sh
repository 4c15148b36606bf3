#!/usr/bin/env bash
# One entry point for every routine job on a fresh Debian machine. Each
# command installs the packages it needs (apt-get, when missing), then
# configures, builds and runs.
#
#   ./run.sh demo       build the libraries and run the demo program
#   ./run.sh test       build and run the whole test suite
#   ./run.sh sanitize   the test suite built with ASan + UBSan (without the
#                       tests labelled heavy)
#   ./run.sh bench      build the benchmarks and run them (ratios to peers)
set -euo pipefail
cd "$(dirname "$0")"

BUILD_PACKAGES="g++ cmake ninja-build python3 pkg-config"
TEST_PACKAGES="libgtest-dev libmpfr-dev"
BENCH_PACKAGES="libbenchmark-dev libfftw3-dev libvolk2-dev libliquid-dev libsleef-dev libsamplerate0-dev libsoxr-dev"
JOBS=$(nproc 2>/dev/null || echo 2)

need_packages() {
    local missing=()
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    echo "installing: ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
}

configure_and_build() {
    local dir=$1; shift
    cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir" -j "$JOBS"
}

case "${1:-}" in
demo)
    need_packages $BUILD_PACKAGES
    configure_and_build build -DCMAKE_BUILD_TYPE=Release -DQSP_BUILD_TESTS=OFF
    ./build/examples/qsp_demo
    ;;
test)
    need_packages $BUILD_PACKAGES $TEST_PACKAGES
    configure_and_build build -DCMAKE_BUILD_TYPE=Release -DQSP_BUILD_TESTS=ON
    ctest --test-dir build -j "$JOBS" --output-on-failure
    ;;
sanitize)
    need_packages $BUILD_PACKAGES $TEST_PACKAGES
    configure_and_build build-sanitize -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQSP_BUILD_TESTS=ON -DQSP_SANITIZE=ON
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        ctest --test-dir build-sanitize -j "$JOBS" --output-on-failure -LE heavy
    ;;
bench)
    need_packages $BUILD_PACKAGES $BENCH_PACKAGES
    configure_and_build build-bench -DCMAKE_BUILD_TYPE=Release -DQSP_BUILD_TESTS=OFF -DQSP_BUILD_BENCH=ON
    for b in build-bench/bench/qsp_bench_*; do "$b" "${@:2}"; done
    ;;
*)
    sed -n '2,11p' "$0"
    exit 2
    ;;
esac
