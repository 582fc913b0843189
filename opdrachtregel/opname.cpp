#include "opdrachtregel/opname.h"

#include <algorithm>
#include <cerrno>

#include "audio/codec/sndBestand.h"
#include "audio/uitvoer/wavKeuring.h"
#include "opdrachtregel/melding.h"

namespace {

constexpr char const* remedie = "; convert it first, as in: sox IN.wav -r 16000 -b 16 -c 1 OUT.wav";

wxFileName volledig(std::string const& pad) {
  wxFileName bestand(wxString::FromUTF8(pad));
  bestand.Normalize(wxPATH_NORM_DOTS | wxPATH_NORM_ABSOLUTE);
  return bestand;
}

// What libsndfile calls one part of a format.
std::string naamVan(int formaat) {
  SF_FORMAT_INFO info{};
  info.format = formaat;
  bool const isBekend =
      sf_command(nullptr, SFC_GET_FORMAT_INFO, &info, static_cast<int>(sizeof info)) == 0;
  return isBekend && info.name != nullptr ? info.name : "of an unknown format";
}

std::string beschrijf(SF_INFO const& info) {
  return naamVan(info.format & SF_FORMAT_TYPEMASK) + ", " +
         naamVan(info.format & SF_FORMAT_SUBMASK) + ", " + std::to_string(info.samplerate) + " Hz";
}

// What stands in the way of using the file, empty where nothing does.
std::string bezwaar(Opname const& opname) {
  if (opname.gegeven.empty() || !opname.bestand.IsOk() || !opname.bestand.HasName()) {
    return "this names no file; give the path of a WAV file, in UTF-8";
  }
  if (wxFileName::DirExists(opname.bestand.GetFullPath())) {
    return "this is a folder; give the WAV files in it";
  }
  if (!magLezen(opname.bestand.GetFullPath().utf8_string())) {
    return "cannot be read: " + redenEnRaad(errno);
  }
  if (opname.info.samplerate == 0) {
    return std::string("is no WAV file") + remedie;
  }
  if (!isBruikbaar(opname.info)) {
    return "is " + beschrijf(opname.info) +
           ", not a WAV file with 16-bit PCM or IMA ADPCM samples at 8000, 16000 or 32000 Hz" +
           remedie;
  }
  return {};
}

void meldBezwaar(std::string const& pad, std::string const& reden) {
  meld(pad + ": " + reden);
}

}  // namespace

std::optional<std::vector<Opname>> leesOpnamen(std::vector<std::string> const& paden) {
  std::vector<Opname> opnamen;
  int const voor = aantalGemeld();
  for (std::string const& pad : paden) {
    Opname opname{pad, volledig(pad), {}, leesStaat(pad)};
    SndBestand const wav = SndBestand::lees(opname.bestand);
    opname.info = wav.info();
    std::string const reden = bezwaar(opname);
    if (reden.empty()) {
      wav.meldGebrek();
    } else {
      meldBezwaar(pad, reden);
    }
    opnamen.push_back(opname);
  }
  if (aantalGemeld() != voor) {
    return std::nullopt;
  }
  return opnamen;
}

bool isOngewijzigd(Opname const& opname) {
  BestandStaat const nu = leesStaat(opname.gegeven);
  bool const isGelijk = nu.bytes == opname.staat.bytes && nu.moment == opname.staat.moment;
  if (!isGelijk) {
    meldBezwaar(opname.gegeven, "changed while it was read; run this again when it is complete");
  }
  return isGelijk;
}
