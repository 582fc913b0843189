#include "externals/desktop/tekstVeld.h"

#include <wx/ffile.h>
#include <wx/log.h>
#include <wx/wupdlock.h>

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t deelBytes = 65536;

// The bytes that begin a sign which the toolkit converts and its field may then refuse, beside a
// few that it shows, and the one that ends a text.
bool isVreemd(char teken) {
  auto const byte = static_cast<unsigned char>(teken);
  return byte == 0 || byte == 0xED || byte >= 0xF4;
}

// Empty where the bytes are not UTF-8, or hold what may be more than text.
wxString alsTekst(std::string const& bytes, bool isBegin) {
  bool const heeftMerk = isBegin && bytes.compare(0, 3, "\xEF\xBB\xBF") == 0;
  if (heeftMerk || std::any_of(bytes.begin(), bytes.end(), isVreemd)) {
    return {};
  }
  return wxString::FromUTF8(bytes.data(), bytes.size());
}

}  // namespace

// Of a short file, or of one that is not plain UTF-8, the toolkit makes what it always does, and
// tells what is wrong.
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
      ChangeValue(wxString());
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
// False where the file cannot be read or is no text that can be cut so.
bool TekstVeld::voegDelenToe(wxFFile& bestand) {
  std::string rest;
  bool isBegin = true;
  for (std::size_t gelezen = deelBytes; gelezen == deelBytes; isBegin = false) {
    std::string deel(deelBytes, '\0');
    gelezen = bestand.Read(deel.data(), deel.size());
    deel.resize(gelezen);
    std::size_t const einde = gelezen == deelBytes ? deel.rfind('\n') + 1 : gelezen;
    std::string const regels = rest + deel.substr(0, einde);
    wxString const tekst = alsTekst(regels, isBegin);
    if (bestand.Error() || (gelezen == deelBytes && einde == 0) ||
        tekst.empty() != regels.empty()) {
      return false;
    }
    rest = deel.substr(einde);
    if (isBegin) {
      ChangeValue(tekst);
    } else if (!tekst.empty()) {
      AppendText(tekst);
    }
  }
  return true;
}
