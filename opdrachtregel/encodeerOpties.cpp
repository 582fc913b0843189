#include "opdrachtregel/encodeerOpties.h"

#include <wx/fileconf.h>
#include <wx/mstream.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>

#include "audio/uitvoer/dacBreedte.h"
#include "audio/uitvoer/encoderSoort.h"
#include "audio/uitvoer/instellingenBestand.h"
#include "externals/software/extern/speex/speexFormaten.h"
#include "numeriek/configGetal.h"
#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/waarden.h"

namespace {

// The place of a value is the number of what it names.
std::vector<std::string> const wijzen{"speex", "adpcm", "pcm", "wav"};
std::vector<std::string> const talen{"c", "c++"};
std::vector<std::string> const bitrates{"fixed", "variable", "average"};

constexpr char const* groepTekst = "Text";
constexpr char const* groepSpeex = "Speex";
constexpr char const* groepBestanden = "Files";

int plaatsVan(std::vector<std::string> const& namen, std::string const& naam) {
  return static_cast<int>(std::find(namen.begin(), namen.end(), naam) - namen.begin());
}

void voegTekstOptiesToe(CLI::App& app, EncodeerOpties& opties) {
  app.add_option("--encoder", opties.encoder,
                 "How samples are stored; wav embeds whole WAV files, as the window's Save As "
                 "(default: pcm)")
      ->type_name("speex|adpcm|pcm|wav")
      ->check(CLI::IsMember(wijzen))
      ->group(groepTekst);
  app.add_option("--language", opties.taal, "Language of the text (default: c)")
      ->type_name("c|c++")
      ->check(CLI::IsMember(talen))
      ->group(groepTekst);
  app.add_option("--class", opties.klasse, "Class of which the arrays are members; c++ needs it")
      ->type_name("NAME")
      ->group(groepTekst);
  app.add_option("--dac", opties.dacBits,
                 "Width of the DAC in bits, to which samples are scaled (default: 16)")
      ->type_name("8|10|12|16")
      ->check(decimaal())
      ->check(CLI::IsMember(std::vector<int>(dacBreedten.begin(), dacBreedten.end())))
      ->group(groepTekst);
  app.add_flag("--header,!--no-header", opties.metHeader,
               "Begin each array with its header (default: on)")
      ->group(groepTekst);
}

void voegSpeexOptiesToe(CLI::App& app, EncodeerOpties& opties) {
  CLI::Range const niveaus(0, speexHoogsteNiveau);
  app.add_option("--quality", opties.kwaliteit,
                 "Quality of the sound, from small to good (default: 8)")
      ->type_name("0..10")
      ->check(decimaal())
      ->check(niveaus)
      ->group(groepSpeex);
  app.add_option("--complexity", opties.complexiteit, "Effort of the encoder (default: 3)")
      ->type_name("0..10")
      ->check(decimaal())
      ->check(niveaus)
      ->group(groepSpeex);
  app.add_option("--bitrate", opties.bitrate, "Kind of bit rate (default: fixed)")
      ->type_name("fixed|variable|average")
      ->check(CLI::IsMember(bitrates))
      ->group(groepSpeex);
  app.add_option("--max-bitrate", opties.maxBitrate,
                 "Largest bit rate, where it is variable (default: 5000)")
      ->check(decimaal())
      ->check(CLI::Range(0, std::numeric_limits<int>::max()))
      ->type_name("N")
      ->group(groepSpeex);
  app.add_flag("--vad,!--no-vad", opties.vad, "Detect voice activity (default: on)")
      ->group(groepSpeex);
  app.add_flag("--denoise,!--no-denoise", opties.denoise,
               "Noise reduction: stands in the text, changes no sound (default: on)")
      ->group(groepSpeex);
  app.add_flag("--agc,!--no-agc", opties.agc,
               "Gain control: stands in the text, changes no sound (default: on)")
      ->group(groepSpeex);
}

void voegBestandOptiesToe(CLI::App& app, EncodeerOpties& opties) {
  app.add_option("-o,--output", opties.uitvoer, "The text; - is standard output")
      ->check(bestandsNaam())
      ->type_name("FILE")
      ->required()
      ->group(groepBestanden);
  app.add_flag("--append", opties.aanvullen,
               "Append the text to FILE, which must not have these arrays yet")
      ->group(groepBestanden);
  app.add_option("--declarations", opties.declaraties,
                 "Also write a header to include: the arrays and their sizes")
      ->check(bestandsNaam())
      ->type_name("FILE.h")
      ->group(groepBestanden);
  app.add_option("--source", opties.bron,
                 "Also write the source to compile, which takes in the text and defines the sizes; "
                 "needs --declarations")
      ->check(bestandsNaam())
      ->type_name("FILE.c")
      ->group(groepBestanden);
  app.add_flag("--flash", opties.flash,
               "Declare arrays with KESTROLIN_FLASH, which puts them into the flash of an AVR; "
               "needs --declarations")
      ->group(groepBestanden);
  app.add_flag("--states", opties.standen,
               "Also declare and define the state that each adpcm array is decoded from, so that "
               "it can be played alone; needs --source")
      ->group(groepBestanden);
  app.add_option("--depfile", opties.afhankelijkheden,
                 "Also write what the text depends on, for make and ninja")
      ->check(bestandsNaam())
      ->type_name("FILE.d")
      ->group(groepBestanden);
  app.add_option(
         "--settings", opties.instellingen,
         std::string("Take defaults from a settings file of the window, as ") + instellingenPlaats)
      ->check(bestandsNaam())
      ->type_name("FILE")
      ->group(groepBestanden);
  app.add_flag("-v,--verbose", opties.uitgebreid, "Tell what was made")->group(groepBestanden);
}

// What the window would start with.
bool leesInstellingenVan(std::string const& pad, EncodeerVraag& vraag) {
  std::string inhoud;
  int const fout = leesBestand(pad, inhoud);
  if (fout != 0) {
    meld("cannot read the settings in " + pad + ": " + redenEnRaad(fout));
    return false;
  }
  wxMemoryInputStream bestand(inhoud.data(), inhoud.size());
  // A user's file may have lines of any kind. The toolkit talks of some, and reads on, as it does
  // for the window.
  wxLogNull const stil;
  wxFileConfig config(bestand, wxConvAuto());
  config.SetExpandEnvVars(false);
  if (!config.HasGroup(instellingenPad)) {
    meld(pad + " holds no settings of Kestrolin; the window writes them to " + instellingenPlaats);
    return false;
  }
  config.SetPath(instellingenPad);
  leesInstellingen(config, vraag.instellingen);
  config.SetPath(vensterPad);
  vraag.klasse = config.Read(klasseNaamSleutel, wxString()).utf8_string();
  switch (leesGetal(config, encoderSoortSleutel, EncoderSpeex)) {
    case EncoderADPCM:
      vraag.soort = ArraySoort::adpcm;
      break;
    case EncoderPCM:
      vraag.soort = ArraySoort::pcm;
      break;
    default:
      vraag.soort = ArraySoort::speex;
  }
  return true;
}

void neemOptiesOver(CLI::App const& app, EncodeerOpties const& opties, EncodeerVraag& vraag) {
  KestrolinConfig& in = vraag.instellingen;
  auto const neem = [&app](char const* optie, auto& veld, auto const& waarde) {
    if (app.count(optie) > 0) {
      veld = waarde;
    }
  };
  neem("--encoder", vraag.soort, static_cast<ArraySoort>(plaatsVan(wijzen, opties.encoder)));
  neem("--language", in.speexOutputLanguage, plaatsVan(talen, opties.taal));
  neem("--class", vraag.klasse, opties.klasse);
  neem("--dac", in.dacNumberOfBits, dacIndexVan(opties.dacBits));
  neem("--header", in.IncludeHeader, opties.metHeader);
  neem("--quality", in.speexQuality, opties.kwaliteit);
  neem("--complexity", in.speexComplexity, opties.complexiteit);
  neem("--bitrate", in.speexBitRateChoice, plaatsVan(bitrates, opties.bitrate));
  neem("--max-bitrate", in.speexBitRate, opties.maxBitrate);
  neem("--vad", in.speexVAC, opties.vad);
  neem("--denoise", in.speexDenoise, opties.denoise);
  neem("--agc", in.speexAGC, opties.agc);
}

}  // namespace

void voegOptiesToe(CLI::App& app, EncodeerOpties& opties) {
  app.add_option("FILE.wav", opties.wavs, "Recordings: one array each")->required();
  voegTekstOptiesToe(app, opties);
  voegSpeexOptiesToe(app, opties);
  voegBestandOptiesToe(app, opties);
}

std::optional<EncodeerVraag> maakVraag(CLI::App const& app, EncodeerOpties const& opties) {
  EncodeerVraag vraag{ArraySoort::pcm, {}, {}};
  vraag.instellingen.speexOutputLanguage = UitvoerTaalC;
  if (!opties.instellingen.empty()) {
    vraag.instellingen = KestrolinConfig();
    if (!leesInstellingenVan(opties.instellingen, vraag)) {
      return std::nullopt;
    }
  }
  neemOptiesOver(app, opties, vraag);
  return vraag;
}
