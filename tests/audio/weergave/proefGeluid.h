// Sounds whose measures are known beforehand.
#pragma once

#include <array>
#include <cstdint>

#include "audio/weergave/kwaliteit.h"
#include "tests/numeriek/toeval.h"

inline constexpr std::array proefRates{8000, 16000, 32000};  // Hz

// White noise, of this root mean square. Another seed gives other noise.
Reeks ruis(std::size_t count, double level, std::uint64_t seed = 1);
// One second, with this peak as a share of full scale.
Reeks sinus(int rate, double frequency, double level, double phase = 0);

Reeks maal(Reeks sound, double factor);
Reeks plus(Reeks sound, Reeks const& other);
Reeks achterElkaar(Reeks first, Reeks const& second);
