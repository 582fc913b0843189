// Characters of UTF-8, the same on every system: those of a wxString are halves of some where a
// wchar_t has 16 bits.
#pragma once

#include <cstddef>
#include <string>

// How many characters a text has.
std::size_t aantalTekens(std::string const& tekst);

// A text up to and with the character of this number, or all of it where it has fewer.
std::string eersteTekens(std::string const& tekst, std::size_t aantal);
