#include "audio/codec/adpcmConverter.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

#include "audio/codec/adpcmPakket.h"
#include "audio/codec/dacDeler.h"
#include "audio/codec/pcmPakket.h"
#include "numeriek/byteGereedschap.h"

namespace {

constexpr unsigned int tekenBit = 8;
constexpr unsigned int nibbleBits = 4;
constexpr unsigned int nibbleMasker = 0xF;

// The state of one direction, in registers while a packet is on its way.
struct Stand {
  int index;
  int voorspelling;
};

// All bits of an int, or none. The codes of real sound are beyond any branch predictor, so that
// choosing by mask is faster.
int alleBits(bool waar) {
  return -static_cast<int>(waar);
}

// The step that both directions take with a code: `delta` is the size of the difference that it
// stands for.
void volg(Stand& stand, unsigned int code, int delta) {
  constexpr int laagste = -32768;
  constexpr int hoogste = 32767;
  constexpr int laatsteIndex = static_cast<int>(ADPCMConverter::stepSizeTable.size()) - 1;
  int const teken = alleBits((code & tekenBit) != 0);
  stand.voorspelling = std::clamp(stand.voorspelling + ((delta ^ teken) - teken), laagste, hoogste);
  stand.index = std::clamp(stand.index + ADPCMConverter::indexTable[code], 0, laatsteIndex);
}

unsigned int codeer(Stand& stand, int sample) {
  int stap = ADPCMConverter::stepSizeTable[static_cast<std::size_t>(stand.index)];
  int verschil = sample - stand.voorspelling;
  unsigned int code = verschil < 0 ? tekenBit : 0;
  verschil = std::abs(verschil);
  int delta = stap >> 3;
  for (unsigned int bit = 4; bit != 0; bit >>= 1U, stap >>= 1) {
    int const past = alleBits(verschil >= stap);
    code |= bit & static_cast<unsigned int>(past);
    verschil -= stap & past;
    delta += stap & past;
  }
  volg(stand, code, delta);
  return code;
}

int decodeerCode(Stand& stand, unsigned int code) {
  int const stap = ADPCMConverter::stepSizeTable[static_cast<std::size_t>(stand.index)];
  int const delta = (stap >> 3) + ((code & 4U) != 0 ? stap : 0) +
                    ((code & 2U) != 0 ? stap >> 1 : 0) + ((code & 1U) != 0 ? stap >> 2 : 0);
  volg(stand, code, delta);
  return stand.voorspelling;
}

// The low byte with its sign.
int smal(short sample) {
  return static_cast<signed char>(LaagByte(static_cast<unsigned short>(sample)));
}

}  // namespace

unsigned char ADPCMConverter::ADPCM_Encode(short sample) {
  Stand stand{encIndex, encVoorspelling};
  unsigned int const code = codeer(stand, sample);
  encIndex = static_cast<short>(stand.index);
  encVoorspelling = stand.voorspelling;
  return static_cast<unsigned char>(code);
}

short ADPCMConverter::ADPCM_Decode(unsigned char code) {
  Stand stand{decIndex, decVoorspelling};
  int const sample = decodeerCode(stand, code & nibbleMasker);
  decIndex = static_cast<short>(stand.index);
  decVoorspelling = stand.voorspelling;
  return static_cast<short>(sample);
}

unsigned char ADPCMConverter::pakIn(unsigned char const* nibbles) const {
  return static_cast<unsigned char>((static_cast<unsigned int>(nibbles[1]) << nibbleBits) |
                                    nibbles[0]);
}

void ADPCMConverter::pakUit(unsigned char byte, unsigned char* nibbles) const {
  nibbles[0] = byte & nibbleMasker;
  nibbles[1] = static_cast<unsigned char>(byte >> nibbleBits);
}

void ADPCMConverter::encodeer(VelmoraPCMPakket const& bron, VelmoraADPCMPakket const& doel) {
  // The narrowing comes before the scaling: with a DAC of 8 bits nothing but silence is left. The
  // fragments in the field are made so.
  DacDeler const deler(bitShift);
  unsigned long long const paren = bron.geefAantalSamples() / 2;
  Stand stand{encIndex, encVoorspelling};
  auto const codeerSample = [&](unsigned long long i) {
    return static_cast<unsigned char>(codeer(stand, deler.deel(smal(bron.geefElement(i)))));
  };
  for (unsigned long long paar = 0; paar < paren; ++paar) {
    // The elements are evaluated from left to right.
    std::array<unsigned char, 2> const nibbles{codeerSample(2 * paar), codeerSample(2 * paar + 1)};
    doel.zetElement(paar, pakIn(nibbles.data()));
  }
  encIndex = static_cast<short>(stand.index);
  encVoorspelling = stand.voorspelling;
}

void ADPCMConverter::decodeer(VelmoraADPCMPakket const& bron, VelmoraPCMPakket const& doel) {
  constexpr int laatsteIndex = static_cast<int>(stepSizeTable.size()) - 1;
  Stand stand{std::min<int>(bron.geefBeginIndex(), laatsteIndex), bron.geefPredictor()};
  unsigned long long const aantal = bron.geefAantalElementen();
  std::array<unsigned char, 2> nibbles{};
  for (unsigned long long i = 0; i < aantal; ++i) {
    pakUit(bron.geefElement(i), nibbles.data());
    doel.zetElement(2 * i, static_cast<short>(decodeerCode(stand, nibbles[0])));
    doel.zetElement(2 * i + 1, static_cast<short>(decodeerCode(stand, nibbles[1])));
  }
  decIndex = static_cast<short>(stand.index);
  decVoorspelling = stand.voorspelling;
}
