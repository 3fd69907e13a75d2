#!/usr/bin/env bash
# The full create/delete soak: every widget kind 10,000 times created, shown, changed and deleted; popups
# and windows opened and closed 10,000 times with their widgets; a desktop with every kind closed 500
# times. Prints, per case, the live objects and registry entries left over and the resident memory drift
# between cycle 1,000 and the end (at most 1 MiB). Runs within an hour on two cores.
#   scripts/soak.sh                 QGUI_SOAK_CYCLES=n sets another number of cycles
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/install-deps.sh"
QGUI_BUILD_TARGET=tst_soak "$here/scripts/build.sh"
export QGUI_SOAK_CYCLES=${QGUI_SOAK_CYCLES:-10000}
export XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb
start=$(date +%s)
xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "${QGUI_BUILD_DIR:-$here/build}/tests/soak/tst_soak" \
    | grep -E "^soak |^FAIL|^Totals|Loc:"
echo "soak: $QGUI_SOAK_CYCLES cycles in $(( $(date +%s) - start )) s"
