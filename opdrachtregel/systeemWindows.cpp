#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

#include "opdrachtregel/handvatWindows.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/terminalWindows.h"

namespace fs = std::filesystem;

namespace {

// As a number of the C library, which owns it then.
int alsNummer(Open handvat, int wijze) {
  if (!handvat) {
    return -1;
  }
  int const nummer = _open_osfhandle(reinterpret_cast<std::intptr_t>(handvat.get()), wijze);
  if (nummer >= 0) {
    static_cast<void>(handvat.release());
  }
  return nummer;
}

}  // namespace

char const* const instellingenPlaats = R"(%APPDATA%\Kestrolin.ini)";

void bereidKanalenVoor() {
  for (int const kanaal : {kanaalInvoer, kanaalUitvoer, kanaalFout}) {
    if (_get_osfhandle(kanaal) < 0) {
      _close(kanaal);
      // Nothing can be written to the second one, as it should be.
      static_cast<void>(_wopen(L"NUL", _O_BINARY | (kanaal == kanaalFout ? _O_WRONLY : _O_RDONLY)));
    }
    _setmode(kanaal, _O_BINARY);
  }
  leidTerminalsOm();
}

bool kanRegelVerversen() {
  return kanTerminalVegen(kanaalFout);
}

int openLezend(std::string const& pad) {
  return alsNummer(openHandvat(breed(pad), GENERIC_READ), _O_RDONLY | _O_BINARY);
}

int openSchrijvend(std::string const& pad) {
  return alsNummer(openHandvat(breed(pad), GENERIC_WRITE), _O_WRONLY | _O_BINARY);
}

int openKanaal(int kanaal) {
  return _dup(kanaal);
}

int openNieuw(std::string const& map, std::string& pad) {
  constexpr std::string_view tekens = "abcdefghijklmnopqrstuvwxyz0123456789";
  constexpr int langste = 6;
  static std::mt19937 toeval(static_cast<std::mt19937::result_type>(
      GetTickCount64() ^ (static_cast<std::uint64_t>(GetCurrentProcessId()) << 16U)));
  int nummer = -1;
  do {
    std::string naam = ".kestrolin-";
    std::generate_n(std::back_inserter(naam), langste,
                    [&] { return tekens[toeval() % tekens.size()]; });
    pad = (fs::u8path(map) / naam).u8string();
    nummer =
        alsNummer(openHandvat(breed(pad), GENERIC_READ | GENERIC_WRITE, CREATE_NEW), _O_BINARY);
  } while (nummer < 0 && errno == EEXIST);
  return nummer;
}

std::ptrdiff_t leesDeel(int handvat, char* doel, std::size_t bytes) {
  constexpr std::size_t meest = 1U << 30U;
  return _read(handvat, doel, static_cast<unsigned int>(std::min(bytes, meest)));
}

std::ptrdiff_t schrijfDeel(int handvat, char const* begin, std::size_t bytes) {
  // A terminal takes no more at once than some systems have of memory for it.
  constexpr std::size_t meest = 1U << 13U;
  std::size_t const deel = std::min(bytes, meest);
  return isTerminal(handvat) ? schrijfNaarTerminal(handvat, begin, deel)
                             : _write(handvat, begin, static_cast<unsigned int>(deel));
}

bool gaNaarBegin(int handvat) {
  return _lseeki64(handvat, 0, SEEK_SET) == 0;
}

bool legBestandVast(int handvat) {
  return isGelukt(FlushFileBuffers(handvatVan(handvat))) ||
         GetLastError() == ERROR_INVALID_FUNCTION || GetLastError() == ERROR_NOT_SUPPORTED;
}

bool sluitBestand(int handvat) {
  return _close(handvat) == 0;
}

Plaats watStaatOp(std::string const& pad) {
  Open const er = openHandvat(breed(pad), 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  if (!er) {
    return errno == ENOENT ? Plaats::leeg : Plaats::onbekend;
  }
  if (GetFileType(er.get()) != FILE_TYPE_DISK) {
    return Plaats::toestel;
  }
  BY_HANDLE_FILE_INFORMATION gegevens{};
  if (!isGelukt(GetFileInformationByHandle(er.get(), &gegevens))) {
    return Plaats::onbekend;
  }
  bool const isMap = (gegevens.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isMap ? Plaats::map : Plaats::bestand;
}

BestandStaat leesStaat(std::string const& pad) {
  WIN32_FILE_ATTRIBUTE_DATA gegevens{};
  GetFileAttributesExW(breed(pad).c_str(), GetFileExInfoStandard, &gegevens);
  constexpr unsigned int woordBits = 32;
  auto const samen = [](DWORD hoog, DWORD laag) {
    return (static_cast<std::uint64_t>(hoog) << woordBits) | laag;
  };
  FILETIME const& moment = gegevens.ftLastWriteTime;
  using Duur = fs::file_time_type::duration;
  return {samen(gegevens.nFileSizeHigh, gegevens.nFileSizeLow),
          fs::file_time_type(
              Duur(static_cast<Duur::rep>(samen(moment.dwHighDateTime, moment.dwLowDateTime))))};
}

bool magLezen(std::string const& pad) {
  return openHandvat(breed(pad), GENERIC_READ) != nullptr;
}

bool magSchrijven(std::string const& pad) {
  DWORD const aard = GetFileAttributesW(breed(pad).c_str());
  if (aard != INVALID_FILE_ATTRIBUTES && (aard & FILE_ATTRIBUTE_READONLY) != 0) {
    // Who administers the machine can open it all the same.
    errno = EACCES;
    return false;
  }
  return openHandvat(breed(pad), GENERIC_WRITE | DELETE) != nullptr;
}

bool neemRechtenOver(int /*handvat*/, std::string const& /*pad*/, bool /*isEr*/) {
  // A file has those of its folder.
  return true;
}

bool maakMap(std::string const& pad) {
  return isGelukt(CreateDirectoryW(breed(pad).c_str(), nullptr));
}

bool verwijderMap(std::string const& pad) {
  return isGelukt(RemoveDirectoryW(breed(pad).c_str()));
}

bool verwijderBestand(std::string const& pad) {
  return isGelukt(DeleteFileW(breed(pad).c_str()));
}

bool hernoemBestand(std::string const& pad, std::string const& doel) {
  // A scanner of viruses, an indexer or an editor may have the old file open for a moment.
  constexpr int pogingen = 50;
  constexpr DWORD pauze = 20;  // ms
  auto const probeer = [van = breed(pad), naar = breed(doel)] {
    return isGelukt(
        MoveFileExW(van.c_str(), naar.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  };
  bool isHernoemd = probeer();
  for (int i = 1; i < pogingen && !isHernoemd && errno == EACCES; ++i) {
    Sleep(pauze);
    isHernoemd = probeer();
  }
  return isHernoemd;
}

int bewaarOnder(std::string const& pad, std::string const& nieuw) {
  std::wstring const van = breed(pad);
  std::wstring const naar = breed(nieuw);
  DeleteFileW(naar.c_str());
  // Not each disk has links.
  bool const isBewaard = CreateHardLinkW(naar.c_str(), van.c_str(), nullptr) != 0 ||
                         isGelukt(CopyFileW(van.c_str(), naar.c_str(), FALSE));
  return isBewaard ? 0 : errno;
}

std::string tijdelijkeMap() {
  wchar_t const* const eigen = _wgetenv(L"TMPDIR");
  if (eigen != nullptr && *eigen != L'\0') {
    return fs::path(eigen).u8string();
  }
  std::array<wchar_t, MAX_PATH + 1> map{};
  DWORD const lengte = GetTempPathW(static_cast<DWORD>(map.size()), map.data());
  // It ends in a separator.
  return lengte == 0 ? "." : fs::path(std::wstring(map.data(), lengte - 1)).u8string();
}

bool isVol(int code) {
  return code == ENOSPC || code == EFBIG;
}
