#include "externals/software/extern/speex/speexDesktopEncoder.h"

#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/mstream.h>

#include <algorithm>

#include "audio/codec/audioConfig.h"
#include "audio/codec/fragmentTekst.h"
#include "audio/codec/logTekst.h"
#include "audio/codec/rijSchrijver.h"
#include "audio/codec/sndBestand.h"
#include "externals/software/extern/speex/frameTekst.h"
#include "numeriek/byteGereedschap.h"
#include "numeriek/percentage.h"

namespace {

// The name of a value, or nothing for one that has no name.
wxString naamVan(std::vector<wxString> const& namen, std::size_t waarde) {
  return waarde < namen.size() ? namen[waarde] : wxString();
}

// Divides by 2 to the power `bits` toward minus infinity, so that -1 stays -1. The mask keeps a
// shift that no DAC asks for defined.
float schaal(short sample, unsigned long long bits) {
  constexpr unsigned long long masker = 63;
  auto const breed = static_cast<unsigned long long>(static_cast<long long>(sample));
  return static_cast<short>(static_cast<unsigned short>(breed >> (bits & masker)));
}

void schaalAlle(std::vector<short> const& samples, std::vector<float>& geschaald,
                unsigned long long bits) {
  if (bits < sampleBits) {
    // The same for the shifts of a DAC, in a form that processors do many at a time.
    std::transform(samples.begin(), samples.end(), geschaald.begin(),
                   [k = static_cast<int>(bits)](short sample) {
                     return static_cast<float>(static_cast<int>(sample) >> k);
                   });
  } else {
    std::transform(samples.begin(), samples.end(), geschaald.begin(),
                   [bits](short sample) { return schaal(sample, bits); });
  }
}

// Counted over sample frames, not bytes.
Percentage maakVerhouding(unsigned long long bytes, sf_count_t frames) {
  constexpr unsigned long long heel = 100;
  if (frames <= 0) {
    return {};
  }
  unsigned long long const ratio = bytes * heel / static_cast<unsigned long long>(frames);
  return {static_cast<double>(ratio)};
}

// The four bytes of a VelmoraSpeexHeader. The second field takes the samples of the WAV file in its
// low 16 bits, and not the number of Speex frames: the decoder and the firmware count on it.
wxString headerTekst(SF_INFO const& info) {
  auto const frequentie = static_cast<unsigned short>(info.samplerate);
  auto const frames = static_cast<unsigned short>(info.frames);
  return wxString::Format(
      "\t(signed char)0x%x,(signed char)0x%x,(signed char)0x%x,(signed char)0x%x,\n",
      LaagByte(frequentie), HoogByte(frequentie), LaagByte(frames), HoogByte(frames));
}

}  // namespace

SpeexDesktopEncoder::SpeexDesktopEncoder(SpeexEncodeConfig const& instellingen,
                                         SpeexEncoderOpties const& opties)
    : SpeexEncoder(instellingen),
      taal(opties.taal),
      klasseNaam(opties.klasseNaam),
      booleanNamen{"false", "true"},
      formaatNamen(speexBandNamen.begin(), speexBandNamen.end()),
      bitrateNamen{"Fixed Bitrate", "Variable Bitrate", "Averaged Bitrate"} {}

int SpeexDesktopEncoder::encode(wxFileName const& bestand, wxMemoryOutputStream& uitvoer,
                                bool metHeader, Percentage& verhouding) {
  wxOutputStream& stroom = uitvoer;
  return encode(bestand, stroom, metHeader, verhouding);
}

int SpeexDesktopEncoder::encode(wxFileName const& bestand, wxOutputStream& uitvoer, bool metHeader,
                                Percentage& verhouding) {
  SndBestand wav = SndBestand::lees(bestand);
  SF_INFO const info = wav.info();
  if (info.samplerate != geefSampFreq()) {
    meldFrequentie(bestand, info.samplerate);
    return pastNiet;
  }

  FragmentTekst tekst(uitvoer);
  tekst.schrijfKop(bestand, info);
  schrijfInstellingen(tekst);

  // The sizes stand before the array and are known only behind its last frame.
  Bytes frames;
  Omvang const omvang = encodeFrames(wav, frames);
  verhouding = maakVerhouding(omvang.totaal, info.frames);
  schrijfOmvang(tekst, omvang, verhouding);
  if (!heeftArrays(uitvoerTaalRij(taal))) {
    return zoekUitvoerTaal(taal) == nullptr ? onbekendeTaal : pastNiet;
  }

  tekst.schrijfArrayKop({taal, klasseNaam, bestand.GetName()}, arrayType);
  if (metHeader) {
    tekst.schrijf(
        // TRANSLATORS: without the letter "x" and without "{": the decoder of the text looks for
        // them.
        _("\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames (Lower + Higher "
          "Byte) */\n"));
    tekst.schrijf(headerTekst(info));
  }
  schrijfFrames(frames, omvang.frames, uitvoer);
  tekst.sluitArray(bestand);
  return gelukt;
}

void SpeexDesktopEncoder::meldFrequentie(wxFileName const& bestand, int frequentie) const {
  wxLogError(veiligFormaat(
      bestand.GetFullName() +
      wxString::Format(_(" has a different sampling frequency (%d)\nthan the encoder (%d)"),
                       frequentie, static_cast<int>(geefSampFreq()))));
}

void SpeexDesktopEncoder::schrijfInstellingen(FragmentTekst& tekst) const {
  tekst.schrijfSchaal(static_cast<int>(config.aantalBits - config.gainBits));
  tekst.schrijf("/* Speex information :    \t\t*/\n");
  tekst.schrijf(wxString::Format("/* Speex framesize                 : %d bytes\t\t*/\n",
                                 static_cast<int>(geefFrameSize(config.formaat))));
  tekst.schrijf("/* Speex Format                    : " +
                naamVan(formaatNamen, plaatsVan(config.formaat)) + " \t\t*/\n");
  tekst.schrijf("/* Speex Bitrate                   : " +
                naamVan(bitrateNamen, static_cast<std::size_t>(config.bitrateType)) + " \t\t*/\n");
  tekst.schrijf(wxString::Format("/* Speex Max Bitrate               : %u bytes \t\t*/\n",
                                 config.maxBitrate));
  tekst.schrijf("/* Speex AGC                       : " + naamVan(booleanNamen, config.agc) +
                " \t\t*/\n");
  tekst.schrijf("/* Speex Denoise                   : " + naamVan(booleanNamen, config.denoise) +
                " \t\t*/\n");
  tekst.schrijf("/* Speex Voice Activated Detection : " + naamVan(booleanNamen, config.vad) +
                " \t\t*/\n");
  tekst.schrijf(wxString::Format("/* Speex Quality                   : %d  \t\t*/\n",
                                 static_cast<int>(config.kwaliteit)));
  tekst.schrijf(wxString::Format("/* Speex Complexity                : %d  \t\t*/\n\n",
                                 static_cast<int>(config.complexiteit)));
}

void SpeexDesktopEncoder::schrijfOmvang(FragmentTekst& tekst, Omvang const& omvang,
                                        Percentage const& verhouding) {
  tekst.schrijf(wxString::Format("/* Encoded array size              : %d bytes\t\t*/\n",
                                 static_cast<int>(omvang.totaal)));
  tekst.schrijf(wxString::Format("/* Encoded size/Original size      : %d %%\t\t*/\n",
                                 static_cast<int>(verhouding.geefWaarde())));
  tekst.schrijf(wxString::Format("/* Max bytes/encoded frame         : %d bytes\t\t*/\n\n",
                                 omvang.grootsteFrame));
}

SpeexDesktopEncoder::Omvang SpeexDesktopEncoder::encodeFrames(SndBestand& wav, Bytes& frames) {
  auto const n = static_cast<sf_count_t>(geefFrameSize(config.formaat));
  std::vector<short> vers(static_cast<std::size_t>(n));
  std::vector<short> samples(vers.size());
  std::vector<float> geschaald(samples.size());
  Omvang omvang;
  for (sf_count_t gelezen = 0; gelezen < wav.info().frames; gelezen += n) {
    // The end of the file fills the last block partly. The rest are the samples of the block
    // before, not silence, and they are encoded along. Not all formats leave them alone: some reads
    // clear what they do not fill, hence the second block.
    std::copy_n(vers.begin(), wav.leesItems(vers.data(), n), samples.begin());
    int const bytes = encodeFrame(samples, geschaald);
    omvang.grootsteFrame = std::max(omvang.grootsteFrame, bytes);
    omvang.totaal += static_cast<unsigned long long>(bytes) + 1;
    ++omvang.frames;
    frames.push_back(static_cast<unsigned char>(bytes));
    frames.insert(frames.end(), frameBuffer.begin(), frameBuffer.begin() + bytes);
  }
  wav.meldGebrek();
  return omvang;
}

void SpeexDesktopEncoder::schrijfFrames(Bytes const& frames, std::size_t aantalFrames,
                                        wxOutputStream& uit) {
  RijSchrijver rijen(uit, decimaleBytes, frames.size(), aantalFrames * meesteFrameTekens);
  unsigned long long nummer = 0;
  for (std::size_t plaats = 0; plaats < frames.size(); ++nummer) {
    std::size_t const aantal = frames[plaats];
    schrijfFrame(rijen, nummer, frames.data() + plaats + 1, aantal);
    plaats += 1 + aantal;
  }
  rijen.rondAf();
}

// Returns the number of bytes that the frame has in frameBuffer.
int SpeexDesktopEncoder::encodeFrame(std::vector<short> const& samples,
                                     std::vector<float>& geschaald) {
  schaalAlle(samples, geschaald, config.gainBits);
  speex_bits_reset(&bits);
  speex_encode(encoderState.get(), geschaald.data(), &bits);
  return speex_bits_write(&bits, frameBuffer.data(), maxFrameBytes);
}
