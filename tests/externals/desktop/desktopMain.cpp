// The main of the frame's tests: the application's glue for the bare application, and, in the
// second process of a test, the holder of a lock.
#include <gtest/gtest.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/snglinst.h>

#include <array>
#include <string>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/externals/desktop/slotHouder.h"

wxIMPLEMENT_APP_NO_MAIN(ProefApp);

namespace {

// Takes the lock of an application of that name and holds it until its input ends.
int houdSlot(char const* naam) {
  wxInitializer const basis;
  wxSingleInstanceChecker slot;
  slot.Create(wxString::FromUTF8(naam) + "-" + wxGetUserId(), "/tmp");
  std::array<char, 1> teken{slot.IsAnotherRunning() ? slotBezet : slotGenomen};
  if (write(STDOUT_FILENO, teken.data(), teken.size()) != 1) {
    return 1;
  }
  while (read(STDIN_FILENO, teken.data(), teken.size()) > 0) {
  }
  return 0;
}

}  // namespace

int main(int aantal, char** woorden) {
  if (aantal == 3 && woorden[1] == std::string(slotOptie)) {
    return houdSlot(woorden[2]);
  }
  ::testing::InitGoogleTest(&aantal, woorden);
  return RUN_ALL_TESTS();
}
