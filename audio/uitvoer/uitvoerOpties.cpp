#include "audio/uitvoer/uitvoerOpties.h"

#include <speex/speex_types.h>

#include <algorithm>
#include <limits>

#include "audio/uitvoer/dacBreedte.h"

namespace {

// A spin control gets the number as a signed one, so that one of more than 31 bits shows as 0.
unsigned int begrensNiveau(unsigned int niveau) {
  return static_cast<unsigned int>(std::clamp(static_cast<int>(niveau), 0, speexHoogsteNiveau));
}

SpeexBitrateType bitrateSoortVan(KestrolinConfig const& instellingen) {
  switch (instellingen.speexBitRateChoice) {
    case SpeexVariableBitrate:
      return SpeexVariableBitrate;
    case SpeexAveragedBitrate:
      return SpeexAveragedBitrate;
    default:
      return SpeexFixedBitrate;
  }
}

// To the library a negative ceiling is no ceiling. The largest one comes to the same.
unsigned int begrensBitrate(unsigned int bitrate) {
  constexpr unsigned int hoogste = std::numeric_limits<spx_int32_t>::max();
  return std::min(bitrate, hoogste);
}

template <typename Opties>
Opties maakConverterOpties(KestrolinConfig const& instellingen, wxString const& klasse) {
  auto const taal = static_cast<decltype(Opties::taal)>(instellingen.speexOutputLanguage);
  return uitvoerTaalRij(taal).krijgtKlasse ? Opties(taal, klasse, bitShiftVan(instellingen))
                                           : Opties(taal, bitShiftVan(instellingen));
}

}  // namespace

KestrolinConfig eersteInstellingen(UitvoerTaal taal, long long dacBits) {
  KestrolinConfig instellingen;
  instellingen.speexOutputLanguage = taal;
  instellingen.dacNumberOfBits = dacIndexVan(dacBits);
  return instellingen;
}

SpeexBandFormaat speexBandVan(KestrolinConfig const& instellingen) {
  switch (instellingen.speexFormat) {
    case SpeexWideband:
      return SpeexWideband;
    case SpeexUltraWideband:
      return SpeexUltraWideband;
    default:
      return SpeexNarrowband;
  }
}

SpeexEncodeConfig maakSpeexConfig(KestrolinConfig const& instellingen) {
  return {speexBandVan(instellingen),
          begrensNiveau(instellingen.speexQuality),
          begrensNiveau(instellingen.speexComplexity),
          bitrateSoortVan(instellingen),
          begrensBitrate(instellingen.speexBitRate),
          bitShiftVan(instellingen),
          instellingen.speexVAC,
          instellingen.speexDenoise,
          instellingen.speexAGC};
}

SpeexEncoderOpties maakSpeexOpties(KestrolinConfig const& instellingen, wxString const& klasse) {
  UitvoerTaalRij const& taal = uitvoerTaalRij(instellingen.speexOutputLanguage);
  SpeexEncoderOpties opties = taal.krijgtKlasse ? SpeexEncoderOpties(klasse) : SpeexEncoderOpties();
  opties.taal = heeftArrays(taal) ? taal.nummer : UitvoerTaalCPP;
  return opties;
}

PCMEncoderOpties maakPcmOpties(KestrolinConfig const& instellingen, wxString const& klasse) {
  return maakConverterOpties<PCMEncoderOpties>(instellingen, klasse);
}

ADPCMEncoderOpties maakAdpcmOpties(KestrolinConfig const& instellingen, wxString const& klasse) {
  return maakConverterOpties<ADPCMEncoderOpties>(instellingen, klasse);
}

InbedOpties maakInbedOpties(KestrolinConfig const& instellingen, wxString const& klasse) {
  return {instellingen.speexOutputLanguage, klasse, dacBitsVan(instellingen), {}};
}
