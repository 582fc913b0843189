// A variable of the process's environment.
#pragma once

#include <string>

void zetVariabele(std::string const& naam, std::string const& waarde);
void wisVariabele(std::string const& naam);
