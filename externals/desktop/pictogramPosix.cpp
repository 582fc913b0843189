#include "externals/desktop/pictogram.h"

#include <wx/bitmap.h>
#include <wx/filefn.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/stdpaths.h>
#include <wx/string.h>

#include <array>

namespace {

// The larger ones of a theme are for menus and overviews, which find them by themselves.
constexpr std::array<int, 8> maten{16, 22, 24, 32, 48, 64, 96, 128};

void zorgVoorPng() {
  if (wxImage::FindHandler(wxBITMAP_TYPE_PNG) == nullptr) {
    // The toolkit owns it.
    wxImage::AddHandler(new wxPNGHandler);
  }
}

}  // namespace

wxIconBundle leesPictogrammen(wxString const& naam) {
  zorgVoorPng();
  wxLogNull const stil;
  wxString const thema = wxStandardPaths::Get().GetInstallPrefix() + "/share/icons/hicolor/";
  wxIconBundle bundel;
  for (int const maat : maten) {
    wxString const pad = thema + wxString::Format("%dx%d/apps/", maat, maat) + naam + ".png";
    wxImage beeld;
    if (wxFileExists(pad) && beeld.LoadFile(pad, wxBITMAP_TYPE_PNG) &&
        beeld.GetSize() == wxSize(maat, maat)) {
      wxIcon pictogram;
      pictogram.CopyFromBitmap(wxBitmap(beeld));
      bundel.AddIcon(pictogram);
    }
  }
  return bundel;
}
