// Files of Windows, by names in UTF-8: its numbers of errors as errno, and handles that close
// themselves.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

std::wstring breed(std::string const& tekst);

// Whether the call did what it was to do; where not, errno tells why.
bool isGelukt(BOOL uitslag);

struct Sluiter {
  void operator()(void* handvat) const { CloseHandle(handvat); }
};
using Open = std::unique_ptr<void, Sluiter>;

// Null, with errno, where that fails. Others may do with the file what they like meanwhile.
Open openHandvat(std::wstring const& pad, DWORD toegang, DWORD wijze = OPEN_EXISTING,
                 DWORD soort = 0);

// That of an open file of the C library.
void* handvatVan(int nummer);
