#include "help/credits_text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kCredits =
    R"(Tarnwick 18.0

# Licence

MIT License

Copyright (c) 2026 The Tarnwick developers

Permission is hereby granted, free of charge, to any person obtaining a copy of this software and associated documentation files (the "Software"), to deal in the Software without restriction, including without limitation the rights to use, copy, modify, merge, publish, distribute, sublicense, and/or sell copies of the Software, and to permit persons to whom the Software is furnished to do so, subject to the following conditions:

The above copyright notice and this permission notice shall be included in all copies or substantial portions of the Software.

THE SOFTWARE IS PROVIDED "AS IS", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, INCLUDING BUT NOT LIMITED TO THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A PARTICULAR PURPOSE AND NONINFRINGEMENT. IN NO EVENT SHALL THE AUTHORS OR COPYRIGHT HOLDERS BE LIABLE FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, WHETHER IN AN ACTION OF CONTRACT, TORT OR OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE SOFTWARE OR THE USE OR OTHER DEALINGS IN THE SOFTWARE.

# Libraries

The windows are made with Qt 6, copyright The Qt Company Ltd. and other contributors, which is used under the GNU Lesser General Public License, version 3.

# Maps and places

The coastlines are those of Natural Earth 4.1, in the public domain. The places and what is noted of them were put together for this program.

# Sources of the astronomy

- Moon and Sun: JPL DE431. Folkner et al., The Planetary and Lunar Ephemerides DE430 and DE431, IPN Progress Report 42-196 (2014).
- Delta T: Stephenson, Morrison, Hohenkerk, Measurement of the Earth's rotation: 720 BC to AD 2015, Proc. R. Soc. A 472 (2016). Its uncertainty: Morrison, Stephenson, Historical values of the Earth's clock error, Journal for the History of Astronomy 35 (2004).
- Turning of the Earth: Vondrák, Capitaine, Wallace, New precession expressions, valid for long time intervals, Astronomy and Astrophysics 534 (2011).
- Crescents: Yallop, A method for predicting the first sighting of the new crescent Moon, HM Nautical Almanac Office, Technical Note 69 (1997).
- Phases and eclipses: Explanatory Supplement to the Astronomical Almanac, 3rd ed., ch. 11. Meeus, Elements of Solar Eclipses 1951-2200, and Astronomical Algorithms, 2nd ed., ch. 49 and 54.
- Lunar eclipses: Danjon, Les éclipses de Lune par la pénombre en 1951, L'Astronomie 65 (1951).
- Obliquity of the ecliptic: Laskar, Secular terms of classical planetary theories, Astronomy and Astrophysics 157 (1986).
- Saros numbers: van den Bergh, Periodicity and Variation of Solar (and Lunar) Eclipses (1955).
- Reference data for the tests of phases and eclipses: samples computed from JPL DE431 by other software.)";

}  // namespace

std::string_view CreditsText() { return kCredits; }

}  // namespace tarnwick
