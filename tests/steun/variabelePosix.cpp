#include <cstdlib>

#include "tests/steun/variabele.h"

void zetVariabele(std::string const& naam, std::string const& waarde) {
  setenv(naam.c_str(), waarde.c_str(), 1);
}

void wisVariabele(std::string const& naam) {
  unsetenv(naam.c_str());
}
