#!/usr/bin/env bash
# The coverage-guided fuzzer over the C interface: builds the library and the libFuzzer target with clang
# (libFuzzer's coverage on every object, AddressSanitizer and UndefinedBehaviorSanitizer) into build-fuzz/
# and runs it under Xvfb with the seed corpus and dictionary of tests/fuzz/.
#   scripts/fuzz.sh                   ten minutes (QGUI_FUZZ_SECONDS sets another length)
#   scripts/fuzz.sh <input file>...   replays those inputs (QGUI_FUZZ_TRACE=1 prints every call)
# Inputs that reach new code are kept in build-fuzz/corpus (the seeds are read, never written); a crash
# leaves its input in build-fuzz/crash-<hash>. The first build takes a while (every object is compiled
# with clang); later ones are incremental.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/install-deps.sh"
export QGUI_BUILD_DIR=${QGUI_FUZZ_BUILD_DIR:-$here/build-fuzz}
QGUI_BUILD_TARGET=fuzz_interface "$here/scripts/build.sh" -DQGUI_FUZZ=ON -DQGUI_BUILD_BENCH=OFF \
    -DQGUI_BUILD_EXAMPLES=OFF -DCMAKE_C_COMPILER=clang-14 -DCMAKE_CXX_COMPILER=clang++-14
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-halt_on_error=1:print_stacktrace=1:suppressions=$here/tests/ubsan.supp}
export XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb
target=$QGUI_BUILD_DIR/tests/fuzz/fuzz_interface
if [ $# -gt 0 ]; then
  # input files as absolute paths: the target works in a temporary folder of its own
  args=()
  for a in "$@"; do
    case "$a" in -*) args+=("$a") ;; *) args+=("$(realpath "$a")") ;; esac
  done
  exec xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "$target" "${args[@]}"
fi
cd "$QGUI_BUILD_DIR"
mkdir -p "$QGUI_BUILD_DIR/corpus"
# one input at a time (the panel is one per process); inputs up to 4 KB; leaks are the soak's business.
# Paths are absolute: the target works in a temporary folder of its own.
exec xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "$target" \
    -max_total_time="${QGUI_FUZZ_SECONDS:-600}" -max_len=4096 -timeout=20 -rss_limit_mb=4096 \
    -dict="$here/tests/fuzz/interface.dict" -print_final_stats=1 -detect_leaks=0 \
    "$QGUI_BUILD_DIR/corpus" "$here/tests/fuzz/corpus"
