#!/bin/bash
# Installs what is missing of the named groups of Debian packages.
# usage: scripts/packages.sh GROUP...     groups: run, screen, test, fuzz, windows, windows-qt,
#                                           package-windows, package-linux, faults,
#                                           drive, check, coverage, fit
set -euo pipefail

packages_of() {
  case $1 in
    run) echo g++ cmake ninja-build ccache qt6-base-dev libgl1-mesa-dev fonts-dejavu-core ;;
    screen) echo xvfb xauth imagemagick ;;
    test) echo googletest libbenchmark-dev python3 python3-icalendar python3-numpy ;;
    fuzz) echo clang libclang-rt-14-dev cmake ninja-build ccache ;;
    windows) echo g++-mingw-w64-x86-64-posix wine64 fonts-liberation xvfb xauth ;;
    windows-qt) echo g++ g++-mingw-w64-x86-64-posix qt6-base-dev cmake ninja-build dpkg-dev patch xz-utils ;;
    package-windows) echo zip nsis ;;
    package-linux) echo dpkg-dev file ;;
    faults) echo python3 xvfb xdotool util-linux mount ;;
    drive) echo openbox xdotool imagemagick unzip ;;
    check) echo clang-format clang-tidy cppcheck valgrind ;;
    coverage) echo gcovr ;;
    fit) echo g++ libswe-dev swe-basic-data swe-standard-data swe-extra-data python3 python3-numpy python3-matplotlib libopenblas0-pthread ;;
    *)
      echo "$0: unknown group: $1" >&2
      return 2
      ;;
  esac
}

is_installed() {
  [[ $(dpkg-query -W -f='${db:Status-Status} ' "$1" 2>/dev/null) == installed* ]]
}

wanted=()
for group in "$@"; do
  names=$(packages_of "$group")
  read -ra names <<<"$names"
  wanted+=("${names[@]}")
done

if ! command -v apt-get >/dev/null; then
  echo "$0: no apt-get here; see to it that these are installed: ${wanted[*]}" >&2
  exit 0
fi

missing=()
for name in "${wanted[@]}"; do
  is_installed "$name" || missing+=("$name")
done
((${#missing[@]})) || exit 0

as_root=(env DEBIAN_FRONTEND=noninteractive)
((EUID == 0)) || as_root=(sudo "${as_root[@]}")
# Another run may hold the lock of the package system: wait rather than fail.
apt=("${as_root[@]}" apt-get -q -o DPkg::Lock::Timeout=300)
echo "Installing ${missing[*]}"
"${apt[@]}" update
"${apt[@]}" install -y --no-install-recommends "${missing[@]}"
