#include "audio/uitvoer/fragmentMaker.h"

#include "audio/codec/fragmentTekst.h"
#include "audio/uitvoer/uitvoerOpties.h"

namespace {

constexpr RunSoort pcmSoort{"/* PCM encoding output of ", " audio files \t\t*/\n\n", "encoding",
                            byteArrayType};
constexpr RunSoort adpcmSoort{"/* ADPCM encoding output of ", " audio files \t\t*/\n\n", "encoding",
                              byteArrayType};
constexpr RunSoort wavSoort{"/* Embedded output of ", " WAV Files\t\t*/\n\n", "embedding",
                            byteArrayType};

}  // namespace

PCMMaker::PCMMaker(PCMDesktopConverter& eigenConverter)
    : FragmentMaker(pcmSoort), converter(eigenConverter) {}

void PCMMaker::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                     std::size_t /*aantal*/) {
  converter.zetOpties(maakPcmOpties(instellingen, klasse));
}

Gemaakt PCMMaker::maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) {
  converter.codeerBestand(wav, metHeader, uit);
  return Gemaakt::heel;
}

ADPCMMaker::ADPCMMaker(ADPCMDesktopConverter& eigenConverter)
    : FragmentMaker(adpcmSoort), converter(eigenConverter) {}

void ADPCMMaker::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                       std::size_t /*aantal*/) {
  converter.zetOpties(maakAdpcmOpties(instellingen, klasse));
}

Gemaakt ADPCMMaker::maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) {
  converter.codeerBestand(wav, metHeader, uit);
  return Gemaakt::heel;
}

WAVMaker::WAVMaker() : FragmentMaker(wavSoort), opties{} {}

void WAVMaker::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                     std::size_t /*aantal*/) {
  opties = maakInbedOpties(instellingen, klasse);
}

Gemaakt WAVMaker::maak(wxFileName const& wav, bool /*metHeader*/, wxOutputStream& uit) {
  return schrijfInbedding(wav, opties, uit) ? Gemaakt::heel : Gemaakt::nietHeel;
}
