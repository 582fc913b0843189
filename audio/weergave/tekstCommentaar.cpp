#include "audio/weergave/tekstCommentaar.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace {

bool begintMet(std::string_view tekst, std::string_view begin) {
  return tekst.substr(0, begin.size()) == begin;
}

bool eindigtOp(std::string_view tekst, std::string_view einde) {
  return tekst.size() >= einde.size() && tekst.substr(tekst.size() - einde.size()) == einde;
}

std::string_view zonderWit(std::string_view tekst) {
  constexpr std::string_view wit = " \t\r\n";
  tekst.remove_prefix(std::min(tekst.find_first_not_of(wit), tekst.size()));
  return tekst.substr(0, tekst.find_last_not_of(wit) + 1);
}

// The number that the text begins with. One that was printed as a signed number of 32 bits has
// these bits.
std::optional<std::uint32_t> getal(std::string_view tekst) {
  long long waarde = 0;
  auto const uitslag = std::from_chars(tekst.data(), tekst.data() + tekst.size(), waarde);
  if (uitslag.ec != std::errc() || waarde < std::numeric_limits<std::int32_t>::min() ||
      waarde > std::numeric_limits<std::uint32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(waarde);
}

// The name of the file, which may have blanks at its own ends.
std::string_view bestandsnaam(std::string_view regel) {
  constexpr std::string_view begin = "WAV file : ";
  constexpr std::string_view einde = "\t\t";
  regel.remove_prefix(std::min(regel.find(begin), regel.size()));
  regel.remove_prefix(std::min(begin.size(), regel.size()));
  if (eindigtOp(regel, einde)) {
    regel.remove_suffix(einde.size());
  }
  return regel;
}

constexpr std::string_view gecodeerd = "Encoded on ";
constexpr std::string_view ingebed = "Embedded on ";

}  // namespace

CommentaarSoort soortVan(std::string_view commentaar) {
  std::string_view const regel = zonderWit(commentaar);
  if (begintMet(regel, gecodeerd) || begintMet(regel, ingebed)) {
    return CommentaarSoort::fragment;
  }
  std::string_view const achterEncoder =
      regel.substr(std::min(regel.find_first_of(" \t"), regel.size()));
  return begintMet(regel, "Embedded output of ") || begintMet(achterEncoder, " encoding output of ")
             ? CommentaarSoort::run
             : CommentaarSoort::anders;
}

void FragmentCommentaar::neem(std::string_view commentaar) {
  std::string_view const regel = zonderWit(commentaar);
  if (begintMet(regel, "const unsigned int ")) {
    neemTelling(regel);
    return;
  }
  if (begintMet(regel, ingebed)) {
    soort = ArraySoort::wav;
    return;
  }
  std::size_t const punt = std::min(regel.find(':'), regel.size());
  std::string_view const sleutel = zonderWit(regel.substr(0, punt));
  std::string_view const waarde = zonderWit(regel.substr(std::min(punt + 1, regel.size())));
  if (sleutel == "WAV file") {
    wavBestand = bestandsnaam(commentaar);
  } else if (sleutel == "Sampling frequency") {
    frequentie = getal(waarde);
  } else if (sleutel == "Original size" || sleutel == "Size") {
    samples = getal(waarde);
  } else if (sleutel == "Full Scale gain adapted to") {
    dacBits = getal(waarde);
  } else if (sleutel == "Speex information") {
    soort = ArraySoort::speex;
  }
}

// The counts of an array that is printed byte by byte. They tell what is in it; the size among the
// comments tells what the file had when the text was written.
void FragmentCommentaar::neemTelling(std::string_view regel) {
  std::size_t const gelijk = regel.rfind('=');
  if (gelijk == std::string_view::npos) {
    return;
  }
  std::string_view const naam = regel.substr(0, gelijk);
  if (eindigtOp(naam, "_adpcmNumberOfEncSamples")) {
    soort = ArraySoort::adpcm;
  } else if (eindigtOp(naam, "_pcmNumberOfEncSamples")) {
    soort = ArraySoort::pcm;
    samples = getal(regel.substr(gelijk + 1));
  } else if (eindigtOp(naam, "_pcmNumberOfSamples")) {
    samples = getal(regel.substr(gelijk + 1));
  }
}
