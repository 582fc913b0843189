// The main of the window tests: the application's glue without its main, and GoogleTest's in its
// place.
#include <gtest/gtest.h>
#include <wx/app.h>

#include "audio/speex/encoder/toepassing/kestrolin.h"

wxIMPLEMENT_APP_NO_MAIN(Kestrolin);

int main(int aantal, char** woorden) {
  ::testing::InitGoogleTest(&aantal, woorden);
  return RUN_ALL_TESTS();
}
