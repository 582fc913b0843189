// What the frame reads and writes from its start to its end.
#include <sys/resource.h>
#include <sys/stat.h>
#include <wx/utils.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <iomanip>
#include <set>
#include <sstream>
#include <thread>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/omgeving.h"

namespace {

class StartStop : public DesktopProef {
 protected:
  static std::string slotPad() {
    return "/tmp/" + (proefNaam() + "-" + wxGetUserId()).ToStdString();
  }
};

// A date or a time of the clock in the local zone.
wxString lokaal(std::time_t moment, char const* vorm) {
  std::tm delen{};
  localtime_r(&moment, &delen);
  std::ostringstream tekst;
  tekst << std::put_time(&delen, vorm);
  return tekst.str();
}

// True when the two values are the date and the time of a second between the two moments.
bool ligtTussen(wxString const& datum, wxString const& tijd, std::time_t van, std::time_t tot) {
  for (std::time_t moment = van; moment <= tot; ++moment) {
    if (datum == lokaal(moment, "%Y-%m-%d") && tijd == lokaal(moment, "%H:%M:%S")) {
      return true;
    }
  }
  return false;
}

TEST_F(StartStop, FirstStartWritesTheLanguageAndTheStatistics) {
  start();
  auto const sleutels = stop();
  std::set<wxString> namen;
  for (auto const& [naam, waarde] : sleutels) {
    namen.insert(naam);
  }
  EXPECT_EQ(namen, (std::set<wxString>{"/Gebruikersinstellingen/Taal", "/Statistiek/StartDatum",
                                       "/Statistiek/StartTijd", "/Statistiek/StopDatum",
                                       "/Statistiek/StopTijd", "/Statistiek/OS"}));
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Taal"),
            wxString::Format("%d", static_cast<int>(wxLANGUAGE_ENGLISH)));
  EXPECT_EQ(sleutels.at("/Statistiek/OS"),
            wxString::Format("%d", static_cast<int>(wxOS_UNIX_LINUX)));
}

// The pages of every program that was waited for are counted.
TEST_F(StartStop, StartAndStopStartNoOtherProgram) {
  auto const paginas = [] {
    rusage kinderen{};
    getrusage(RUSAGE_CHILDREN, &kinderen);
    return kinderen.ru_minflt;
  };
  long const voor = paginas();
  start();
  EXPECT_EQ(paginas(), voor);
  stop();
  EXPECT_EQ(paginas(), voor);
}

TEST_F(StartStop, StatisticsAreTheLocalTimesOfStartAndStop) {
  // A zone far from that of the machine shows a time that is not local.
  TijdelijkeTijdzone const zone("PROEF-9:30");
  std::time_t const voorStart = std::time(nullptr);
  start();
  std::time_t const naStart = std::time(nullptr);
  std::this_thread::sleep_for(std::chrono::milliseconds(1100));
  std::time_t const voorStop = std::time(nullptr);
  auto const sleutels = stop();
  std::time_t const naStop = std::time(nullptr);
  EXPECT_TRUE(ligtTussen(sleutels.at("/Statistiek/StartDatum"),
                         sleutels.at("/Statistiek/StartTijd"), voorStart, naStart))
      << sleutels.at("/Statistiek/StartTijd").utf8_str();
  EXPECT_TRUE(ligtTussen(sleutels.at("/Statistiek/StopDatum"), sleutels.at("/Statistiek/StopTijd"),
                         voorStop, naStop))
      << sleutels.at("/Statistiek/StopTijd").utf8_str();
}

TEST_F(StartStop, RunningApplicationHasItsNamesAndItsStartInAConfigurationOfItsOwn) {
  start();
  app().geefAppConfig()->SetPath("/Statistiek");
  // Before any window exists.
  EXPECT_TRUE(app().geefAppConfig()->HasEntry("StartDatum"));
  EXPECT_TRUE(app().geefAppConfig()->HasEntry("StartTijd"));
  EXPECT_FALSE(app().geefAppConfig()->HasEntry("StopDatum"));
  EXPECT_FALSE(app().geefAppConfig()->HasEntry("OS"));
  EXPECT_EQ(wxConfigBase::Get(false), nullptr);
  // Creation on demand is off, so asking does not make one either.
  EXPECT_EQ(wxConfigBase::Get(true), nullptr);
  EXPECT_EQ(app().GetAppName(), proefNaam());
  EXPECT_EQ(app().GetAppDisplayName(), proefNaam());
  EXPECT_EQ(app().GetVendorName(), "Velmora");
  EXPECT_EQ(app().GetVendorDisplayName(), "Velmora");
  EXPECT_EQ(app().geefOSNaam(), wxPlatformInfo().GetOperatingSystemDescription());
  EXPECT_FALSE(app().geefOSNaam().empty());
}

// The lock is held from start to end under name and user.
TEST_F(StartStop, ApplicationAboveTheFrameCanStillStoreInItsDestructorBeforeDiskAndLock) {
  EXPECT_FALSE(std::filesystem::exists(slotPad()));
  start();
  EXPECT_FALSE(configBestaat());
  struct stat staat {};
  ASSERT_EQ(stat(slotPad().c_str(), &staat), 0);
  EXPECT_EQ(staat.st_mode & 0777U, 0600U);
  bool opSchijf = true;
  bool nogVast = false;
  app().bijEinde = [&, config = app().geefAppConfig()] {
    opSchijf = configBestaat();
    nogVast = std::filesystem::exists(slotPad());
    config->SetPath("/Proef");
    config->Write("laatste", 7);
  };
  auto const sleutels = stop();
  EXPECT_FALSE(opSchijf);
  EXPECT_TRUE(configBestaat());
  EXPECT_TRUE(nogVast);
  EXPECT_FALSE(std::filesystem::exists(slotPad()));
  EXPECT_EQ(sleutels.at("/Proef/laatste"), "7");
  EXPECT_EQ(sleutels.count("/Statistiek/StopTijd"), 1U);
}

TEST_F(StartStop, UnknownKeysSurviveWithTheirDollarSignsAndOldStatisticsAreReplaced) {
  setenv("PROEFVARIABELE", "vervangen", 1);
  // Lines that are no entries are read over without an assertion.
  start(
      "=\n= 3\n[]\n[Eigen\nlos\n[Eigen/Groep]\n=\nsleutel=waarde\n"
      "[Proef]\nmap=/klank/$PROEFVARIABELE/${HOME}\n"
      "[Statistiek]\nStartDatum=1999-12-31\nStopDatum=1999-12-31\nextra=12\n");
  app().geefAppConfig()->SetPath("/Proef");
  EXPECT_EQ(app().geefAppConfig()->Read("map", ""), "/klank/$PROEFVARIABELE/${HOME}");
  auto const sleutels = stop();
  EXPECT_EQ(sleutels.at("/Eigen/Groep/sleutel"), "waarde");
  EXPECT_EQ(sleutels.at("/Proef/map"), "/klank/$PROEFVARIABELE/${HOME}");
  EXPECT_EQ(sleutels.at("/Statistiek/extra"), "12");
  EXPECT_NE(sleutels.at("/Statistiek/StartDatum"), "1999-12-31");
  EXPECT_NE(sleutels.at("/Statistiek/StopDatum"), "1999-12-31");
}

}  // namespace
