// What the tests of the ADPCM coder share: signals, and the coder called on rows of numbers.
#pragma once

#include <string>
#include <vector>

#include "audio/codec/adpcmConverter.h"
#include "audio/codec/adpcmPakket.h"
#include "tests/steun/bytes.h"

// The base of the packet with every field at choice; the packets themselves only come with elements
// of one byte and without a chain.
class BasisPakket : public VelmoraDataPakket<unsigned char> {
 public:
  BasisPakket(unsigned char* blok, unsigned long long grootte, unsigned long long elementBytes,
              bool neemtOver)
      : VelmoraDataPakket(blok, grootte, elementBytes, neemtOver) {}
  using VelmoraDataPakket::zetVolgende;
};

struct Signaal {
  std::string naam;
  std::vector<int> samples;
};

// Every value of 16 bits once, without order, and 0 first.
std::vector<int> alleWaarden();
// A sine from 0 on, `periode` samples long and `top` high.
std::vector<int> sinus(std::size_t aantal, double periode, int top);
// `laag` and `hoog` in turn, each `lengte` samples long.
std::vector<int> blokgolf(std::size_t aantal, std::size_t lengte, int laag, int hoog);
// Noise, sines, steps, extremes and silence over the whole range, each starting with 0.
std::vector<Signaal> signalen();
// The same signals within -128 to 127.
std::vector<Signaal> smalleSignalen();

// The codes of encodeer; the block that it writes to is exactly as large as it asks for.
Bytes codes(ADPCMConverter& converter, std::vector<int> const& samples);
// The codes of ADPCM_Encode, packed; an even number of samples.
Bytes losseCodes(ADPCMConverter& converter, std::vector<int> const& samples);
// The samples of decodeer, from a block exactly as large as the codes to one as large as asked for.
std::vector<int> gedecodeerd(ADPCMConverter& converter, Bytes const& bytes, int predictor,
                             int index);
// The sample of ADPCM_Decode for each of the codes, low half first.
std::vector<int> losseSamples(ADPCMConverter& converter, Bytes const& bytes);

// The base's block as a row.
Bytes inhoud(VelmoraADPCMPakket const& pakket);
// Fills the packet from its first byte on.
void vul(VelmoraADPCMPakket const& pakket, Bytes const& bytes);
