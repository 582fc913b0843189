// The way of generated text to disk: a file that knows whether all that was written to it is there.
// A disk that fills up may take some of the bytes and report no error, and text that is cut without
// a word ends up in flash.
#pragma once

#include <wx/file.h>
#include <wx/stream.h>
#include <wx/string.h>

class wxMemoryOutputStream;

class UitvoerBestand : public wxOutputStream {
 public:
  // No file: takes nothing, and reports nothing.
  UitvoerBestand() = default;
  // Opens the file at `pad` to replace (wxFile::write) or append (wxFile::write_append), and waits
  // for nobody: what would block is an error. The log tells why a file cannot be opened.
  UitvoerBestand(wxString const& pad, wxFile::OpenMode modus);
  // Empties the file at `pad` or makes it, with `rechten` (wxS_IWUSR and its like) if it is new.
  UitvoerBestand(wxString const& pad, int rechten);
  ~UitvoerBestand() override;

  UitvoerBestand(UitvoerBestand const&) = delete;
  UitvoerBestand& operator=(UitvoerBestand const&) = delete;
  UitvoerBestand(UitvoerBestand&&) = delete;
  UitvoerBestand& operator=(UitvoerBestand&&) = delete;

  bool isOpen() const { return bestand.IsOpened(); }

  // Writes the whole text of `tekst` behind what was written before.
  void schrijf(wxMemoryOutputStream const& tekst);

  // Closes the file. Where not all bytes reached it, one error line names it; the toolkit may have
  // logged the reason before. Does nothing on a file that is not open. The destructor closes too.
  void sluit();

 protected:
  // Goes on after a short write. Writes nothing more once a write has failed.
  size_t OnSysWrite(void const* buffer, size_t bytes) override;

 private:
  wxString naam;
  wxFile bestand;
  bool heel = true;
};
