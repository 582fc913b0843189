#include "tests/audio/codec/adpcmModel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr int hoogsteIndex = 88;

// The published table is no list of odd numbers: it counts from 7 to 14, then grows from 16 by a
// tenth a step, cut to whole numbers, and ends at the largest sample.
int stap(int index) {
  if (index < 8) {
    return 7 + index;
  }
  return std::min(32767, static_cast<int>(std::floor(16.0 * std::pow(1.1, index - 8))));
}

// The least difference that gets this magnitude of 0 to 7, of which each bit stands for a part of
// the step that fits in what the bits above it leave.
int drempel(int grootte, int step) {
  int som = 0;
  if (grootte >= 4) {
    som += step;
  }
  if (grootte % 4 >= 2) {
    som += step / 2;
  }
  if (grootte % 2 == 1) {
    som += step / 4;
  }
  return som;
}

// Moves the state by one code. What is added is the threshold and an eighth of the step.
void volg(AdpcmStand& stand, int code) {
  int const grootte = code % 8;
  int const step = stap(stand.index);
  int const delta = drempel(grootte, step) + step / 8;
  stand.voorspelling += code >= 8 ? -delta : delta;
  stand.voorspelling = std::max(-32768, std::min(32767, stand.voorspelling));
  stand.index += grootte < 4 ? -1 : 2 * (grootte - 3);
  stand.index = std::max(0, std::min(hoogsteIndex, stand.index));
}

// The low byte of a sample, as a number with a sign.
int laagMetTeken(int sample) {
  int const laag = ((sample % 256) + 256) % 256;
  return laag < 128 ? laag : laag - 256;
}

}  // namespace

int modelCode(AdpcmStand& stand, int sample) {
  int const verschil = sample - stand.voorspelling;
  int const afstand = verschil < 0 ? -verschil : verschil;
  int grootte = 7;
  while (drempel(grootte, stap(stand.index)) > afstand) {
    --grootte;
  }
  int const code = verschil < 0 ? grootte + 8 : grootte;
  volg(stand, code);
  return code;
}

int modelSample(AdpcmStand& stand, int code) {
  volg(stand, code);
  return stand.voorspelling;
}

Bytes modelBytes(AdpcmStand& stand, std::vector<int> const& samples, int deler) {
  Bytes bytes;
  for (std::size_t i = 1; i < samples.size(); i += 2) {
    int const eerste = modelCode(stand, laagMetTeken(samples[i - 1]) / deler);
    int const tweede = modelCode(stand, laagMetTeken(samples[i]) / deler);
    bytes.push_back(static_cast<unsigned char>(16 * tweede + eerste));
  }
  return bytes;
}

std::vector<int> modelSamples(AdpcmStand& stand, Bytes const& codes) {
  std::vector<int> samples;
  for (unsigned char const byte : codes) {
    samples.push_back(modelSample(stand, byte % 16));
    samples.push_back(modelSample(stand, byte / 16));
  }
  return samples;
}

Bytes modelBeeld(Bytes const& codes, int rate, bool metHeader) {
  Bytes const negenNullen(9, 0);
  if (!metHeader) {
    Bytes beeld = codes;
    beeld.insert(beeld.end(), negenNullen.begin(), negenNullen.end());
    return beeld;
  }
  Bytes beeld = laagEerst(codes.size(), 4);
  Bytes const frequentie = laagEerst(static_cast<unsigned long long>(rate), 2);
  beeld.insert(beeld.end(), frequentie.begin(), frequentie.end());
  beeld.insert(beeld.end(), 3, 0);  // prediction 0 in two bytes, index 0
  beeld.insert(beeld.end(), codes.begin(), codes.end());
  return beeld;
}
