#!/usr/bin/env bash
# Installs every Debian package qgui needs to build, run its demo and run its tests.
# Idempotent: packages already present are skipped, so a second run costs a few seconds.
# Usage: scripts/install-deps.sh            (as root, or through sudo)
set -euo pipefail

PACKAGES=(
  # tool chain
  build-essential cmake pkg-config ccache git
  # Qt 5.15: core modules, Quick, Controls 2, Svg, Sql drivers, Concurrent (in qtbase), Test
  qtbase5-dev qtdeclarative5-dev qtquickcontrols2-5-dev libqt5svg5-dev
  # private headers: the button and dialog items derive from Qt Quick Templates classes
  qtbase5-private-dev qtdeclarative5-private-dev qtquickcontrols2-5-private-dev
  libqt5sql5-sqlite libqt5sql5-mysql libqt5sql5-psql libqt5sql5-tds
  qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts
  qml-module-qtquick-controls2 qml-module-qtquick-templates2 qml-module-qtquick-shapes
  qml-module-qt-labs-calendar qml-module-qttest qml-module-qtqml-models2
  # libraries
  qttools5-dev-tools
  libqcustomplot-dev libqrcodegencpp-dev libpaho-mqtt-dev libssl-dev qtpdf5-dev
  libcurl4-openssl-dev
  libspdlog-dev libfmt-dev
  # a real Pinyin engine for the demo's logic layer (the library does not link it)
  libgooglepinyin0-dev
  # headless display with real OpenGL (Mesa), and CJK-capable fonts
  xvfb xauth libgl1-mesa-dri libegl-mesa0 mesa-utils
  fonts-noto-cjk fonts-dejavu-core
  # servers and tools used by the tests
  mosquitto mosquitto-clients postgresql mariadb-server p7zip-full zbar-tools poppler-utils
  vsftpd python3-pyftpdlib curl
  procps binutils
  # the coverage-guided fuzzer (scripts/fuzz.sh): clang and its libFuzzer runtime
  clang-14 libclang-rt-14-dev
)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: all ${#PACKAGES[@]} packages present"
  exit 0
fi

SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
echo "install-deps: installing ${missing[*]}"
$SUDO apt-get update -qq
# Servers are started by the tests themselves, in temporary folders: keep the packaged
# services from starting (there is no init system in containers anyway).
if [ ! -e /usr/sbin/policy-rc.d ]; then
  printf '#!/bin/sh\nexit 101\n' | $SUDO tee /usr/sbin/policy-rc.d >/dev/null
  $SUDO chmod +x /usr/sbin/policy-rc.d
  trap '$SUDO rm -f /usr/sbin/policy-rc.d' EXIT
fi
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
echo "install-deps: done"
