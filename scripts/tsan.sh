#!/usr/bin/env bash
# The services (database, MQTT, password blocks, archives, FTP) called from eight threads at once for a
# minute under ThreadSanitizer. Builds only what that test needs into build-tsan/.
#   scripts/tsan.sh                    a minute (QGUI_SERVICE_THREADS_SECONDS sets another length)
# Qt is not built with the sanitizer: its own locks are invisible to it, so the C library calls made from
# inside Qt are not checked (ignore_noninstrumented_modules), our hand-overs through Qt are marked
# (platform/threadhandoff.h), and tests/tsan.supp lists what is left, each line with the reason. Any other
# report fails the run.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
"$here/scripts/install-deps.sh"
export QGUI_BUILD_DIR=${QGUI_TSAN_BUILD_DIR:-$here/build-tsan}
QGUI_BUILD_TARGET=tst_servicethreads "$here/scripts/build.sh" -DQGUI_TSAN=ON -DQGUI_BUILD_BENCH=OFF \
    -DQGUI_BUILD_EXAMPLES=OFF
export QGUI_SERVICE_THREADS_SECONDS=${QGUI_SERVICE_THREADS_SECONDS:-60}
export TSAN_OPTIONS=${TSAN_OPTIONS:-suppressions=$here/tests/tsan.supp:ignore_noninstrumented_modules=1:history_size=4:halt_on_error=0:exitcode=66}
export XDG_RUNTIME_DIR=$(mktemp -d)
chmod 700 "$XDG_RUNTIME_DIR"
cd "$QGUI_BUILD_DIR"
ctest --output-on-failure -R '^tst_servicethreads$'
