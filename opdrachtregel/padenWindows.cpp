#include "opdrachtregel/paden.h"

#include <algorithm>
#include <string_view>

#include "opdrachtregel/handvatWindows.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view strepen = "/\\";

// The path that the system itself would give, without links. Empty where nothing is there.
std::wstring eindPad(std::wstring const& pad) {
  Open const er = openHandvat(pad, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  std::wstring uit(er ? GetFinalPathNameByHandleW(er.get(), nullptr, 0, 0) : 0, L'\0');
  if (!uit.empty()) {
    uit.resize(GetFinalPathNameByHandleW(er.get(), uit.data(), static_cast<DWORD>(uit.size()), 0));
  }
  return uit;
}

}  // namespace

std::size_t lengteVanBegin(std::string const& pad) {
  if (pad.size() > 1 && pad[1] == ':') {
    return std::min(pad.find_first_not_of(strepen, 2), pad.size());
  }
  if (pad.size() < 2 || strepen.find(pad[0]) == std::string_view::npos ||
      strepen.find(pad[1]) == std::string_view::npos) {
    return 0;
  }
  // Machine, then share.
  std::size_t const machine = pad.find_first_of(strepen, 2);
  std::size_t const deel =
      machine == std::string::npos ? machine : pad.find_first_of(strepen, machine + 1);
  return deel == std::string::npos ? pad.size() : deel + 1;
}

fs::path volledigPad(std::string const& pad) {
  std::wstring const van = breed(pad);
  std::wstring uit(GetFullPathNameW(van.c_str(), 0, nullptr, nullptr), L'\0');
  uit.resize(GetFullPathNameW(van.c_str(), static_cast<DWORD>(uit.size()), uit.data(), nullptr));
  return uit;
}

std::string achterLinks(std::string const& naam) {
  std::wstring const pad = breed(naam);
  DWORD const aard = GetFileAttributesW(pad.c_str());
  bool const isLink = aard != INVALID_FILE_ATTRIBUTES && (aard & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  std::wstring const einde = isLink ? eindPad(pad) : std::wstring();
  return einde.empty() ? naam : fs::path(einde).u8string();
}

fs::path plaatsVan(std::string const& map, std::string const& pad) {
  std::wstring plaats = (fs::path(eindPad(breed(map))) / volledigPad(pad).filename()).wstring();
  // What is called alike but for its capitals is the same file, and so is what differs in dots and
  // blanks at the end.
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, plaats.c_str(),
                static_cast<int>(plaats.size()), plaats.data(), static_cast<int>(plaats.size()),
                nullptr, nullptr, 0);
  return plaats;
}
