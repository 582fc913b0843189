// The live settings of the encoders. The application reads them from the configuration at its start
// and writes them back at its end; in between the main window's handlers change them in place.
#pragma once

// The fields bear the names of their configuration keys.
struct KestrolinConfig {
  int speexFormat;               // index of the band choice: 0 narrow, 1 wide, 2 ultra wide
  unsigned int speexQuality;     // 0 to 10
  unsigned int speexComplexity;  // 0 to 10
  int speexBitRateChoice;        // index of the bit rate kind: 0 fixed, 1 variable, 2 average
  unsigned int speexBitRate;     // the maximum or average bit rate
  int speexOutputLanguage;       // index of the implementation language: 0 C, 1 C++, 2 Python
  bool speexVAC;                 // voice activity detection
  bool speexDenoise;             // denoise the input
  bool speexAGC;                 // adaptive gain control
  bool IncludeHeader;            // put the header into the generated array
  int dacNumberOfBits;           // index into HoofdVenster::DacAantalBits
};
