#include "audio/uitvoer/fragmentMaker.h"

#include "audio/codec/fragmentTekst.h"
#include "audio/uitvoer/uitvoerOpties.h"

namespace {

// What is each converter's own: its kind of run, and its options made from settings.
template <typename Converter>
struct Eigen;

template <>
struct Eigen<PCMDesktopConverter> {
  static constexpr RunSoort soort = codeerSoort("PCM", byteArrayType);
  static constexpr auto opties = maakPcmOpties;
};

template <>
struct Eigen<ADPCMDesktopConverter> {
  static constexpr RunSoort soort = codeerSoort("ADPCM", byteArrayType);
  static constexpr auto opties = maakAdpcmOpties;
};

constexpr RunSoort wavSoort{"/* Embedded output of $aantal WAV Files\t\t*/\n\n", "", "embedding",
                            byteArrayType};

}  // namespace

template <typename Converter>
ConverterMaker<Converter>::ConverterMaker()
    : FragmentMaker(Eigen<Converter>::soort),
      eigen(std::make_unique<Converter>(Eigen<Converter>::opties(KestrolinConfig(), wxString()))),
      converter(*eigen) {}

template <typename Converter>
ConverterMaker<Converter>::ConverterMaker(Converter& vanBuiten)
    : FragmentMaker(Eigen<Converter>::soort), converter(vanBuiten) {}

template <typename Converter>
void ConverterMaker<Converter>::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                                      std::size_t /*aantal*/) {
  converter.zetOpties(Eigen<Converter>::opties(instellingen, klasse));
}

template <typename Converter>
Gemaakt ConverterMaker<Converter>::maak(wxFileName const& wav, bool metHeader,
                                        wxOutputStream& uit) {
  converter.codeerBestand(wav, metHeader, uit);
  return Gemaakt::heel;
}

template class ConverterMaker<PCMDesktopConverter>;
template class ConverterMaker<ADPCMDesktopConverter>;

WAVMaker::WAVMaker(wxString const& beeldPad) : FragmentMaker(wavSoort), opties{} {
  opties.beeld = beeldPad;
}

void WAVMaker::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                     std::size_t /*aantal*/) {
  wxString const beeld = opties.beeld;
  opties = maakInbedOpties(instellingen, klasse);
  opties.beeld = beeld;
}

Gemaakt WAVMaker::maak(wxFileName const& wav, bool /*metHeader*/, wxOutputStream& uit) {
  return schrijfInbedding(wav, opties, uit) ? Gemaakt::heel : Gemaakt::nietHeel;
}
