#!/usr/bin/env bash
# Installs what is missing, builds, and runs the demo panel.
# Without a display it runs under Xvfb, writes screenshots to demo-out/ and
# quits after a few seconds; with a display it opens the panel window.
#   scripts/demo.sh [demo options]   (see examples/demo_panel/README.md)
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/install-deps.sh"
"$here/scripts/build.sh"
build=${QGUI_BUILD_DIR:-$here/build}
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
chmod 700 "$XDG_RUNTIME_DIR"
out="$here/demo-out"
mkdir -p "$out"
if [ -z "${DISPLAY:-}" ]; then
  echo "demo: no display, running headless under Xvfb; screenshots go to $out"
  exec xvfb-run -a -s "-screen 0 1280x800x24" "$build/examples/demo_panel/demo_panel" \
       --headless --screenshot-dir "$out" --quit-after 16000 "$@"
else
  exec "$build/examples/demo_panel/demo_panel" "$@"
fi
