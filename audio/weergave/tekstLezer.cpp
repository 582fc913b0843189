#include "audio/weergave/tekstLezer.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "audio/codec/audioConfig.h"
#include "audio/weergave/arrayElementen.h"
#include "audio/weergave/arrayKeuring.h"
#include "audio/weergave/arrayKop.h"
#include "audio/weergave/tekstCommentaar.h"
#include "audio/weergave/tekstWoorden.h"

namespace {

// A part of the text for a message, which is one short line of ASCII.
std::string citaat(std::string_view deel) {
  constexpr std::size_t meest = 40;
  std::string tekst(deel.substr(0, meest));
  std::replace_if(
      tekst.begin(), tekst.end(), [](char teken) { return teken < ' ' || teken > '~'; }, '?');
  return '"' + tekst + (deel.size() > meest ? "...\"" : "\"");
}

// Why comments do not tell enough of an array; empty where they do.
std::string gebrekVan(ArrayKop const& kop, FragmentCommentaar const& gegevens) {
  constexpr std::uint32_t hoogsteFrequentie = 65535;
  constexpr std::uint32_t hoogsteBreedte = sampleBits;
  std::string const begin = "no comment before the array " + kop.naam + " tells its ";
  std::string const eind = ": take the text as Kestrolin made it";
  bool const isSpeex = gegevens.soort.value_or(ArraySoort::speex) == ArraySoort::speex;
  if (isSpeex != kop.isSigned) {
    return begin + "encoder" + eind;
  }
  if (gegevens.frequentie == 0U) {
    return "the array " + kop.naam +
           " was made of a WAV file that could not be read: encode it again";
  }
  if (gegevens.frequentie.value_or(hoogsteFrequentie + 1) > hoogsteFrequentie) {
    return begin + "sampling frequency" + eind;
  }
  if (!gegevens.samples) {
    return begin + "number of samples" + eind;
  }
  if (gegevens.dacBits && (gegevens.dacBits == 0U || gegevens.dacBits > hoogsteBreedte)) {
    return begin + "width of the DAC" + eind;
  }
  return {};
}

class Ontleding {
 public:
  explicit Ontleding(std::string_view tekst) : woorden(tekst) {}

  GelezenTekst voerUit() &&;

 private:
  // What the comments told since the first line of a fragment.
  struct Fragment {
    std::size_t regel;
    FragmentCommentaar commentaar;
  };

  bool gaatDoor() const { return uit.klachten.size() < maxKlachten; }
  void klaag(std::size_t regel, std::string reden) {
    uit.klachten.push_back({regel, std::move(reden)});
  }
  void neemCommentaar(Woord const& commentaar);
  void sluitFragment();
  void neemLijst(Woord const& accolade);
  void neemArray(TekstArray array, bool isSigned);
  void klaagOverElement(Woord const& woord, std::string const& naam);
  void slaOver(Woord const& woord);

  TekstWoorden woorden;
  ArrayKopLezer koppen;
  std::optional<Fragment> fragment;
  std::size_t run = 0;
  GelezenTekst uit;
};

GelezenTekst Ontleding::voerUit() && {
  for (Woord woord = woorden.volgende(); gaatDoor(); woord = woorden.volgende()) {
    if (woord.soort == WoordSoort::einde) {
      sluitFragment();
      break;
    }
    if (woord.soort == WoordSoort::openCommentaar) {
      klaag(woorden.regelVan(woord), "this comment has no end: the text is cut off");
      break;
    }
    if (woord.soort == WoordSoort::commentaar) {
      neemCommentaar(woord);
    } else if (woord.is("{")) {
      neemLijst(woord);
    } else if (woord.is(";") || woord.is("}")) {
      koppen.begin();
    } else {
      koppen.neem(woord);
    }
  }
  return std::move(uit);
}

void Ontleding::neemCommentaar(Woord const& commentaar) {
  CommentaarSoort const soort = soortVan(commentaar.tekst);
  if (soort != CommentaarSoort::anders) {
    sluitFragment();
  }
  if (soort == CommentaarSoort::run) {
    ++run;
  } else if (soort == CommentaarSoort::fragment) {
    fragment = Fragment{woorden.regelVan(commentaar), {}};
  }
  if (fragment) {
    fragment->commentaar.neem(commentaar.tekst);
  }
}

// Where a fragment of which no array was found ends.
void Ontleding::sluitFragment() {
  if (fragment) {
    klaag(fragment->regel, "the array of this fragment is missing: make the text again");
    fragment.reset();
  }
}

void Ontleding::neemLijst(Woord const& accolade) {
  if (!fragment && !koppen.isLijst()) {
    // A block of the user's own.
    return;
  }
  std::size_t const regel = woorden.regelVan(accolade);
  std::optional<ArrayKop> const kop = koppen.geef();
  std::optional<Fragment> const eigen = std::exchange(fragment, std::nullopt);
  if (!eigen) {
    klaag(regel, "no comments of Kestrolin tell what this array holds: keep them before it");
  } else if (!kop) {
    klaag(regel, "the name of this array is no identifier: rename its WAV file, encode it again");
  } else if (std::string const gebrek = gebrekVan(*kop, eigen->commentaar); !gebrek.empty()) {
    klaag(regel, gebrek);
  } else {
    FragmentCommentaar const& gegevens = eigen->commentaar;
    neemArray({kop->naam,
               kop->klasse,
               std::string(gegevens.wavBestand),
               gegevens.soort.value_or(ArraySoort::speex),
               *gegevens.frequentie,
               *gegevens.samples,
               gegevens.dacBits.value_or(0),
               false,
               run,
               regel,
               {}},
              kop->isSigned);
    return;
  }
  slaOver(accolade);
}

// Reads the array from behind its brace.
void Ontleding::neemArray(TekstArray array, bool isSigned) {
  if (std::optional<Woord> const fout = ElementLezer(woorden, isSigned).lees(array.bytes)) {
    klaagOverElement(*fout, array.naam);
    slaOver(*fout);
  } else if (keurArray(array)) {
    uit.arrays.push_back(std::move(array));
  } else {
    klaag(array.regel, "the " + std::to_string(array.bytes.size()) + " bytes of the array " +
                           array.naam + " are not the " + std::to_string(array.aantalSamples) +
                           " samples of " + naamVan(array.soort) + " at " +
                           std::to_string(array.frequentie) +
                           " Hz that its comments tell: encode it again");
  }
}

void Ontleding::klaagOverElement(Woord const& woord, std::string const& naam) {
  klaag(woorden.regelVan(woord),
        breektAf(woord) ? "the array " + naam + " is cut off here: encode it again"
                        : citaat(woord.tekst) + " is out of place in the array " + naam +
                              ", or no number that its elements hold: encode it again");
}

// Goes to the end of an array that cannot be read.
void Ontleding::slaOver(Woord const& woord) {
  Woord const einde = ElementLezer(woorden, false).slaOver(woord);
  if (einde.soort == WoordSoort::commentaar) {
    neemCommentaar(einde);
  }
}

}  // namespace

GelezenTekst ontleedTekst(std::string_view tekst) {
  if (tekst.find('\0') != std::string_view::npos) {
    return {{}, {{0, "this is no text: give a file that Kestrolin wrote"}}};
  }
  GelezenTekst gelezen = Ontleding(tekst).voerUit();
  if (gelezen.arrays.empty() && gelezen.klachten.empty()) {
    gelezen.klachten.push_back({0, "no array of Kestrolin stands in this text"});
  }
  return gelezen;
}

char const* naamVan(ArraySoort soort) {
  switch (soort) {
    case ArraySoort::speex:
      return "Speex";
    case ArraySoort::adpcm:
      return "ADPCM";
    case ArraySoort::pcm:
      return "PCM";
    case ArraySoort::wav:
      break;
  }
  return "WAV";
}
