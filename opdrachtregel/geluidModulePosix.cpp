#include "opdrachtregel/geluidModule.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>

#include "audio/weergave/doelDecoder.h"
#include "opdrachtregel/melding.h"

GeluidModule::GeluidModule(std::string const& pad) : module(std::make_unique<wxDynamicLibrary>()) {
  // The toolkit logs why it cannot be loaded.
  module->Load(wxString::FromUTF8(pad), wxDL_NOW | wxDL_VERBATIM);
  functie = module->IsLoaded() ? reinterpret_cast<GeluidFunctie>(module->GetSymbol(geluidFunctie))
                               : nullptr;
}

std::optional<GeluidModule> GeluidModule::laad() {
  wxFileName const programma(wxStandardPaths::Get().GetExecutablePath());
  wxFileName bestand(programma.GetPathWithSep() + geluidModulePad);
  bestand.Normalize(wxPATH_NORM_DOTS);
  std::string const pad = bestand.GetFullPath().utf8_string();
  if (!bestand.FileExists()) {
    meld("this kestrolin-cli was built without sound: there is no " + pad + geluidRemedie);
    return std::nullopt;
  }
  GeluidModule module(pad);
  return module.functie == nullptr ? std::nullopt : std::optional(std::move(module));
}

bool GeluidModule::speel(DoelGeluid const& geluid) const {
  char const* const reden =
      functie(geluid.samples.data(), geluid.samples.size(), static_cast<int>(geluid.rate),
              static_cast<int>(geluid.kanalen));
  if (reden != nullptr) {
    meld(std::string("nothing can be heard: ") + reden + geluidRemedie);
  }
  return reden == nullptr;
}
