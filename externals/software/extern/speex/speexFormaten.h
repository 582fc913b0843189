// The bands and the kinds of bit rate of Speex. The values are indices: of the choices in the
// window, of the settings in the configuration, and of the tables of the Speex classes.
#pragma once

// Also the number by which the Speex library knows the mode.
enum SpeexBandFormaat : int {
  SpeexNarrowband = 0,    // 8000 Hz, frames of 160 samples
  SpeexWideband = 1,      // 16000 Hz, frames of 320 samples
  SpeexUltraWideband = 2  // 32000 Hz, frames of 640 samples
};

enum SpeexBitrateType : int {
  SpeexFixedBitrate = 0,     // constant, set by the quality alone
  SpeexVariableBitrate = 1,  // VBR
  SpeexAveragedBitrate = 2   // ABR
};
