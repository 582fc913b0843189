// The fixture of the tests that hand the saved text to compilers, with the declarations that the
// text itself asks for, and look at the arrays from a program.
#pragma once

#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/werkProef.h"

// An array of the text, and the number of its bytes.
struct GetoondeArray {
  std::string naam;
  int bytes;
};

class CompileerProef : public WerkProef {
 protected:
  // Compiles "geluid.c" as it was saved in the test's directory, and returns the arrays as a
  // program prints them: a line each, in two hexadecimal digits a byte.
  wxString arraysInC(std::vector<GetoondeArray> const& arrays);
  // The same for "geluid.cpp", whose arrays belong to the class "Geluid".
  wxString arraysInCpp(std::vector<GetoondeArray> const& arrays);

 private:
  wxString declaraties() const;
  wxString bouwEnDraai(wxString const& compileren);
};
