#include "audio/uitvoer/runTekst.h"

#include <wx/filename.h>
#include <wx/translation.h>

#include <string>

#include "audio/codec/uitvoerTaal.h"

namespace {

wxString merk(char const* plaats, RunSoort const& soort, std::size_t nummer) {
  return wxString("/******* ") + plaats + " " + soort.bezigheid + " file number " +
         std::to_string(nummer) + " \t\t*******/\n";
}

}  // namespace

wxString declaraties(RunDoel const& doel, char const* arrayType,
                     wxArrayString const& wavBestanden) {
  UitvoerTaalRij const& taal = uitvoerTaalRij(doel.taal);
  TaalWoorden woorden{doel.klasse, {}, arrayType, {}};
  wxString regels = vulIn(taal.declaratiesBegin, woorden);
  for (wxString const& pad : wavBestanden) {
    woorden.naam = wxFileName(pad).GetName();
    regels += vulIn(taal.declaratie, woorden);
  }
  return regels + vulIn(taal.declaratiesEinde, woorden);
}

wxString runHoofd(RunSoort const& soort, RunDoel const& doel, wxArrayString const& wavBestanden) {
  return vulIn(soort.kopRegel, {{}, soort.naam, {}, std::to_string(wavBestanden.size())}) +
         _("/* Put these declarations in a header file :*/\n") +
         declaraties(doel, soort.arrayType, wavBestanden) + "\n\n";
}

wxString startMerk(RunSoort const& soort, std::size_t nummer) {
  return merk("Start", soort, nummer);
}

wxString stopMerk(RunSoort const& soort, std::size_t nummer) {
  return merk("Stop", soort, nummer) + "\n";
}
