#include "tests/externals/desktop/geluidProef.h"

#include <SDL.h>
#include <wx/evtloop.h>
#include <wx/timer.h>

#include <algorithm>
#include <filesystem>

#include "externals/desktop/geluidSpeler.h"

namespace {

// Where the two part, or the end of the shorter one.
std::ptrdiff_t eersteVerschil(Bytes const& een, Bytes const& ander) {
  return std::mismatch(een.begin(), een.end(), ander.begin(), ander.end()).first - een.begin();
}

unsigned char stilteVan(WavSoort const& soort) {
  return soort.bits == 8 ? 0x80 : 0;
}

// True when all from there on is silence.
bool isStil(Bytes const& gehoord, std::size_t vanaf, WavSoort const& soort) {
  return std::all_of(gehoord.begin() + static_cast<std::ptrdiff_t>(vanaf), gehoord.end(),
                     [stilte = stilteVan(soort)](unsigned char byte) { return byte == stilte; });
}

ToestelVorm& laatste() {
  static ToestelVorm vorm{};
  return vorm;
}

}  // namespace

// The driver writes bytes of any form as they are: the form that the player asked for shows only
// here.
extern "C" SDL_AudioDeviceID opgenomenToestel(char const* naam, int opname,
                                              SDL_AudioSpec const* wens, SDL_AudioSpec* gekregen,
                                              int vrijheid) asm("__wrap_SDL_OpenAudioDevice");
extern "C" SDL_AudioDeviceID echtToestel(char const* naam, int opname, SDL_AudioSpec const* wens,
                                         SDL_AudioSpec* gekregen,
                                         int vrijheid) asm("__real_SDL_OpenAudioDevice");

SDL_AudioDeviceID opgenomenToestel(char const* naam, int opname, SDL_AudioSpec const* wens,
                                   SDL_AudioSpec* gekregen, int vrijheid) {
  laatste() = {wens->freq,
               wens->channels,
               SDL_AUDIO_BITSIZE(wens->format),
               SDL_AUDIO_ISSIGNED(wens->format) != 0,
               SDL_AUDIO_ISBIGENDIAN(wens->format) == 0,
               vrijheid == 0};
  return echtToestel(naam, opname, wens, gekregen, vrijheid);
}

ToestelVorm laatsteToestel() {
  return laatste();
}

void GeluidProef::startSpeler() {
  start();
  plaatsGeluidSpeler();
}

void GeluidProef::naarBestand(std::string const& naam, int pauze) {
  // The old values first: each puts back what it found.
  bestand.reset();
  tempo.reset();
  bestand.emplace("SDL_DISKAUDIOFILE", map.pad(naam));
  tempo.emplace("SDL_DISKAUDIODELAY", std::to_string(pauze));
}

Bytes GeluidProef::gehoord(std::string const& naam, WavSoort const& soort) const {
  Bytes const alles = leesBytes(map.pad(naam));
  return {std::find_if(alles.begin(), alles.end(),
                       [stilte = stilteVan(soort)](unsigned char byte) { return byte != stilte; }),
          alles.end()};
}

bool GeluidProef::isOpen(std::string const& naam) const {
  std::filesystem::directory_iterator const open("/proc/self/fd");
  return std::any_of(begin(open), end(open), [pad = map.pad(naam)](auto const& een) {
    std::error_code fout;
    return std::filesystem::equivalent(een.path(), pad, fout) && !fout;
  });
}

std::unique_ptr<wxSound> GeluidProef::maakGeluid(WavSoort const& soort,
                                                 Bytes const& samples) const {
  std::string const pad = map.pad("geluid.wav");
  maakBestand(pad, wavBytes(soort, std::string(samples.begin(), samples.end())));
  auto geluid = std::make_unique<wxSound>(wxString::FromUTF8(pad));
  EXPECT_TRUE(geluid->IsOk());
  return geluid;
}

void GeluidProef::draaiTot(std::function<bool()> const& genoeg) {
  constexpr int periode = 10;      // ms
  constexpr int geduld = 180'000;  // ms
  wxGUIEventLoop lus;
  wxTimer kijker;
  kijker.Bind(wxEVT_TIMER, [&lus, &genoeg](wxTimerEvent&) {
    if (genoeg()) {
      lus.Exit();
    }
  });
  wxTimer einde;
  einde.Bind(wxEVT_TIMER, [&lus](wxTimerEvent&) {
    ADD_FAILURE() << "what was waited for did not come";
    lus.Exit();
  });
  kijker.Start(periode);
  einde.StartOnce(geduld);
  lus.Run();
}

Bytes proefGeluid(std::size_t bytes) {
  constexpr unsigned int hoogste = 8;
  std::vector<std::int16_t> const bron = proefSamples(bytes);
  Bytes samples(bytes);
  std::transform(bron.begin(), bron.end(), samples.begin(), [](std::int16_t sample) {
    return static_cast<unsigned char>(static_cast<std::uint16_t>(sample) >> hoogste);
  });
  samples.front() = 0x5B;
  samples.back() = 0x5A;
  return samples;
}

void verwachtGeheel(Bytes const& gehoord, Bytes const& samples, WavSoort const& soort) {
  ASSERT_EQ(static_cast<std::size_t>(eersteVerschil(samples, gehoord)), samples.size())
      << "of " << gehoord.size() << " bytes heard";
  EXPECT_TRUE(isStil(gehoord, samples.size(), soort));
  // A tenth of a second.
  std::size_t const bytesPerSeconde = static_cast<std::size_t>(soort.rate) *
                                      static_cast<std::size_t>(soort.kanalen * soort.bits / 8);
  EXPECT_GE(gehoord.size(), samples.size() + bytesPerSeconde / 10);
}

void verwachtAfgebroken(Bytes const& gehoord, Bytes const& samples, WavSoort const& soort) {
  ASSERT_LT(gehoord.size(), samples.size());
  EXPECT_TRUE(isStil(gehoord, static_cast<std::size_t>(eersteVerschil(gehoord, samples)), soort));
}
