#include "opdrachtregel/bestandBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <vector>

#include "opdrachtregel/systeem.h"

int schrijfBytes(int handvat, char const* begin, std::size_t bytes) {
  std::size_t geschreven = 0;
  while (geschreven < bytes) {
    std::ptrdiff_t const deel = schrijfDeel(handvat, begin + geschreven, bytes - geschreven);
    if (deel > 0) {
      geschreven += static_cast<std::size_t>(deel);
    } else if (deel == 0) {
      return ENOSPC;
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

int kopieerBytes(int van, int naar) {
  constexpr std::size_t blokBytes = 65536;
  std::vector<char> blok(blokBytes);
  for (;;) {
    std::ptrdiff_t const gelezen = leesDeel(van, blok.data(), blok.size());
    if (gelezen == 0) {
      return 0;
    }
    if (gelezen > 0) {
      int const fout = schrijfBytes(naar, blok.data(), static_cast<std::size_t>(gelezen));
      if (fout != 0) {
        return fout;
      }
    } else if (errno != EINTR) {
      return errno;
    }
  }
}

int leesBestand(std::string const& pad, std::string& inhoud) {
  Handvat const bestand(pad == "-" ? openKanaal(kanaalInvoer) : openLezend(pad));
  if (!bestand.isOpen()) {
    return errno;
  }
  constexpr std::size_t blokBytes = 65536;
  inhoud.clear();
  for (;;) {
    std::size_t const al = inhoud.size();
    inhoud.resize(al + blokBytes);
    std::ptrdiff_t const gelezen = leesDeel(bestand.geef(), inhoud.data() + al, blokBytes);
    inhoud.resize(al + static_cast<std::size_t>(std::max<std::ptrdiff_t>(gelezen, 0)));
    if (gelezen == 0) {
      return 0;
    }
    if (gelezen < 0 && errno != EINTR) {
      return errno;
    }
  }
}

Handvat::~Handvat() {
  static_cast<void>(sluit());
}

int Handvat::sluit() {
  int const open = waarde;
  waarde = -1;
  return open < 0 || sluitBestand(open) ? 0 : errno;
}
