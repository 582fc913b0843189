// The header of a Speex array, and with it the layout of the whole array:
//
//   byte  0     1     2     3     4      5      ...     5+n0   6+n0   ...
//       +-----+-----+-----+-----+------+------+-- ... --+------+------+-- ... --+--
//       | frequency | number of |  n0  | n0 bytes of    |  n1  | n1 bytes of    |
//       | in Hz     | samples   |      | frame 0        |      | frame 1        |
//       +-----+-----+-----+-----+------+------+-- ... --+------+------+-- ... --+--
//
// docs/manual.md defines this layout ("The arrays, byte by byte").
//
// Both fields are unsigned, low byte first. The second one is called a number of frames and counts
// sample frames of the source, in its low 16 bits: a fragment of 2 s at 8000 Hz has 16000 there,
// and 100 frames of Speex. The size bytes n0, n1 and so on are unsigned, 0 to 200; a frame of size
// 0 takes its size byte alone. Nothing marks the end of the array: its own size does. Without
// header the array starts with n0.
#pragma once

struct VelmoraSpeexHeader {
  constexpr VelmoraSpeexHeader(unsigned short frequentie, unsigned short frames)
      : sampFreq(frequentie), aantalFrames(frames) {}

  unsigned short sampFreq;      // Hz
  unsigned short aantalFrames;  // the low 16 bits of the number of samples
};

static_assert(sizeof(VelmoraSpeexHeader) == 4, "the header lies in the array without gaps");
