// Starts that the frame's own checks would forbid and that this tool allows: beside a running copy,
// and on a small screen.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/gdicmn.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/geduld.h"
#include "tests/steun/vensterProef.h"

namespace {

// The real program with a home directory of its own, until the end of the block.
class LopendeKopie {
 public:
  explicit LopendeKopie(wxString const& thuis) : kind(fork()) {
    if (kind == 0) {
      setenv("HOME", thuis.utf8_str(), 1);
      execl(KESTROLIN_PROGRAMMA, KESTROLIN_PROGRAMMA, static_cast<char*>(nullptr));
      _exit(1);
    }
  }
  ~LopendeKopie() {
    kill(kind, SIGTERM);
    waitpid(kind, nullptr, 0);
  }
  LopendeKopie(LopendeKopie const&) = delete;
  LopendeKopie& operator=(LopendeKopie const&) = delete;
  LopendeKopie(LopendeKopie&&) = delete;
  LopendeKopie& operator=(LopendeKopie&&) = delete;

 private:
  pid_t kind;
};

// How many main windows stand on this display.
int aantalVensters() {
  std::unique_ptr<FILE, int (*)(FILE*)> const lijst(
      popen("xdotool search --onlyvisible --name "
            "'^Kestrolin Encoder for embedded applications$' 2>/dev/null",
            "r"),
      pclose);
  int regels = 0;
  for (int teken = std::fgetc(lijst.get()); teken != EOF; teken = std::fgetc(lijst.get())) {
    regels += teken == '\n' ? 1 : 0;
  }
  return regels;
}

bool wachtOpVensters(int aantal) {
  return wachtTot([aantal] { return aantalVensters() == aantal; });
}

class TweedeKopieProef : public VensterProef {};

TEST_F(TweedeKopieProef, ComesUpNormallyBesideTheFirst) {
  wxString const eerstThuis = pad("eerste");
  wxFileName::Mkdir(eerstThuis);
  LopendeKopie const eerste(eerstThuis);
  ASSERT_TRUE(wachtOpVensters(1));
  start();
  EXPECT_TRUE(venster->IsShown());
  EXPECT_EQ(status(), "No audio file loaded");
  EXPECT_TRUE(wachtOpVensters(2));
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(antwoorden.berichten.empty());
}

class KleinSchermProef : public VensterProef {};

TEST_F(KleinSchermProef, ComesUpNormallyOn800By600) {
  start();
  ASSERT_EQ(wxGetDisplaySize(), wxSize(800, 600));
  EXPECT_TRUE(venster->IsShown());
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_EQ(venster->GetTitle(), "Kestrolin Encoder for embedded applications");
}

}  // namespace
