// Uses another program as its user does, by the messages that the system sends for keys and clicks.
// Reads one command a line from standard input, and answers each with one line of JSON:
//
//   start PROGRAM        starts the program; its process
//   einde                the exit status, or null while the program runs
//   vensters             what of the program is on the screen, each window with those in it
//   tekst WINDOW         the whole text
//   typ WINDOW TEXT      replaces the text
//   klik WINDOW          presses the button
//   kies WINDOW ROW      chooses a row of a list, counted from 0
//   rijen WINDOW         the rows of a list
//   menu WINDOW ID       chooses an entry of the window's menu
//   sluit WINDOW         presses the close box
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// Far beyond what a busy machine needs: only a program that hangs takes longer to answer.
constexpr UINT geduld = 600'000;  // ms

std::wstring breed(std::string const& tekst) {
  int const bytes = static_cast<int>(tekst.size());
  std::wstring uit(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, tekst.data(), bytes, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, tekst.data(), bytes, uit.data(), static_cast<int>(uit.size()));
  return uit;
}

std::string smal(std::wstring const& tekst) {
  int const tekens = static_cast<int>(tekst.size());
  std::string uit(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, tekst.data(), tekens,
                                                               nullptr, 0, nullptr, nullptr)),
                  '\0');
  WideCharToMultiByte(CP_UTF8, 0, tekst.data(), tekens, uit.data(), static_cast<int>(uit.size()),
                      nullptr, nullptr);
  return uit;
}

std::string json(std::wstring const& tekst) {
  std::string uit = "\"";
  for (char const teken : smal(tekst)) {
    if (teken == '"' || teken == '\\') {
      uit += '\\';
      uit += teken;
    } else if (static_cast<unsigned char>(teken) < ' ') {
      std::array<char, 8> code{};
      static_cast<void>(
          std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(teken)));
      uit += code.data();
    } else {
      uit += teken;
    }
  }
  return uit + '"';
}

std::string json(std::vector<std::string> const& waarden) {
  std::string uit;
  for (std::string const& waarde : waarden) {
    uit += (uit.empty() ? "" : ", ") + waarde;
  }
  return "[" + uit + "]";
}

LRESULT stuur(HWND venster, UINT bericht, WPARAM w, LPARAM l) {
  DWORD_PTR antwoord = 0;
  SetLastError(ERROR_SUCCESS);
  if (SendMessageTimeoutW(venster, bericht, w, l, SMTO_NORMAL, geduld, &antwoord) == 0 &&
      GetLastError() != ERROR_SUCCESS) {
    throw std::runtime_error("no answer from the window");
  }
  return static_cast<LRESULT>(antwoord);
}

template <typename T>
LPARAM alsLParam(T const* waarde) {
  return static_cast<LPARAM>(reinterpret_cast<std::intptr_t>(waarde));
}

// A text that comes by a message for its length and one for itself.
std::wstring haalTekst(HWND venster, UINT lengte, UINT tekst, WPARAM w, bool metMaat) {
  auto const tekens =
      static_cast<std::size_t>(std::max(stuur(venster, lengte, w, 0), static_cast<LRESULT>(0)));
  std::wstring uit(tekens + 1, L'\0');
  LRESULT const gekregen = stuur(venster, tekst, metMaat ? uit.size() : w, alsLParam(uit.data()));
  uit.resize(static_cast<std::size_t>(std::max(gekregen, static_cast<LRESULT>(0))));
  return uit;
}

std::wstring tekstVan(HWND venster) {
  return haalTekst(venster, WM_GETTEXTLENGTH, WM_GETTEXT, 0, true);
}

std::wstring soortVan(HWND venster) {
  std::wstring uit(256, L'\0');
  uit.resize(
      static_cast<std::size_t>(GetClassNameW(venster, uit.data(), static_cast<int>(uit.size()))));
  return uit;
}

std::string getal(std::intptr_t waarde) {
  return std::to_string(waarde);
}

std::string nummer(HWND venster) {
  return getal(reinterpret_cast<std::intptr_t>(venster));
}

std::string waarheid(bool waarde) {
  return waarde ? "true" : "false";
}

// The texts of long fields are asked for by themselves.
std::string beschrijf(HWND venster) {
  constexpr LRESULT lang = 1000;
  bool const isLang = stuur(venster, WM_GETTEXTLENGTH, 0, 0) > lang;
  std::wstring const soort = soortVan(venster);
  LONG_PTR const stijl = GetWindowLongPtrW(venster, GWL_STYLE);
  RECT vak{};
  GetWindowRect(venster, &vak);
  return "{\"hwnd\": " + nummer(venster) + ", \"ouder\": " + nummer(GetParent(venster)) +
         ", \"id\": " + getal(GetDlgCtrlID(venster)) + ", \"soort\": " + json(soort) +
         ", \"bruikbaar\": " + waarheid(IsWindowEnabled(venster) != 0) + ", \"aan\": " +
         waarheid(soort == L"Button" && stuur(venster, BM_GETCHECK, 0, 0) == BST_CHECKED) +
         ", \"stijl\": " + getal(stijl) + ", \"vak\": [" + getal(vak.left) + ", " + getal(vak.top) +
         ", " + getal(vak.right) + ", " + getal(vak.bottom) + "]" +
         ", \"tekst\": " + json(isLang ? std::wstring() : tekstVan(venster)) + "}";
}

class Programma {
 public:
  Programma() = default;
  ~Programma() {
    if (proces.hProcess != nullptr) {
      TerminateProcess(proces.hProcess, 1);
    }
  }
  Programma(Programma const&) = delete;
  Programma& operator=(Programma const&) = delete;
  Programma(Programma&&) = delete;
  Programma& operator=(Programma&&) = delete;

  std::string start(std::wstring const& pad);
  std::string einde() const;
  std::string vensters() const;

 private:
  PROCESS_INFORMATION proces{};
};

std::string Programma::start(std::wstring const& pad) {
  std::wstring regel = L"\"" + pad + L"\"";
  STARTUPINFOW hoe{};
  hoe.cb = sizeof hoe;
  if (CreateProcessW(pad.c_str(), regel.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &hoe,
                     &proces) == 0) {
    throw std::runtime_error("the program does not start");
  }
  return getal(proces.dwProcessId);
}

std::string Programma::einde() const {
  DWORD status = 0;
  bool const isKlaar = WaitForSingleObject(proces.hProcess, 0) == WAIT_OBJECT_0;
  GetExitCodeProcess(proces.hProcess, &status);
  return isKlaar ? getal(static_cast<std::intptr_t>(status)) : "null";
}

struct Zoek {
  DWORD proces;
  std::vector<std::string> gevonden;
};

BOOL CALLBACK voegToe(HWND venster, LPARAM gegevens) {
  auto& zoek = *reinterpret_cast<Zoek*>(gegevens);  // NOLINT(performance-no-int-to-ptr)
  DWORD proces = 0;
  GetWindowThreadProcessId(venster, &proces);
  if (proces != zoek.proces || IsWindowVisible(venster) == 0) {
    return TRUE;
  }
  try {
    zoek.gevonden.push_back(beschrijf(venster));
    if (GetAncestor(venster, GA_ROOT) == venster) {
      EnumChildWindows(venster, voegToe, gegevens);
    }
  } catch (std::runtime_error const&) {
    // It has just gone.
  }
  return TRUE;
}

std::string Programma::vensters() const {
  Zoek zoek{proces.dwProcessId, {}};
  EnumWindows(voegToe, alsLParam(&zoek));
  return json(zoek.gevonden);
}

bool isKeuze(HWND venster) {
  return soortVan(venster) == L"ComboBox";
}

// The list's owner hears of it as when the user does it with the arrow keys.
void kies(HWND lijst, WPARAM rij) {
  auto const meld = [lijst](WORD wat) {
    auto const id = static_cast<WORD>(GetDlgCtrlID(lijst));
    PostMessageW(GetParent(lijst), WM_COMMAND, MAKEWPARAM(id, wat), alsLParam(lijst));
  };
  if (isKeuze(lijst)) {
    stuur(lijst, CB_SETCURSEL, rij, 0);
    meld(CBN_SELENDOK);
    meld(CBN_SELCHANGE);
  } else {
    stuur(lijst, LB_SETCURSEL, rij, 0);
    meld(LBN_SELCHANGE);
  }
}

std::string rijen(HWND lijst) {
  bool const keuze = isKeuze(lijst);
  std::vector<std::string> uit;
  LRESULT const aantal = stuur(lijst, keuze ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
  for (LRESULT rij = 0; rij < aantal; ++rij) {
    uit.push_back(
        json(haalTekst(lijst, keuze ? CB_GETLBTEXTLEN : LB_GETTEXTLEN,
                       keuze ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(rij), false)));
  }
  return json(uit);
}

std::string voerUit(Programma& programma, std::string const& opdracht, std::istream& rest) {
  auto const volgende = [&rest] {
    std::string woorden;
    std::getline(rest >> std::ws, woorden);
    return breed(woorden);
  };
  if (opdracht == "start") {
    return programma.start(volgende());
  }
  if (opdracht == "einde") {
    return programma.einde();
  }
  if (opdracht == "vensters") {
    return programma.vensters();
  }
  std::intptr_t waarde = 0;
  rest >> waarde;
  auto* const venster = reinterpret_cast<HWND>(waarde);  // NOLINT(performance-no-int-to-ptr)
  if (opdracht == "tekst") {
    return json(tekstVan(venster));
  }
  if (opdracht == "rijen") {
    return rijen(venster);
  }
  if (opdracht == "typ") {
    stuur(venster, WM_SETTEXT, 0, alsLParam(volgende().c_str()));
  } else if (opdracht == "klik") {
    PostMessageW(venster, BM_CLICK, 0, 0);
  } else if (opdracht == "sluit") {
    PostMessageW(venster, WM_CLOSE, 0, 0);
  } else {
    WPARAM getal = 0;
    rest >> getal;
    if (opdracht == "kies") {
      kies(venster, getal);
    } else if (opdracht == "menu") {
      PostMessageW(venster, WM_COMMAND, MAKEWPARAM(getal, 0), 0);
    } else {
      throw std::runtime_error("unknown command " + opdracht);
    }
  }
  return "true";
}

}  // namespace

int main() {
  Programma programma;
  for (std::string regel; std::getline(std::cin, regel);) {
    std::istringstream rest(regel);
    std::string opdracht;
    rest >> opdracht;
    try {
      std::cout << voerUit(programma, opdracht, rest) << std::endl;
    } catch (std::runtime_error const& fout) {
      std::cout << "{\"fout\": " << json(breed(fout.what())) << "}" << std::endl;
    }
  }
}
