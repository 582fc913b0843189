// The text field beside the toolkit's own: whatever the file holds, both show the same after
// LoadFile, and tell the same. What differs is the memory that it takes.
#include "externals/desktop/tekstVeld.h"

#include <wx/frame.h>

#include <algorithm>
#include <iterator>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/krapGeheugen.h"
#include "tests/steun/wavMaker.h"

namespace {

constexpr std::size_t deel = 65536;

// What can be seen of a field after LoadFile.
struct Stand {
  bool geladen = false;
  std::string tekst;
  long plaats = 0;
  long einde = 0;
  bool isGewijzigd = false;
  int schuif = 0;
  int regels = 0;
  bool isBewaard = false;
  std::vector<std::size_t> bijEvent;  // the length of the text at each event of a change
  std::vector<wxString> log;
};

class TekstVeldProef : public DesktopProef {
 protected:
  TekstVeldProef() {
    start();
    wxFrame* const venster = maakVenster();
    constexpr long stijl = wxTE_MULTILINE | wxTE_READONLY;
    toolkit = new wxTextCtrl(venster, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, stijl);
    eigen = new TekstVeld(venster, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, stijl);
    toolkit->SetSize(0, 0, 300, 200);
    eigen->SetSize(0, 200, 300, 200);
    rust();
  }
  ~TekstVeldProef() override { stop(); }

  Stand laad(wxTextCtrl* veld) {
    Stand stand;
    auto const volg = [&stand, veld](wxCommandEvent&) {
      stand.bijEvent.push_back(veld->GetValue().length());
      veld->MarkDirty();
    };
    veld->Bind(wxEVT_TEXT, volg);
    log.clear();
    stand.geladen = veld->LoadFile(bestand, wxTEXT_TYPE_ANY);
    std::transform(log.begin(), log.end(), std::back_inserter(stand.log),
                   [](LogRegel const& regel) { return regel.tekst; });
    log.clear();
    veld->Unbind(wxEVT_TEXT, volg);
    stand.tekst = veld->GetValue().utf8_string();
    stand.plaats = veld->GetInsertionPoint();
    stand.einde = veld->GetLastPosition();
    stand.isGewijzigd = veld->IsModified();
    stand.schuif = veld->GetScrollPos(wxVERTICAL);
    stand.regels = veld->GetNumberOfLines();
    // Under the name that LoadFile had.
    stand.isBewaard = veld->SaveFile();
    return stand;
  }

  // Both fields over the file.
  void verwachtGelijk() {
    Stand const hunne = laad(toolkit);
    Stand const onze = laad(eigen);
    EXPECT_EQ(onze.geladen, hunne.geladen);
    EXPECT_TRUE(onze.tekst == hunne.tekst) << onze.tekst.size() << " " << hunne.tekst.size();
    EXPECT_EQ(onze.plaats, hunne.plaats);
    EXPECT_EQ(onze.einde, hunne.einde);
    EXPECT_EQ(onze.isGewijzigd, hunne.isGewijzigd);
    EXPECT_EQ(onze.schuif, hunne.schuif);
    EXPECT_EQ(onze.regels, hunne.regels);
    EXPECT_EQ(onze.isBewaard, hunne.isBewaard);
    EXPECT_EQ(onze.bijEvent, hunne.bijEvent);
    EXPECT_EQ(onze.log, hunne.log);
  }
  void verwachtGelijk(std::string const& inhoud) {
    maakBestand(bestand, inhoud);
    toolkit->ChangeValue("");
    eigen->ChangeValue("");
    verwachtGelijk();
  }

  std::string bestand = map.pad("tekst.c");
  wxTextCtrl* toolkit = nullptr;
  TekstVeld* eigen = nullptr;
};

// Lines of 50 signs, at least `bytes` of them.
std::string regels(std::size_t bytes, std::string const& einde = "\n") {
  std::string tekst;
  for (std::size_t nummer = 0; tekst.size() < bytes; ++nummer) {
    std::string regel = "\t0x" + std::to_string(nummer) + ",";
    regel.resize(50 - einde.size(), ' ');
    tekst += regel + einde;
  }
  return tekst;
}

TEST_F(TekstVeldProef, ShowsALongFileAsTheToolkitDoes) {
  verwachtGelijk(regels(5 * deel / 2));
  EXPECT_EQ(eigen->GetValue(), regels(5 * deel / 2));
  rust();
  EXPECT_EQ(eigen->GetScrollPos(wxVERTICAL), 0);
  EXPECT_FALSE(eigen->IsFrozen());
}

// What paints a dialog then works events off.
TEST_F(TekstVeldProef, LetsOthersWorkAfterEachPart) {
  int keren = 0;
  eigen->zetNaDeel([&keren] {
    ++keren;
    rust();
  });
  verwachtGelijk(regels(5 * deel / 2));
  EXPECT_EQ(keren, 3);
}

TEST_F(TekstVeldProef, ReplacesWhatItShowed) {
  maakBestand(bestand, regels(3 * deel / 2));
  for (wxTextCtrl* const veld : {toolkit, static_cast<wxTextCtrl*>(eigen)}) {
    veld->ChangeValue("before\n" + regels(2 * deel));
    veld->ShowPosition(veld->GetLastPosition());
    veld->SetSelection(3, 1000);
  }
  verwachtGelijk();
}

TEST_F(TekstVeldProef, ShowsFilesOfEveryLengthAroundAPart) {
  for (std::size_t const lengte : {std::size_t{0}, std::size_t{1}, deel - 1, deel, deel + 1,
                                   2 * deel - 1, 2 * deel, 2 * deel + 1}) {
    SCOPED_TRACE(lengte);
    verwachtGelijk(regels(lengte).substr(0, lengte));
  }
}

TEST_F(TekstVeldProef, ShowsPartsThatEndWithALine) {
  std::string tekst = regels(3 * deel);
  tekst[deel - 1] = '\n';
  tekst[2 * deel - 1] = '\n';
  verwachtGelijk(tekst.substr(0, 2 * deel));
  verwachtGelijk(tekst);
}

TEST_F(TekstVeldProef, ShowsEveryLineEnd) {
  verwachtGelijk(regels(3 * deel / 2, "\r\n"));
  verwachtGelijk(regels(3 * deel / 2, "\n\r"));
  // The two signs of a line end on both sides of where the first part ends.
  std::string tekst = regels(2 * deel);
  tekst.replace(deel - 1, 2, "\r\n");
  verwachtGelijk(tekst);
}

TEST_F(TekstVeldProef, ShowsAPartWithoutALineFeed) {
  // Carriage returns end lines too: a text in one line takes the field many seconds to lay out.
  verwachtGelijk(regels(5 * deel / 2, "\r"));
  verwachtGelijk(regels(deel) + regels(2 * deel, "\r"));
  verwachtGelijk(regels(2 * deel, "\r") + regels(deel));
}

TEST_F(TekstVeldProef, ShowsSignsOfAnyLength) {
  std::string tekst;
  while (tekst.size() < 5 * deel / 2) {
    tekst += "/* h\xC3\xA9\xE2\x82\xAC\xF0\x9F\x94\x8A.wav */\n";
  }
  verwachtGelijk(tekst);
  // Of bytes that also begin what is no sign.
  verwachtGelijk(tekst + "\xED\x95\x9C \xF4\x8F\xBF\xBD\n");
}

TEST_F(TekstVeldProef, ShowsWhatIsNoUtf8) {
  for (std::string const vreemd :
       {"h\xE9", "\xC3", "\xF5\x80\x80\x80", "\xED\xA0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80"}) {
    // In the last part, where the first ones are in the field already.
    verwachtGelijk(regels(5 * deel / 2) + vreemd + "\n");
    verwachtGelijk(vreemd + "\n" + regels(3 * deel / 2));
  }
}

TEST_F(TekstVeldProef, ShowsFilesWithAByteOrderMark) {
  verwachtGelijk("\xEF\xBB\xBF" + regels(3 * deel / 2));
  verwachtGelijk("\xFF\xFE" + regels(3 * deel / 2));
  // Elsewhere it is a sign like others.
  verwachtGelijk(regels(3 * deel / 2) + "\xEF\xBB\xBF\n");
}

TEST_F(TekstVeldProef, ShowsFilesWithANul) {
  verwachtGelijk(regels(3 * deel / 2) + std::string(1, '\0') + "behind\n");
}

TEST_F(TekstVeldProef, TellsAFileThatCannotBeLoadedAsTheToolkitDoes) {
  bestand = map.pad("weg.c");
  toolkit->ChangeValue("before");
  eigen->ChangeValue("before");
  verwachtGelijk();
  EXPECT_EQ(eigen->GetValue(), "before");
  EXPECT_FALSE(laad(eigen).geladen);
  EXPECT_GT(laad(eigen).log.size(), 0U);
}

TEST_F(TekstVeldProef, TakesLessMemoryThanTheFile) {
  maakBestand(bestand, regels(20 * deel));
  KrapGeheugen const ruim(0);
  EXPECT_TRUE(eigen->LoadFile(bestand));
  EXPECT_GT(KrapGeheugen::grootste(), deel);
  EXPECT_LT(KrapGeheugen::grootste(), 20 * deel);
}

}  // namespace
