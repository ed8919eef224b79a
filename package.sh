#!/bin/bash
# Makes what users install, in build/packages.
#   windows: tarnwick-18.0-windows.zip and the installer tarnwick-18.0-setup.exe
#   linux:   a Debian package
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

version=18.0
packages=build/packages

usage() {
  echo "usage: ./package.sh windows | linux" >&2
  exit 2
}

package_windows() {
  scripts/packages.sh run windows package-windows
  TARNWICK_WINDOWS_QT=${TARNWICK_WINDOWS_QT:-$(packaging/windows/qt.sh)}
  export TARNWICK_WINDOWS_QT
  cmake --preset windows
  cmake --build --preset windows --target tarnwick

  local folder=build/windows/tarnwick-$version
  rm -rf "$folder"
  mkdir -p "$folder/assets/icon" "$folder/licences" "$packages"
  cp build/windows/bin/tarnwick.exe "$folder"
  cp assets/icon/tarnwick.ico "$folder"
  cp -r assets/*.bmp assets/*.csv assets/moon_pics "$folder/assets"
  cp assets/icon/tarnwick.png "$folder/assets/icon"
  # What Windows users open with an editor has their line ends.
  sed 's/$/\r/' packaging/windows/read-me.txt >"$folder/read-me.txt"
  sed 's/$/\r/' LICENSE >"$folder/licences/Tarnwick.txt"
  cp "$TARNWICK_WINDOWS_QT"/licences/* "$folder/licences"

  rm -f "$packages"/tarnwick-$version-windows.zip
  (cd "$(dirname "$folder")" && zip -q -9 -r - "$(basename "$folder")") \
    >"$packages/tarnwick-$version-windows.zip"
  makensis -V2 -DFOLDER="$PWD/$folder" -DOUTPUT="$PWD/$packages/tarnwick-$version-setup.exe" \
    packaging/windows/installer.nsi
}

package_linux() {
  scripts/packages.sh run package-linux
  cmake --preset release -DTARNWICK_TESTS=OFF -DTARNWICK_BENCHMARKS=OFF
  cmake --build --preset release --target tarnwick
  cpack --config build/release/CPackConfig.cmake -G DEB -B "$packages"
  rm -rf "$packages/_CPack_Packages"
}

(($# == 1)) || usage
case $1 in
  windows | linux) "package_$1" ;;
  *) usage ;;
esac
ls -l "$packages"
