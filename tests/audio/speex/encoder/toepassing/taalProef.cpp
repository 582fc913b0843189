#include "tests/audio/speex/encoder/toepassing/taalProef.h"

#include <sys/wait.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/intl.h>
#include <wx/timer.h>

#include <array>
#include <cstdio>
#include <ostream>
#include <utility>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/configTekst.h"

std::vector<Taal> const& talen() {
  static std::array<Taal, 5> const alle{{{"nl", wxLANGUAGE_DUTCH},
                                         {"de", wxLANGUAGE_GERMAN},
                                         {"fr", wxLANGUAGE_FRENCH},
                                         {"it", wxLANGUAGE_ITALIAN},
                                         {"es", wxLANGUAGE_SPANISH}}};
  static std::vector<Taal> const gekozen(alle.begin(), alle.begin() + KESTROLIN_AANTAL_TALEN);
  return gekozen;
}

std::string taalCode(::testing::TestParamInfo<Taal> const& info) {
  return info.param.code;
}

void PrintTo(Taal const& taal, std::ostream* uit) {
  *uit << taal.code;
}

wxString TaalProef::taalRegels(int nummer) {
  return wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", nummer);
}

void TaalProef::inEigenProces(std::function<void()> const& doet) {
  static_cast<void>(std::fflush(nullptr));
  pid_t const kind = fork();
  ASSERT_NE(kind, -1);
  if (kind == 0) {
    doet();
    EXPECT_TRUE(antwoorden.isOp()) << "a prepared answer was never asked for";
    static_cast<void>(std::fflush(nullptr));
    // The directory of the test stays.
    _exit(HasFailure() ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(kind, &status, 0), kind);
  ASSERT_TRUE(WIFEXITED(status)) << status;
  ASSERT_EQ(WEXITSTATUS(status), 0) << "the process of its own failed; see above";
}

void TaalProef::doeInHoofdlus(std::function<void()> doet, bool eindigt) {
  bool liepDoor = false;
  wxTimer wekker;
  wekker.Bind(wxEVT_TIMER, [&liepDoor](wxTimerEvent&) {
    liepDoor = true;
    wxTheApp->ExitMainLoop();
  });
  // The clock runs from when all is done.
  wxTheApp->CallAfter([doet = std::move(doet), &wekker, eindigt] {
    // No machine is too busy for an end that comes.
    constexpr int geduldVoorEinde = 180'000;
    constexpr int even = 1500;
    doet();
    wekker.StartOnce(eindigt ? geduldVoorEinde : even);
  });
  wxTheApp->OnRun();
  EXPECT_NE(liepDoor, eindigt);
}

std::map<wxString, wxString> TaalProef::eindigNaHoofdlus() {
  delete venster;
  return configSleutels(stop());
}

void ElkeTaalProef::beginInTaal(int encoder) {
  beginIn(GetParam().nummer, encoder);
}

void ElkeTaalProef::beginIn(int nummer, int encoder) {
  start(wxString::Format("[Configuratie]\nConvertertype=%d\nklasseNaam=Geluid\n"
                         "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n",
                         encoder) +
        taalRegels(nummer));
}

std::string ElkeTaalProef::vertaald(std::string const& origineel) {
  if (teksten.empty()) {
    for (std::string const domein : {"Kestrolin", "Velmoradesktop"}) {
      teksten.merge(
          leesCatalogus(KESTROLIN_VERTALINGEN "/" + GetParam().code + "/" + domein + ".po"));
    }
  }
  auto const plaats = teksten.find(origineel);
  bool const bestaat = plaats != teksten.end() && !plaats->second.empty();
  EXPECT_TRUE(bestaat) << "the catalog has no " << origineel;
  return bestaat ? plaats->second : "";
}

std::string ElkeTaalProef::anders(std::string const& origineel) {
  std::string vertaling = vertaald(origineel);
  EXPECT_NE(vertaling, origineel);
  return vertaling;
}

std::string vulIn(std::string const& vorm, std::vector<std::string> const& getallen) {
  std::string tekst;
  auto getal = getallen.begin();
  for (std::size_t plaats = 0; plaats < vorm.size(); ++plaats) {
    if (vorm[plaats] != '%') {
      tekst += vorm[plaats];
    } else if (vorm[++plaats] == '%') {
      tekst += '%';
    } else {
      plaats += vorm[plaats] == 'l' ? 1U : 0U;
      tekst += getal == getallen.end() ? "?" : *getal++;
    }
  }
  return tekst;
}

std::size_t telTekst(std::string const& tekst, std::string const& deel) {
  std::size_t aantal = 0;
  for (std::size_t plaats = tekst.find(deel); plaats != std::string::npos;
       plaats = tekst.find(deel, plaats + deel.size())) {
    ++aantal;
  }
  return aantal;
}
