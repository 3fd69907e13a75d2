#!/usr/bin/env bash
# Installs the built library into a temporary prefix and builds a small program
# against it twice: with find_package(qgui) and with pkg-config.
set -euo pipefail
build=$1
src=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cmake --install "$build" --prefix "$tmp/prefix" >/dev/null
mkdir -p "$tmp/cmake"
cat > "$tmp/cmake/CMakeLists.txt" <<EOT
cmake_minimum_required(VERSION 3.16)
project(consumer CXX)
set(CMAKE_CXX_STANDARD 17)
find_package(qgui REQUIRED)
add_executable(consumer $src/consumer.cpp)
target_link_libraries(consumer PRIVATE qgui::qgui)
EOT
cmake -S "$tmp/cmake" -B "$tmp/cmake/b" -DCMAKE_PREFIX_PATH="$tmp/prefix" >/dev/null
cmake --build "$tmp/cmake/b" >/dev/null
LD_LIBRARY_PATH="$tmp/prefix/lib" "$tmp/cmake/b/consumer"
flags=$(PKG_CONFIG_PATH="$tmp/prefix/lib/pkgconfig" pkg-config --cflags --libs qgui)
g++ "$src/consumer.cpp" $flags -o "$tmp/consumer_pc"
LD_LIBRARY_PATH="$tmp/prefix/lib" "$tmp/consumer_pc"
echo "1 passed, 0 failed"
