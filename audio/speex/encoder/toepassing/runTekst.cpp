#include "audio/speex/encoder/toepassing/runTekst.h"

#include <wx/filename.h>
#include <wx/translation.h>

#include "audio/codec/uitvoerTaal.h"

namespace {

wxString arrayRegels(wxString const& type, wxArrayString const& wavBestanden) {
  wxString regels;
  for (wxString const& pad : wavBestanden) {
    regels += type + wxFileName(pad).GetName() + "[];\n";
  }
  return regels;
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

wxString runHoofd(wxString const& kopRegel, int taal, ArrayTypen const& typen,
                  wxString const& klasseNaam, wxArrayString const& wavBestanden) {
  return kopRegel + _("/* Put these declarations in a header file :*/\n") +
         declaraties(taal, typen, klasseNaam, wavBestanden) + "\n\n";
}
