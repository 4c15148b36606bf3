#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs the build into an unusual prefix, moves the installed tree
# elsewhere (an installation must work wherever it ends up), then builds a
# small consumer against the moved tree twice, with pkg-config and with
# find_package(qsp), and runs both with no loader path set: each program
# finds libqspsy8 through its own run path and libqspsy8 finds libqspcore
# beside itself ($ORIGIN).
# Usage: install_and_consume.sh BUILD_DIR THIS_DIR WORK_DIR
set -euo pipefail
build=$1 here=$2 work=$3
rm -rf "$work"
unset LD_LIBRARY_PATH
staged=$work/stage/opt/qsp-2026+test
prefix=$work/moved/qsp.prefix@1/x
cmake --install "$build" --prefix "$staged" >/dev/null
mkdir -p "$(dirname "$prefix")"
mv "$staged" "$prefix"
libdir=$(dirname "$(find "$prefix" -name libqspsy8.so.12)")

# The installed library's run path, as the loader reads it.
readelf -d "$libdir/libqspsy8.so.12" | grep -q 'R.*PATH.*\[\$ORIGIN\]' || {
    echo "libqspsy8.so.12 carries no \$ORIGIN run path"; exit 1; }

# pkg-config: the consumer records the library folder as its run path, as
# any program linked against a non-system prefix does.
export PKG_CONFIG_PATH=$libdir/pkgconfig
flags=$(pkg-config --cflags --libs qsp)
rpath=$(pkg-config --variable=libdir qsp)
cc -std=c99 -Wall -Werror "$here/c_consumer.c" $flags -Wl,-rpath,"$rpath" -o "$work/consumer_pkgconfig"
env -u LD_LIBRARY_PATH "$work/consumer_pkgconfig"
echo "pkg-config consumer: ok"

# find_package: CMake gives the program the run path of the imported
# library itself.
mkdir -p "$work/cmake_project"
cp "$here/c_consumer.c" "$work/cmake_project/"
cat > "$work/cmake_project/CMakeLists.txt" <<'CMAKE'
cmake_minimum_required(VERSION 3.25)
project(consumer C)
find_package(qsp REQUIRED)
add_executable(consumer c_consumer.c)
target_link_libraries(consumer PRIVATE qsp::qsp)
CMAKE
cmake -S "$work/cmake_project" -B "$work/cmake_build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake_build" >/dev/null
env -u LD_LIBRARY_PATH "$work/cmake_build/consumer"
echo "find_package consumer: ok"
