#include "audio/codec/tijdelijkBestand.h"

#include <wx/filename.h>

wxString maakTijdelijkBestand(wxString const& begin) {
  // A file name has 255 bytes of UTF-8 at most.
  constexpr std::size_t meesteBytes = 255 - 6;
  std::size_t const punt = begin.rfind('.');
  wxString kort = begin.substr(0, punt);
  wxString const rest = begin.substr(kort.length());
  while (kort.utf8_str().length() > meesteBytes) {
    kort.RemoveLast();
  }
  // The toolkit takes an extension away, so that the name needs the one that it had.
  return wxFileName::CreateTempFileName(kort + rest);
}
