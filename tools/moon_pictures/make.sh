#!/bin/bash
# Draws the pictures of the Moon anew and puts them into assets/.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

scripts/packages.sh run screen

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/pictures"

cmake --preset release -B "$work/build" -DTARNWICK_TESTS=OFF -DTARNWICK_BENCHMARKS=OFF
cmake --build "$work/build" --target tarnwick_moon_pictures
"$work/build/bin/tarnwick_moon_pictures" "$work/pictures"

# 256 colours are enough for one phase: without dithering no band is seen, with it the night and the
# maria become grainy. The deepest tree tells shades apart that the default one throws together.
few_colours=(+dither -treedepth 8 -colors 256 -strip)
mkdir -p assets/moon_pics
for drawing in "$work"/pictures/day*.png; do
  convert "$drawing" "${few_colours[@]}" "assets/moon_pics/$(basename "$drawing" .png).gif"
done
for drawing in "$work"/pictures/*.bmp; do
  convert "$drawing" "${few_colours[@]}" -compress none "BMP3:assets/$(basename "$drawing")"
done

# The icon is the disc alone, for the sky of any desktop.
mkdir -p assets/icon
convert "$work/pictures/icon.png" \
  \( -size 256x256 xc:black -fill white -draw 'circle 127.5,127.5 127.5,5' \) \
  -alpha off -compose CopyOpacity -composite -strip assets/icon/tarnwick.png
convert assets/icon/tarnwick.png -define icon:auto-resize=256,64,48,40,32,24,20,16 \
  assets/icon/tarnwick.ico
