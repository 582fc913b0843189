#include "externals/software/extern/speex/frameTekst.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr std::size_t bytesPerRegel = 8;
// The longest text of a byte is "-128,".
constexpr std::size_t maxByteTekens = 5;

void voegByteToe(std::string& tekst, char byte) {
  std::array<char, maxByteTekens> cijfers{};
  // Formatted without the toolkit: a call to its formatter for each byte would cost more than all
  // the rest of the text.
  auto const einde = std::to_chars(cijfers.begin(), cijfers.end(),
                                   static_cast<int>(static_cast<signed char>(byte)));
  tekst.append(cijfers.begin(), einde.ptr);
  tekst += ',';
}

}  // namespace

wxString frameTekst(unsigned long long nummer, char const* bytes, std::size_t aantal) {
  std::string data;
  data.reserve(aantal * maxByteTekens + 2 * aantal / bytesPerRegel + 1);
  std::size_t plaats = 0;
  std::for_each(bytes, bytes + aantal, [&](char byte) {
    voegByteToe(data, byte);
    if (++plaats % bytesPerRegel == 0) {
      data += "\n\t";
    }
  });
  data += '\n';
  return wxString::Format("\t0x%x,  /* Encoded Frame [%d] Size */\n\t",
                          static_cast<unsigned int>(aantal), static_cast<int>(nummer)) +
         wxString::FromAscii(data.data(), data.size());
}
