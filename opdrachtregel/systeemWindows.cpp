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

#include "opdrachtregel/systeem.h"
#include "opdrachtregel/windowsTerminal.h"

namespace fs = std::filesystem;

namespace {

std::wstring breed(std::string const& tekst) {
  return fs::u8path(tekst).wstring();
}

// The errno of what the system called an error by this number.
int errnoVan(DWORD fout) {
  switch (fout) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_CURRENT_DIRECTORY:
    case ERROR_WRITE_PROTECT:
      return EACCES;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return EEXIST;
    case ERROR_DIRECTORY:
      return ENOTDIR;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ENOSPC;
    case ERROR_FILENAME_EXCED_RANGE:
      return ENAMETOOLONG;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return ENOMEM;
    case ERROR_TOO_MANY_OPEN_FILES:
      return EMFILE;
    default:
      return EIO;
  }
}

// Whether the call did what it was to do; where not, errno tells why.
bool isGelukt(BOOL uitslag) {
  if (uitslag == 0) {
    errno = errnoVan(GetLastError());
  }
  return uitslag != 0;
}

struct Sluiter {
  void operator()(void* handvat) const { CloseHandle(handvat); }
};
using Open = std::unique_ptr<void, Sluiter>;

// Null, with errno, where that fails. Others may do with the file what they like meanwhile.
Open open(std::wstring const& pad, DWORD toegang, DWORD wijze = OPEN_EXISTING, DWORD soort = 0) {
  void* const handvat =
      CreateFileW(pad.c_str(), toegang, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, wijze, soort, nullptr);
  if (!isGelukt(handvat == INVALID_HANDLE_VALUE ? FALSE : TRUE)) {
    return nullptr;
  }
  return Open(handvat);
}

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

// The path that the system itself would give, without links. Empty where nothing is there.
std::wstring eindPad(std::wstring const& pad) {
  Open const er = open(pad, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  std::wstring uit(er ? GetFinalPathNameByHandleW(er.get(), nullptr, 0, 0) : 0, L'\0');
  if (!uit.empty()) {
    uit.resize(GetFinalPathNameByHandleW(er.get(), uit.data(), static_cast<DWORD>(uit.size()), 0));
  }
  return uit;
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
  return alsNummer(open(breed(pad), GENERIC_READ), _O_RDONLY | _O_BINARY);
}

int openSchrijvend(std::string const& pad) {
  return alsNummer(open(breed(pad), GENERIC_WRITE), _O_WRONLY | _O_BINARY);
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
    nummer = alsNummer(open(breed(pad), GENERIC_READ | GENERIC_WRITE, CREATE_NEW), _O_BINARY);
  } while (nummer < 0 && errno == EEXIST);
  return nummer;
}

std::ptrdiff_t leesDeel(int handvat, char* doel, std::size_t bytes) {
  constexpr std::size_t meest = 1U << 30U;
  return _read(handvat, doel, static_cast<unsigned int>(std::min(bytes, meest)));
}

std::ptrdiff_t schrijfDeel(int handvat, char const* begin, std::size_t bytes) {
  // A terminal takes no more at once than some systems have of memory for it.
  constexpr std::size_t meest = 1U << 15U;
  std::size_t const deel = std::min(bytes, meest);
  return isTerminal(handvat) ? schrijfNaarTerminal(handvat, begin, deel)
                             : _write(handvat, begin, static_cast<unsigned int>(deel));
}

bool gaNaarBegin(int handvat) {
  return _lseeki64(handvat, 0, SEEK_SET) == 0;
}

bool legBestandVast(int handvat) {
  return _commit(handvat) == 0;
}

bool sluitBestand(int handvat) {
  return _close(handvat) == 0;
}

Plaats watStaatOp(std::string const& pad) {
  Open const er = open(breed(pad), 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  if (!er) {
    return errno == ENOENT ? Plaats::leeg : Plaats::onbekend;
  }
  BY_HANDLE_FILE_INFORMATION gegevens{};
  if (GetFileType(er.get()) != FILE_TYPE_DISK ||
      GetFileInformationByHandle(er.get(), &gegevens) == 0) {
    return Plaats::toestel;
  }
  bool const isMap = (gegevens.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isMap ? Plaats::map : Plaats::bestand;
}

std::string achterLinks(std::string const& naam) {
  std::wstring const pad = breed(naam);
  DWORD const aard = GetFileAttributesW(pad.c_str());
  bool const isLink = aard != INVALID_FILE_ATTRIBUTES && (aard & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  std::wstring const einde = isLink ? eindPad(pad) : std::wstring();
  return einde.empty() ? naam : fs::path(einde).u8string();
}

fs::path plaatsVan(std::string const& map, std::string const& pad) {
  std::wstring plaats = (fs::path(eindPad(breed(map))) / fs::u8path(pad).filename()).wstring();
  // What is called alike but for its capitals is the same file.
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, plaats.c_str(),
                static_cast<int>(plaats.size()), plaats.data(), static_cast<int>(plaats.size()),
                nullptr, nullptr, 0);
  return plaats;
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
  return open(breed(pad), GENERIC_READ) != nullptr;
}

bool magSchrijven(std::string const& pad) {
  DWORD const aard = GetFileAttributesW(breed(pad).c_str());
  if (aard != INVALID_FILE_ATTRIBUTES && (aard & FILE_ATTRIBUTE_READONLY) != 0) {
    // Who administers the machine can open it all the same.
    errno = EACCES;
    return false;
  }
  return open(breed(pad), GENERIC_WRITE | DELETE) != nullptr;
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
  return isGelukt(MoveFileExW(breed(pad).c_str(), breed(doel).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
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
