#include "audio/speex/encoder/toepassing/stroomKopie.h"

#include <wx/file.h>
#include <wx/mstream.h>
#include <wx/wfstream.h>

void kopieer(wxMemoryOutputStream const& bron, wxFile& doel) {
  // The toolkit cannot read from a stream that nothing was written to.
  if (bron.GetSize() == 0) {
    return;
  }
  wxMemoryInputStream tekst(bron);
  wxFileOutputStream uit(doel);
  tekst.Read(uit);
}
