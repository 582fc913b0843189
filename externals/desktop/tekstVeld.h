// A text field that shows long files: the toolkit's own, which loads a file in parts.
#pragma once

#include <wx/textctrl.h>

#include <functional>
#include <utility>

class wxFFile;

// The toolkit's LoadFile holds a whole file in three forms beside the one that the field keeps:
// nine bytes for each that the file has. In parts the peak is less than half, and the time some
// two thirds. All else that LoadFile does comes out the same: the text, one event of a change
// behind it, the cursor at its start, and no edits. What stood in the field is gone where a file
// fails behind its first part, and a part is left where memory runs out. Under Windows, where a
// field takes long for each part, a file is one part.
class TekstVeld : public wxTextCtrl {
 public:
  using wxTextCtrl::wxTextCtrl;

  // From here on calls this after each part of a file. It must not touch the field.
  void zetNaDeel(std::function<void()> nieuw) { naDeel = std::move(nieuw); }

 protected:
  bool DoLoadFile(wxString const& pad, int soort) override;

 private:
  // Not under Windows.
  bool laadInDelen(wxString const& pad);
  bool voegDelenToe(wxFFile& bestand);

  std::function<void()> naDeel = [] {};
};
