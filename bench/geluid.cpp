#include "bench/geluid.h"

#include <wx/filename.h>

#include <algorithm>
#include <random>
#include <vector>

#include "audio/codec/sndBestand.h"
#include "audio/codec/wavFormaat.h"

void maakRuis(std::string const& pad, int samplerate, int seconden) {
  std::mt19937 bron(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp): repeatable on purpose
  std::uniform_int_distribution<int> sample(-32768, 32767);
  std::vector<short> samples(static_cast<std::size_t>(seconden) *
                             static_cast<std::size_t>(samplerate));
  std::generate(samples.begin(), samples.end(), [&] { return static_cast<short>(sample(bron)); });
  SndBestand::schrijf(wxFileName(pad), samplerate, 1, wavPcm16)
      .schrijfItems(samples.data(), static_cast<sf_count_t>(samples.size()));
}
