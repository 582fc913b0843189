#include "audio/codec/logTekst.h"

wxString veiligFormaat(wxString const& regel) {
  wxString veilig;
  veilig.reserve(regel.length());
  for (auto teken = regel.begin(); teken != regel.end(); ++teken) {
    veilig += *teken;
    if (*teken == '%') {
      auto const volgend = teken + 1;
      if (volgend != regel.end() && *volgend == '%') {
        teken = volgend;
      }
      veilig += '%';
    }
  }
  return veilig;
}
