#include "externals/desktop/tekstVeld.h"

#include <wx/ffile.h>
#include <wx/log.h>
#include <wx/wupdlock.h>

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t deelBytes = 65536;

// Bytes that begin a surrogate (0xED), or a sign beyond U+10FFFF (0xF4 and up), which the field
// refuses. Some valid signs begin so too.
bool isVreemd(char teken) {
  auto const byte = static_cast<unsigned char>(teken);
  return byte == 0xED || byte >= 0xF4;
}

// Empty where the bytes are not UTF-8, begin with a byte order mark, or hold a NUL or a byte of
// isVreemd.
wxString alsTekst(std::string const& bytes, bool isBegin) {
  bool const heeftMerk = isBegin && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0;
  if (heeftMerk || std::any_of(bytes.begin(), bytes.end(), isVreemd)) {
    return {};
  }
  wxString const tekst = wxString::FromUTF8(bytes.data(), bytes.size());
  return tekst.find(wxUniChar(0)) == wxString::npos ? tekst : wxString();
}

}  // namespace

// Short files, and files that are not plain UTF-8, go to the toolkit, which logs what is wrong.
bool TekstVeld::DoLoadFile(wxString const& pad, int soort) {
  return laadInDelen(pad) || wxTextCtrl::DoLoadFile(pad, soort);
}

bool TekstVeld::laadInDelen(wxString const& pad) {
  {
    wxLogNull const stil;
    wxFFile bestand(pad);
    if (!bestand.IsOpened() || bestand.Length() <= static_cast<wxFileOffset>(deelBytes)) {
      return false;
    }
    EventsSuppressor const geenEvents(this);
    wxWindowUpdateLocker const bevroren(this);
    if (!voegDelenToe(bestand)) {
      return false;
    }
  }
  SetInsertionPoint(0);
  SendTextUpdatedEvent();
  DiscardEdits();
  m_filename = pad;
  return true;
}

// Each part ends with a line, since a carriage return and its line feed are one end to the field.
// False where the file cannot be read or is no text that can be cut so; no part of it is left in
// the field then.
bool TekstVeld::voegDelenToe(wxFFile& bestand) {
  std::string rest;
  // What is added to the file from now on is left out, as the toolkit leaves it out.
  auto over = static_cast<std::size_t>(bestand.Length());
  for (bool isBegin = true; over > 0; isBegin = false) {
    std::string deel(std::min(over, deelBytes), '\0');
    std::size_t const gelezen = bestand.Read(deel.data(), deel.size());
    over = gelezen == deel.size() ? over - gelezen : 0;
    deel.resize(gelezen);
    std::size_t const einde = over > 0 ? deel.rfind('\n') + 1 : gelezen;
    std::string const regels = rest + deel.substr(0, einde);
    wxString const tekst = alsTekst(regels, isBegin);
    if (bestand.Error() || (over > 0 && einde == 0) || tekst.empty() != regels.empty()) {
      if (!isBegin) {
        ChangeValue(wxString());
      }
      return false;
    }
    rest = deel.substr(einde);
    if (isBegin) {
      ChangeValue(tekst);
    } else if (!tekst.empty()) {
      AppendText(tekst);
    }
    naDeel();
  }
  return true;
}
