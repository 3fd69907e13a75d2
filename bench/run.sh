#!/usr/bin/env bash
# Builds (if needed) and runs every benchmark under Xvfb, printing for each one
# our figure, the baseline measured in the same run, and the ratio.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/build.sh" -DQGUI_BUILD_BENCH=ON
build=${QGUI_BUILD_DIR:-$here/build}
export XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb
status=0
for b in $(find "$build/bench" -maxdepth 2 -type f -name 'bench_*' -perm -u+x ! -name '*_child' | sort); do
  echo "== $(basename "$b")"
  xvfb-run -a -s "-screen 0 1280x1024x24" "$b" || status=1
done
exit $status
