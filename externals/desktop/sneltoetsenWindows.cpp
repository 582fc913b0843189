#include <wx/accel.h>
#include <wx/frame.h>

#include <array>

#include "externals/desktop/sneltoetsen.h"

void zetSneltoetsen(wxFrame& venster) {
  std::array<wxAcceleratorEntry, 3> const toetsen{{{wxACCEL_CTRL, 'O', wxID_OPEN},
                                                   {wxACCEL_CTRL, 'S', wxID_SAVE},
                                                   {wxACCEL_CTRL, 'Q', wxID_EXIT}}};
  venster.SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(toetsen.size()), toetsen.data()));
}
