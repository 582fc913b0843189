#include "audio/codec/fragmentTekst.h"

#include <wx/filename.h>
#include <wx/intl.h>

#include "audio/codec/machine.h"
#include "audio/codec/rijSchrijver.h"
#include "audio/codec/tekstMoment.h"
#include "audio/codec/uitvoerTaal.h"
#include "numeriek/getalTekst.h"

namespace {

// A count in the text shows its low 32 bits, as a signed number.
wxString laagsteBits(unsigned long long aantal) {
  return wxString::Format("%d", static_cast<int>(aantal));
}

}  // namespace

wxString fragmentDuur(sf_count_t frames, int samplerate) {
  if (samplerate == 0) {
    return frames == 0 ? "nan" : "inf";
  }
  return tweeDecimalen(static_cast<double>(frames) / samplerate);
}

FragmentTekst::FragmentTekst(wxOutputStream& uit) : stroom(uit), tekstStroom(uit, wxEOL_UNIX) {}

void FragmentTekst::schrijf(wxString const& tekst) {
  if (stroom.IsOk()) {
    tekstStroom.WriteString(tekst);
  }
}

void FragmentTekst::schrijfHerkomst(wxString const& werkwoord, wxFileName const& wav) {
  schrijf("\n/* " + werkwoord + " on " + machine() + "\t\t*/\n");
  schrijf("/* Date : " + tekstMoment() + "\t\t*/\n");
  schrijf("/* WAV file : " + wav.GetFullName() + "\t\t*/\n");
  schrijf("/* WAV information :   \t\t*/\n");
}

void FragmentTekst::schrijfFrequentie(SF_INFO const& info) {
  schrijf(wxString::Format("/* Sampling frequency         : %d Hz\t\t*/\n", info.samplerate));
}

void FragmentTekst::schrijfSchaal(int dacBits) {
  schrijf(wxString::Format("/* Full Scale gain adapted to : %d bits\t\t*/\n\n", dacBits));
}

void FragmentTekst::schrijfKop(wxFileName const& wav, SF_INFO const& info) {
  schrijfHerkomst("Encoded", wav);
  schrijfFrequentie(info);
  schrijf("/* Original size              : " +
          laagsteBits(static_cast<unsigned long long>(info.frames)) + " frames\t\t*/\n");
  schrijf("/* Original duration          : " + fragmentDuur(info.frames, info.samplerate) +
          " s\t\t*/\n");
}

void FragmentTekst::schrijfFragment(wxFileName const& wav, SF_INFO const& info,
                                    FragmentDoel const& doel,
                                    std::initializer_list<FragmentTelling> tellingen,
                                    VelmoraArray<unsigned char> const& array, bool metHeader) {
  schrijfKop(wav, info);
  for (FragmentTelling const& telling : tellingen) {
    schrijfTelling(doel, telling);
  }
  if (metHeader) {
    schrijfHeaderUitleg(doel);
  }
  schrijfArrayKop(doel, byteArrayType);
  schrijfRijen(array);
  schrijfEinde(wav);
}

void FragmentTekst::schrijfTelling(FragmentDoel const& doel, FragmentTelling const& telling) {
  schrijf(vulIn(uitvoerTaalRij(doel.taal).telling,
                {doel.klasse, doel.naam + telling.achtervoegsel, {}, laagsteBits(telling.aantal)}));
}

void FragmentTekst::schrijfHeaderUitleg(FragmentDoel const& doel) {
  if (heeftArrays(uitvoerTaalRij(doel.taal))) {
    schrijf(
        _("\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling "
          "frequency\n    Bytes 6..End:Data  */\n\n"));
  }
}

void FragmentTekst::schrijfArrayKop(FragmentDoel const& doel, wxString const& elementType) {
  schrijf(vulIn(uitvoerTaalRij(doel.taal).arrayKop, {doel.klasse, doel.naam, elementType, {}}));
}

void FragmentTekst::schrijfRijen(VelmoraArray<unsigned char> const& array) {
  if (array.geefAantal() == 0) {
    return;
  }
  RijSchrijver rijen(stroom, hexadecimaleBytes, array.geefAantal());
  rijen.schrijfTekst("\t");
  rijen.schrijfBytes(array.begin(), array.geefAantal());
  rijen.schrijfTekst("\n");
  rijen.rondAf();
}

void FragmentTekst::schrijfEinde(wxFileName const& wav) {
  schrijf("\n");
  sluitArray(wav);
}

void FragmentTekst::sluitArray(wxFileName const& wav) {
  schrijf("};\n\n");
  schrijf("/* end of encoded WAV file         : " + wav.GetFullName() + "         */\n");
}
