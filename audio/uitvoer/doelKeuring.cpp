#include "audio/uitvoer/doelKeuring.h"

#include <wx/filename.h>
#include <wx/intl.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

std::filesystem::path alsPad(wxString const& pad) {
  return static_cast<std::filesystem::path::value_type const*>(pad.fn_str());
}

}  // namespace

wxString keurDoel(wxFileName const& doel, wxArrayString const& wavBestanden) {
  wxString const pad = doel.GetFullPath();
  auto const isDoel = [&pad](wxString const& wav) {
    std::error_code geenVanBeide;
    return std::filesystem::equivalent(alsPad(pad), alsPad(wav), geenVanBeide);
  };
  if (std::any_of(wavBestanden.begin(), wavBestanden.end(), isDoel)) {
    return wxString::Format(_("%s is a loaded recording, and nothing is saved to it"), pad);
  }
  if (doel.Exists(wxFILE_EXISTS_FIFO)) {
    return wxString::Format(_("%s is a pipe, and nothing is saved to it"), pad);
  }
  return wxEmptyString;
}
