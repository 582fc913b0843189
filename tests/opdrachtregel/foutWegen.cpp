#include "tests/opdrachtregel/foutWegen.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/uitvoer/verwachteRun.h"
#include "tests/steun/bytes.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

// Longer than what is written at once.
std::string const lang = std::string(70000, ' ') + "\n";

Bestanden const oudeUitvoer{{"uit.c", "old text\n" + lang},
                            {"kop/uit.h", "old header\n"},
                            {"uit_bron.c", "old source\n"},
                            {"uit.d", "old rule\n"}};

std::vector<std::string> const metAlles{
    "encode",         "./in/bel.wav", "./in/zoem.wav",    "-o",           "./uit.c",
    "--declarations", "./kop/uit.h",  "--source",         "./uit_bron.c", "--depfile",
    "./uit.d",        "--settings",   "./in/instellingen"};

std::vector<std::string> encodeer(std::string const& encoder) {
  return {"encode", "--encoder", encoder, "./in/zoem.wav", "./in/bel.wav", "-o", "./uit.c"};
}

}  // namespace

std::vector<FoutWeg> const foutWegen = {
    {"Pcm", encodeer("pcm")},
    {"Adpcm", encodeer("adpcm")},
    {"Speex", encodeer("speex")},
    {"Wav", encodeer("wav")},
    {"AllNew", metAlles, {{"kop/", ""}}},
    {"AllReplaced", metAlles, oudeUitvoer},
    {"SomeReplaced", metAlles, {{"kop/", ""}, {"uit_bron.c", "old source\n"}}},
    // What the source tells of states is written behind the run.
    {"States",
     {"encode", "--encoder", "adpcm", "--flash", "--states", "./in/zoem.wav", "./in/bel.wav", "-o",
      "./uit.c", "--declarations", "./kop/uit.h", "--source", "./uit_bron.c"},
     oudeUitvoer},
    {"Append",
     {"encode", "./in/bel.wav", "-o", "./uit.c", "--append", "--depfile", "./uit.d"},
     oudeUitvoer},
    {"StandardOutput", {"encode", "./in/bel.wav", "./in/zoem.wav", "-o", "-"}},
    {"Decode", {"decode", "./in/pcm.c", "./in/adpcm.c", "--to", "./nieuw/map"}},
    {"DecodeOver",
     {"decode", "./in/pcm.c", "./in/adpcm.c", "--to", "./wavs"},
     {{"wavs/bel.wav", "old"}, {"wavs/piep.wav", "old" + lang}, {"wavs/other.wav", "kept"}}},
    {"List", {"list", "./in/pcm.c", "./in/adpcm.c"}},
};

void PrintTo(FoutWeg const& weg, std::ostream* uit) {
  *uit << weg.naam;
}

void maakVoor(FoutWeg const& weg, std::string const& map) {
  fs::remove_all(map);
  fs::create_directories(map + "/in");
  fs::create_directories(map + "/tmp");
  maakWav(map + "/in/bel.wav", proefSamples(2500));
  schrijfSnd(map + "/in/zoem.wav", golf(700), {}, wavAdpcm);
  maakBestand(map + "/in/instellingen", "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n");
  maakBestand(map + "/in/pcm.c", verwachteRun(Wijze::pcm, {}, {{"bel", golf(4000)}, {"tik", {1}}}));
  maakBestand(map + "/in/adpcm.c", verwachteRun(Wijze::adpcm, {}, {{"piep", golf(300)}}));
  for (auto const& [naam, inhoud] : weg.voor) {
    fs::path const pad = fs::path(map) / naam;
    fs::create_directories(pad.parent_path());
    if (pad.has_filename()) {
      maakBestand(pad.string(), inhoud);
    }
  }
}

Bestanden leesBestanden(std::string const& map) {
  Bestanden alle;
  for (fs::directory_entry const& deel : fs::recursive_directory_iterator(map)) {
    std::string const naam = deel.path().lexically_relative(map).string();
    if (deel.is_directory()) {
      alle[naam + "/"] = "";
    } else {
      alle[naam] = leesTekst(deel.path().string());
    }
  }
  return alle;
}
