#!/usr/bin/env bash
# Installs the build into a fresh prefix and builds a small consumer against
# the installed tree twice: with pkg-config and with find_package(qsp).
# Usage: install_and_consume.sh BUILD_DIR THIS_DIR WORK_DIR
set -euo pipefail
build=$1 here=$2 work=$3
rm -rf "$work"
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name libqspsy8.so.12)")
export LD_LIBRARY_PATH=$libdir

# pkg-config
PKG_CONFIG_PATH=$libdir/pkgconfig
flags=$(PKG_CONFIG_PATH=$PKG_CONFIG_PATH pkg-config --cflags --libs qsp)
cc -std=c99 -Wall -Werror "$here/c_consumer.c" $flags -o "$work/consumer_pkgconfig"
"$work/consumer_pkgconfig"
echo "pkg-config consumer: ok"

# find_package
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
"$work/cmake_build/consumer"
echo "find_package consumer: ok"
