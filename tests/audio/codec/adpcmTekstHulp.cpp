#include "tests/audio/codec/adpcmTekstHulp.h"

#include "tests/audio/codec/adpcmModel.h"

ADPCMDesktopConverter converterMet(ADPCMEncoderOpties const& opties) {
  ADPCMDesktopConverter converter(opties);
  converter.zetOpties(opties);
  return converter;
}

std::string adpcmTekst(ADPCMDesktopConverter& converter, std::string const& pad, bool metHeader) {
  wxMemoryOutputStream uit;
  converter.codeerBestand(bestandsnaam(pad), metHeader, uit);
  return zonderMoment(tekstVan(uit));
}

std::string adpcmTekst(ADPCMEncoderOpties const& opties, std::string const& pad, bool metHeader) {
  ADPCMDesktopConverter converter = converterMet(opties);
  return adpcmTekst(converter, pad, metHeader);
}

std::string verwachteAdpcmTekst(VerwachteTekst const& gegevens, Bytes const& codes) {
  return maakVerwachteTekst(
      gegevens,
      {{"_adpcmNumberOfEncSamples", codes.size()}, {"_pcmNumberOfSamples", 2 * codes.size()}},
      modelBeeld(codes, gegevens.rate, gegevens.metHeader));
}

Bytes adpcmBeeld(ADPCMDesktopConverter& converter, std::string const& pad, bool metHeader,
                 std::string const& uitvoer) {
  converter.codeerBestand(bestandsnaam(pad), metHeader, bestandsnaam(uitvoer));
  return leesBytes(uitvoer);
}

std::unique_ptr<VelmoraADPCMPakket> adpcmPakket(ADPCMDesktopConverter& converter,
                                                std::string const& pad) {
  return std::unique_ptr<VelmoraADPCMPakket>(converter.codeerBestand(bestandsnaam(pad)));
}

Bytes codesVan(VelmoraADPCMPakket const& pakket) {
  return {pakket.geefData(), pakket.geefData() + pakket.geefAantalBytes()};
}
