// How near a decoded sound comes to its original, in dB: two published measures.
//
// Both cut the sounds into frames of 30 ms under a Hanning window, three quarters over one another,
// and give the mean over the frames that are not silent in the original. The figures of which the
// mean is made are held between -10 and 35 dB, as is usual: more of a difference, or less, is not
// heard.
#pragma once

#include <cstddef>
#include <kissfft/kissfft.hh>
#include <optional>
#include <vector>

// Samples at the scale of 16 bits, or magnitudes.
using Reeks = std::vector<double>;

// These samples times `factor`.
Reeks opSchaal(std::vector<short> const& samples, double factor);

struct Kwaliteit {
  // Frequency-weighted segmental SNR (Tribolet and others 1978; this form Hu and Loizou 2008). It
  // compares the magnitudes of each critical band, and not the waves: a shift in phase, which is
  // not heard, costs little. It leaves out the bands that are below the threshold of hearing in
  // both sounds: in a pure tone most are, and what little they hold would count more than the tone.
  double banden;
  // Segmental SNR: of the waves, without regard to hearing.
  double golven;
};

// As far as both sounds go, at `rate` Hz. Nothing where the original has no frame, or silent ones
// alone.
std::optional<Kwaliteit> meetKwaliteit(Reeks const& origineel, Reeks const& gehoord, int rate);

// The frames of a sampling frequency, and their magnitudes by band.
class BandMeter {
 public:
  explicit BandMeter(int rate);

  // The number of whole frames in so many samples.
  std::size_t aantalFrames(std::size_t samples) const;
  // The frame of that number, under the window.
  Reeks frame(Reeks const& geluid, std::size_t nummer) const;
  // Its root mean square, as if there were no window.
  double niveau(Reeks const& frame) const;
  // The magnitude in each band below half the sampling frequency; 1 for a full sine.
  Reeks grootten(Reeks const& frame) const;

 private:
  Reeks venster;
  std::size_t stap;  // samples from the begin of a frame to that of the next
  std::size_t punten;
  std::vector<std::size_t> grenzen;  // of the bands, in points of the spectrum
  kissfft<double> omzetter;
};

// The mean over the bands of a frame of which these are the magnitudes.
double gewogenVerhouding(Reeks const& origineel, Reeks const& gehoord);
