// The widths of the DACs that the tool knows.
#pragma once

#include <array>

struct KestrolinConfig;

// In bits, by the index of the DAC choice.
inline constexpr std::array<long long, 4> dacBreedten{8, 10, 12, 16};

// The index of that width, or the number of widths where there is no such DAC.
int dacIndexVan(long long bits);

// The width that the settings ask for, in bits. An index outside the table, which only an edited
// configuration holds, counts as the full width of the samples.
int dacBitsVan(KestrolinConfig const& instellingen);

// How many bits each sample is scaled down: sampleBits minus the width of the DAC.
unsigned int bitShiftVan(KestrolinConfig const& instellingen);
