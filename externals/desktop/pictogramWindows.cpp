#include <wx/log.h>
#include <wx/string.h>

#include "externals/desktop/pictogram.h"

wxIconBundle leesPictogrammen(wxString const& naam) {
  wxLogNull const stil;
  return {naam, nullptr};
}
