#include "audio/speex/encoder/toepassing/runTekst.h"

#include <wx/filename.h>

#include <numeric>

#include "audio/codec/uitvoerTaal.h"

namespace {

wxString arrayRegels(wxString const& type, wxArrayString const& wavBestanden) {
  return std::accumulate(wavBestanden.begin(), wavBestanden.end(), wxString(),
                         [&type](wxString const& regels, wxString const& pad) {
                           return regels + type + wxFileName(pad).GetName() + "[];\n";
                         });
}

}  // namespace

wxString declaraties(int taal, ArrayTypen const& typen, wxString const& klasseNaam,
                     wxArrayString const& wavBestanden) {
  switch (taal) {
    case UitvoerTaalC:
      return arrayRegels(typen.inC, wavBestanden);
    case UitvoerTaalCPP:
      return "// class " + klasseNaam + "\n//{\n\t//private:\n" +
             arrayRegels(typen.inCPP, wavBestanden) + "//};\n";
    default:
      return wxEmptyString;
  }
}
