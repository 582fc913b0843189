#include "opdrachtregel/terminalWindows.h"

#include <windows.h>

#include <atomic>
#include <cerrno>
#include <iostream>
#include <streambuf>
#include <string>

#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/handvatWindows.h"
#include "opdrachtregel/systeem.h"

namespace {

// How many of these bytes of UTF-8 are whole characters. All of them, where the last one cannot
// become one.
std::size_t heleTekens(char const* begin, std::size_t bytes) {
  constexpr std::size_t langste = 4;
  constexpr unsigned int hoogsteBit = 0x80;
  for (std::size_t terug = 1; terug < langste && terug < bytes; ++terug) {
    auto const byte = static_cast<unsigned char>(begin[bytes - terug]);
    // The ones that a character begins with are as many as its bytes.
    std::size_t lengte = 0;
    while (lengte <= langste && (byte & (hoogsteBit >> lengte)) != 0) {
      ++lengte;
    }
    if (lengte != 1) {
      return lengte > terug ? bytes - terug : bytes;
    }
  }
  return bytes;
}

// Collects what is said, up to a flush.
class TerminalBuffer : public std::streambuf {
 public:
  explicit TerminalBuffer(int eigenKanaal) : kanaal(eigenKanaal) {}

 protected:
  int_type overflow(int_type teken) override {
    if (!traits_type::eq_int_type(teken, traits_type::eof())) {
      tekst += traits_type::to_char_type(teken);
    }
    return traits_type::not_eof(teken);
  }
  std::streamsize xsputn(char const* begin, std::streamsize bytes) override {
    tekst.append(begin, static_cast<std::size_t>(bytes));
    return bytes;
  }
  int sync() override {
    int const fout = schrijfBytes(kanaal, tekst.data(), tekst.size());
    tekst.clear();
    return fout == 0 ? 0 : -1;
  }

 private:
  int kanaal;
  std::string tekst;
};

// Has a stream write to a terminal by such a buffer while it lives, where it goes to one.
class Omleiding {
 public:
  Omleiding(std::ostream& eigenStroom, int kanaal)
      : buffer(kanaal),
        stroom(eigenStroom),
        vorige(isTerminal(kanaal) ? stroom.rdbuf(&buffer) : stroom.rdbuf()) {}
  ~Omleiding() {
    stroom.flush();
    stroom.rdbuf(vorige);
    geefTerminalTerug();
  }
  Omleiding(Omleiding const&) = delete;
  Omleiding& operator=(Omleiding const&) = delete;
  Omleiding(Omleiding&&) = delete;
  Omleiding& operator=(Omleiding&&) = delete;

 private:
  TerminalBuffer buffer;
  std::ostream& stroom;
  std::streambuf* vorige;
};

// What a terminal obeyed before it was asked for more. A signal reads this in a thread of its own.
struct Eerder {
  std::atomic<HANDLE> terminal = nullptr;
  std::atomic<DWORD> wijze = 0;
};

Eerder& eerder() {
  static Eerder enige;
  return enige;
}

}  // namespace

void leidTerminalsOm() {
  static Omleiding const uit(std::cout, kanaalUitvoer);
  static Omleiding const fout(std::cerr, kanaalFout);
}

bool isTerminal(int kanaal) {
  DWORD wijze = 0;
  return GetConsoleMode(handvatVan(kanaal), &wijze) != 0;
}

std::ptrdiff_t schrijfNaarTerminal(int kanaal, char const* begin, std::size_t bytes) {
  std::size_t const deel = heleTekens(begin, bytes);
  auto const smal = static_cast<int>(deel);
  std::wstring tekst(deel, L'\0');
  tekst.resize(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, begin, smal, tekst.data(), smal)));
  DWORD geschreven = 0;
  if (WriteConsoleW(handvatVan(kanaal), tekst.data(), static_cast<DWORD>(tekst.size()), &geschreven,
                    nullptr) == 0) {
    errno = EIO;
    return -1;
  }
  return static_cast<std::ptrdiff_t>(deel);
}

bool kanTerminalVegen(int kanaal) {
  DWORD wijze = 0;
  void* const terminal = handvatVan(kanaal);
  if (GetConsoleMode(terminal, &wijze) == 0) {
    return false;
  }
  // Asked again, it obeys what was asked of it before.
  if (eerder().terminal == nullptr) {
    eerder().wijze = wijze;
    eerder().terminal = terminal;
  }
  return SetConsoleMode(terminal, wijze | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

void geefTerminalTerug() {
  if (eerder().terminal != nullptr) {
    SetConsoleMode(eerder().terminal, eerder().wijze);
  }
}
