// What the tests of the embedding share: the text that is expected of one file, and sound files
// written and read by libsndfile itself, without the tool's own holder of its handle.
#pragma once

#include <gtest/gtest.h>
#include <sndfile.h>

#include <string>
#include <vector>

#include "audio/codec/wavFormaat.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/bytes.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"

struct SndInhoud {
  SF_INFO info;
  std::vector<int> waarden;  // interleaved
};

// The test fails where the library does not take the file.
SndInhoud leesSnd(std::string const& pad);
void schrijfSnd(std::string const& pad, std::vector<int> const& waarden, WavSoort const& soort,
                int formaat = wavPcm16);

// What is left of 16-bit values at a width of `bits`: the floor of the quotient.
std::vector<int> geschaald(std::vector<int> waarden, int bits);

struct VerwachtBlok {
  int taal = 0;
  std::string klasse;
  std::string naam = "toon";
  std::string bestand = "toon.wav";
  std::string formaat = "WAV S16 PCM";
  int rate = 8000;
  int frames = 0;
  int bits = 16;
};

// The whole text of one file with momentRegel in it, and with these bytes in its array.
std::string verwachteInbedding(VerwachtBlok const& blok, Bytes const& beeld);

// Has a temporary directory of its own for the images, and beside it a directory for the rest.
class InbedProef : public testing::Test {
 protected:
  InbedProef();

  // The text of one file, with momentRegel in it.
  static std::string inbed(std::string const& pad, int bits = 16, int taal = 0,
                           std::string const& klasse = "");
  // The names in the temporary directory, in their order.
  std::vector<std::string> namen() const;
  // The bytes of the one file in it.
  Bytes beeld() const;
  // Those of the image that libsndfile makes of these values.
  Bytes sndBeeld(std::vector<int> const& waarden, WavSoort const& soort = {},
                 int formaat = wavPcm16) const;

  TijdelijkeMap map;
  std::string const toon = map.pad("toon.wav");

 private:
  OmgevingsWaarde tijdelijk{"TMPDIR", map.pad("tmp")};
};
