// Keeps a file open, so that nobody else deletes or writes it, until its standard input ends.
//
//   houVast FILE
#include <windows.h>

#include <cstdio>

int wmain(int aantal, wchar_t** woorden) {
  void* const bestand = aantal == 2 ? CreateFileW(woorden[1], GENERIC_READ, FILE_SHARE_READ,
                                                  nullptr, OPEN_EXISTING, 0, nullptr)
                                    : INVALID_HANDLE_VALUE;
  if (bestand == INVALID_HANDLE_VALUE) {
    return 1;
  }
  static_cast<void>(std::puts("open"));
  static_cast<void>(std::fflush(stdout));
  while (std::getchar() != EOF) {
  }
  CloseHandle(bestand);
  return 0;
}
