#include "opdrachtregel/handvatWindows.h"

#include <io.h>

#include <cerrno>
#include <filesystem>

namespace {

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

}  // namespace

std::wstring breed(std::string const& tekst) {
  return std::filesystem::u8path(tekst).wstring();
}

bool isGelukt(BOOL uitslag) {
  if (uitslag == 0) {
    errno = errnoVan(GetLastError());
  }
  return uitslag != 0;
}

Open openHandvat(std::wstring const& pad, DWORD toegang, DWORD wijze, DWORD soort) {
  void* const handvat =
      CreateFileW(pad.c_str(), toegang, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, wijze, soort, nullptr);
  if (!isGelukt(handvat == INVALID_HANDLE_VALUE ? FALSE : TRUE)) {
    return nullptr;
  }
  return Open(handvat);
}

void* handvatVan(int nummer) {
  // The library keeps it as a number.
  return reinterpret_cast<void*>(_get_osfhandle(nummer));  // NOLINT(performance-no-int-to-ptr)
}
