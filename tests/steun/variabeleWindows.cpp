#include <cstdlib>

#include "tests/steun/variabele.h"

void zetVariabele(std::string const& naam, std::string const& waarde) {
  _putenv_s(naam.c_str(), waarde.c_str());
}

void wisVariabele(std::string const& naam) {
  // An empty one is none.
  _putenv_s(naam.c_str(), "");
}
