#include "audio/codec/tijdelijkBestand.h"

#include <wx/filename.h>

wxString maakTijdelijkBestand(wxString const& begin) {
  // A file name has 255 bytes of UTF-8 at most.
  constexpr std::size_t meesteBytes = 255 - 6;
  wxString kort = begin;
  while (kort.utf8_str().length() > meesteBytes) {
    kort.RemoveLast();
  }
  return wxFileName::CreateTempFileName(kort);
}
