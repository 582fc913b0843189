// Lines that become their own format string, and what the logger makes of them.
#include "audio/codec/logTekst.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "tests/steun/logboek.h"

namespace {

struct Geval {
  char const* naam;
  char const* gedrukt;
};

// "%%" has always shown as one sign; every other per cent sign shows as itself.
constexpr std::array gevallen = {
    Geval{"", ""},
    Geval{"%", "%"},
    Geval{"%%", "%"},
    Geval{"%%%", "%%"},
    Geval{"%%%%", "%%"},
    Geval{"100%.wav", "100%.wav"},
    Geval{"a%%b", "a%b"},
    Geval{"a%%b.wav", "a%b.wav"},
    Geval{"%s%n", "%s%n"},
    Geval{"%s%s%s%s%s%s%s%s.wav", "%s%s%s%s%s%s%s%s.wav"},
    Geval{"%*d.wav", "%*d.wav"},
    Geval{"%999999999d", "%999999999d"},
    Geval{"% b", "% b"},
    Geval{"%", "%"},
    Geval{"end%", "end%"},
    Geval{"%start", "%start"},
    Geval{"caf\xC3\xA9 100%", "caf\xC3\xA9 100%"},
    Geval{"no sign at all", "no sign at all"},
};

TEST(VeiligFormaat, PrintsTheLineItself) {
  for (Geval const& geval : gevallen) {
    EXPECT_EQ(wxString::Format(veiligFormaat(wxString::FromUTF8(geval.naam))),
              wxString::FromUTF8(geval.gedrukt))
        << geval.naam;
  }
}

TEST(VeiligFormaat, LogsTheLineItself) {
  std::vector<LogRegel> regels;
  VerzamelLog verzamelaar(regels);
  wxLog* const oud = wxLog::SetActiveTarget(&verzamelaar);
  wxLogError(veiligFormaat("100%s%n.wav cannot be loaded"));
  wxLog::SetActiveTarget(oud);
  ASSERT_EQ(regels.size(), 1U);
  EXPECT_EQ(regels[0].niveau, static_cast<unsigned long>(wxLOG_Error));
  EXPECT_EQ(regels[0].tekst, "100%s%n.wav cannot be loaded");
}

TEST(VeiligFormaat, GivesAFormatWithoutConversions) {
  EXPECT_EQ(veiligFormaat("a%sb"), "a%%sb");
  EXPECT_EQ(veiligFormaat("a%%b"), "a%%b");
  EXPECT_EQ(veiligFormaat("%%%"), "%%%%");
  EXPECT_EQ(veiligFormaat("plain"), "plain");
  EXPECT_EQ(veiligFormaat(wxEmptyString), wxString());
}

}  // namespace
