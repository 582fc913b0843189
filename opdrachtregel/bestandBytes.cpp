#include "opdrachtregel/bestandBytes.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

int schrijfBytes(int handvat, char const* begin, std::size_t bytes) {
  std::size_t geschreven = 0;
  while (geschreven < bytes) {
    ssize_t const deel = write(handvat, begin + geschreven, bytes - geschreven);
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
    ssize_t const gelezen = read(van, blok.data(), blok.size());
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
  Handvat const bestand(pad == "-" ? dup(STDIN_FILENO) : open(pad.c_str(), O_RDONLY | O_CLOEXEC));
  if (!bestand.isOpen()) {
    return errno;
  }
  constexpr std::size_t blokBytes = 65536;
  inhoud.clear();
  for (;;) {
    std::size_t const al = inhoud.size();
    inhoud.resize(al + blokBytes);
    ssize_t const gelezen = read(bestand.geef(), inhoud.data() + al, blokBytes);
    inhoud.resize(al + static_cast<std::size_t>(std::max<ssize_t>(gelezen, 0)));
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
  // Linux has closed it, also where a signal came between.
  return open < 0 || close(open) == 0 || errno == EINTR ? 0 : errno;
}
