// The bands and the kinds of bit rate of Speex. The values are indices: of the choices in the
// window, of the settings in the configuration, and of the tables of the Speex classes.
#pragma once

#include <array>

// Also the number by which the Speex library knows the mode.
enum SpeexBandFormaat : int { SpeexNarrowband = 0, SpeexWideband = 1, SpeexUltraWideband = 2 };

// By band: the sampling frequency in Hz, and the samples in a frame.
inline constexpr std::array<unsigned short, 3> speexFrequenties{8000, 16000, 32000};
inline constexpr std::array<unsigned short, 3> speexFrameSizes{160, 320, 640};
// Its name, in the window and in the text.
inline constexpr std::array<char const*, 3> speexBandNamen{"Narrowband", "Wideband",
                                                           "Ultra Wideband"};

// Quality and complexity go from 0 to this.
inline constexpr int speexHoogsteNiveau = 10;

enum SpeexBitrateType : int {
  SpeexFixedBitrate = 0,     // constant, set by the quality alone
  SpeexVariableBitrate = 1,  // VBR
  SpeexAveragedBitrate = 2   // ABR
};
