#include "audio/codec/uitvoerBestand.h"

#include <wx/intl.h>
#include <wx/log.h>
#include <wx/mstream.h>

#include "audio/codec/uitvoerOpen.h"

namespace {

// In the toolkit's words, which its own catalogs translate: it stands in none of ours.
constexpr char const* nietTeOpenen = "can't open file '%s'";

}  // namespace

UitvoerBestand::UitvoerBestand(wxString const& pad, wxFile::OpenMode modus) : naam(pad) {
  int const fd = openUitvoer(pad, modus == wxFile::write_append);
  if (fd < 0) {
    wxLogSysError(wxGetTranslation(nietTeOpenen), pad);
    return;
  }
  bestand.Attach(fd);
}

UitvoerBestand::UitvoerBestand(wxString const& pad, int rechten) : naam(pad) {
  bestand.Create(pad, true, rechten);
}

UitvoerBestand::~UitvoerBestand() {
  sluit();
}

void UitvoerBestand::schrijf(wxMemoryOutputStream const& tekst) {
  Write(tekst.GetOutputStreamBuffer()->GetBufferStart(), tekst.GetSize());
}

void UitvoerBestand::sluit() {
  if (!isOpen()) {
    return;
  }
  // Some disks tell only now that there was no room.
  bool const gesloten = bestand.Close();
  if (!heel || !gesloten) {
    wxLogError(_("Could not write the whole of %s"), naam);
  }
}

size_t UitvoerBestand::OnSysWrite(void const* buffer, size_t bytes) {
  heel = heel && isOpen();
  auto const* const begin = static_cast<char const*>(buffer);
  size_t geschreven = 0;
  while (heel && geschreven < bytes) {
    size_t const deel = bestand.Write(begin + geschreven, bytes - geschreven);
    heel = deel > 0;
    geschreven += deel;
  }
  m_lasterror = heel ? wxSTREAM_NO_ERROR : wxSTREAM_WRITE_ERROR;
  return geschreven;
}
