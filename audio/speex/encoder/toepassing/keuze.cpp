#include "audio/speex/encoder/toepassing/keuze.h"

#include <wx/choice.h>
#include <wx/radiobox.h>

void kies(wxRadioBox* keuze, int index) {
  if (index >= 0 && static_cast<unsigned int>(index) < keuze->GetCount()) {
    keuze->SetSelection(index);
  }
}

void kies(wxChoice* keuze, int index) {
  if (index >= wxNOT_FOUND) {
    keuze->SetSelection(index);
  }
}
