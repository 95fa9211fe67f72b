#!/usr/bin/env bash
# Installs the Debian packages the editor, its tests and benchmarks need.
# Idempotent: packages already installed are left alone, and apt is only asked
# when something is missing.
set -euo pipefail

# libwmf refuses every metafile when its fonts (fonts-urw-base35) are missing.
PACOTES=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev qt6-translations-l10n
  libgtest-dev libgmock-dev libbenchmark-dev
  libzint-dev libzxing-dev
  qt6-svg-dev libwmf-dev libemf2svg-dev
  fonts-urw-base35
  fonts-liberation2 fontconfig
  gnucobol
  clang libclang-rt-14-dev
  xvfb xauth
  poppler-utils
)
[ "${LUMETA_GUI_TOOLS:-0}" = 1 ] && PACOTES+=(imagemagick)

faltando=()
for p in "${PACOTES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltando+=("$p")
done
if [ ${#faltando[@]} -gt 0 ]; then
  echo "Instalando: ${faltando[*]}"
  SUDO=""; [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${faltando[@]}" >/dev/null
fi
