#!/bin/bash
# Prints the folder of a static Qt for 64-bit Windows, built for size, and builds it if it is not in
# the cache yet (a quarter of an hour on two cores). Its version is that of the Qt installed here, since the
# tools of the one serve the other.
# usage: packaging/windows/qt.sh      the cache: ${XDG_CACHE_HOME:-~/.cache}/tarnwick
set -euo pipefail
shopt -s extglob nullglob
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$here/../..

"$root/scripts/packages.sh" windows-qt >&2
version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
# What is built differently has another name.
recipe=$(cat "$here/qt.sh" "$root/cmake/mingw.cmake" | sha256sum | cut -c1-12)
qt=${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick/qt-${version//+/_}-$recipe

# get_source WORK: Debian's source of that version, with its security patches, unpacked below WORK.
# Apt gets lists of its own, so that those of the machine stay as they are.
get_source() {
  local work=$1 mirror options
  mkdir -p "$work/apt/lists/partial" "$work/apt/parts"
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' |
    head -n 1)
  echo "deb-src ${mirror%/} bookworm main" >"$work/apt/sources.list"
  options=(-o Dir::Etc::sourcelist="$work/apt/sources.list" -o Dir::Etc::sourceparts="$work/apt/parts"
    -o Dir::State::lists="$work/apt/lists" -o APT::Sandbox::User=root)
  cd "$work"
  apt-get "${options[@]}" update
  apt-get "${options[@]}" source --download-only "qt6-base=$version"
  tar xf qt6-base_*.orig.tar.xz
  tar xf qt6-base_*.debian.tar.xz
  cd qtbase-everywhere-src-*/
  { grep -i '^cve' ../debian/patches/series || true; } | while read -r patch; do
    patch -p1 -s <"../debian/patches/$patch"
  done
}

# Parts of Qt that the program does not use. Without OpenGL the raster engine paints, which runs
# everywhere; DirectWrite needs direct2d, and only its extra platform plugin is left out.
left_out=(pkg_config system_zlib system_png system_freetype system_harfbuzz system_pcre2 network sql
  dbus xml concurrent opengl vulkan icu glib zstd jpeg fontconfig tabletevent tuiotouch direct2d1_1
  qmake windeployqt androiddeployqt sessionmanager textodfwriter textmarkdownreader
  textmarkdownwriter cpp_winrt etw)

# build_qt WORK: below WORK/qt. Qt writes prefix and source paths into programs: neither is of this
# machine.
build_qt() {
  local work=$1 source features
  features=("${left_out[@]/#/-DFEATURE_}")
  features=("${features[@]/%/=OFF}")
  source=$(echo "$work"/qtbase-everywhere-src-*/)
  source=${source%/}
  cmake -G Ninja -S "$source" -B "$work/build" \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw.cmake" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -dumpmachine)/cmake" \
    -DCMAKE_INSTALL_PREFIX=/qt-win -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_C_FLAGS="-ffile-prefix-map=$source=qtbase" \
    -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$source=qtbase" \
    -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON -DFEATURE_gc_binaries=ON \
    -DFEATURE_optimize_size=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DINPUT_opengl=no \
    "${features[@]}"
  cmake --build "$work/build"
  cmake --install "$work/build" --prefix "$work/qt" --strip >"$work/install.log"
  copy_licences "$source" "$work/qt/licences"
}

# copy_licences SOURCE FOLDER: of Qt and of what it contains, which go along with every program.
copy_licences() {
  local source=$1 folder=$2 part
  mkdir "$folder"
  cp "$source/LICENSES/LGPL-3.0-only.txt" "$folder/Qt LGPL-3.0.txt"
  cp "$source/LICENSES/GPL-3.0-only.txt" "$folder/Qt GPL-3.0.txt"
  for part in zlib libpng pcre2 double-conversion harfbuzz-ng; do
    cat "$source/src/3rdparty/$part/"@(LICENSE|LICENCE|LICENCE-SLJIT|COPYING) \
      >"$folder/$part.txt"
  done
  cat "$source"/src/3rdparty/freetype/{LICENSE.txt,docs/FTL.TXT} >"$folder/freetype.txt"
}

if [[ ! -d $qt ]]; then
  mkdir -p "$(dirname "$qt")"
  work=$(mktemp -d "$qt.XXXXXX")
  trap 'rm -rf "$work"' EXIT
  (
    get_source "$work"
    build_qt "$work"
  ) >&2
  mv "$work/qt" "$qt"
fi
echo "$qt"
