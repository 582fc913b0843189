// Throws any text at the reader of generated text. Whatever the text holds, the reading ends, the
// arrays that it gives are decoded, and its complaints can be shown.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "audio/weergave/doelDecoder.h"
#include "audio/weergave/tekstLezer.h"
#include "tests/steun/fuzzDoel.h"

namespace {

void eis(bool voorwaarde, char const* wat) {
  if (!voorwaarde) {
    std::cerr << "lezerFuzz: " << wat << '\n';
    std::abort();
  }
}

bool isRegel(std::string_view tekst) {
  for (char const teken : tekst) {
    if (static_cast<unsigned char>(teken) < ' ' || teken == '\x7F') {
      return false;
    }
  }
  return !tekst.empty();
}

void keurArray(TekstArray const& array, DoelDecoder& decoder) {
  eis(isRegel(array.naam), "the name of an array cannot be shown");
  eis(array.naam.find('/') == std::string::npos, "the name of an array leads elsewhere");
  eis(array.dacBits <= 16, "a DAC that is too wide");
  eis(array.frequentie > 0 && array.frequentie <= 65535, "a frequency that no reader knows");
  DoelGeluid const geluid = decoder.decodeer(
      array.soort, array.bytes,
      array.metHeader ? std::nullopt : std::optional(static_cast<std::uint16_t>(array.frequentie)));
  eis(geluid.status == KESTROLIN_OK, "a reader for firmware refuses an array");
  eis(geluid.rate == array.frequentie, "a reader for firmware has another frequency");
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t aantal) {
  auto const* const tekens = static_cast<char const*>(static_cast<void const*>(bytes));
  GelezenTekst const gelezen = ontleedTekst({tekens, aantal});
  eis(!gelezen.arrays.empty() || !gelezen.klachten.empty(), "nothing is said");
  eis(gelezen.klachten.size() <= maxKlachten + 1, "too much is said");
  for (TekstKlacht const& klacht : gelezen.klachten) {
    eis(isRegel(klacht.reden), "a complaint is no line");
    eis(klacht.regel <= aantal + 1, "a complaint has a line behind the text");
  }
  std::size_t totaal = 0;
  DoelDecoder decoder;
  for (TekstArray const& array : gelezen.arrays) {
    keurArray(array, decoder);
    totaal += array.bytes.size();
  }
  eis(totaal <= aantal, "more bytes than the text has");
  return 0;
}
