// Which files a save may not write to.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

class wxFileName;

// Why nothing may be saved to `doel`, as a translated line that names it; empty where it may. A
// loaded recording is to stay what it is, by whatever path it is reached: opening it to write would
// empty it before it is read. A pipe would keep the window waiting for whoever reads from it.
// Devices are for the user to judge.
wxString keurDoel(wxFileName const& doel, wxArrayString const& wavBestanden);
