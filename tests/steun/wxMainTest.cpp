// The net under the other tests: what the toolkit complains about does reach the test.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "tests/steun/wxMain.h"

namespace {

TEST(TestOmgeving, assertieVanDeToolkitLaatDeTestFalen) {
  EXPECT_NONFATAL_FAILURE(wxFAIL_MSG("on purpose"), "on purpose");
}

TEST(TestOmgeving, logWordtVerzameldEnGeleegd) {
  wxLogError("%s", "first");
  std::vector<LogRegel> const meldingen = neemLog();
  ASSERT_EQ(meldingen.size(), 1U);
  EXPECT_EQ(meldingen[0].tekst, "first");
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST(TestOmgeving, logDieNietLeegIsWordtGetoond) {
  EXPECT_NONFATAL_FAILURE(EXPECT_TRUE(nietsGelogd({{wxLOG_Error, "first"}, {wxLOG_Message, "%s"}})),
                          "logged:\n  level 1: first\n  level 3: %s");
}

TEST(TestOmgeving, slotVanEenAndereKopieKomtNietInHetLog) {
  wxString const slot = "/tmp/Kestrolin-" + wxGetUserId();
  wxLogError("can't open file '%s' (error 2: No such file or directory)", slot);
  wxLogError("Failed to inspect the lock file '%s' (error 2: No such file or directory)", slot);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

}  // namespace
