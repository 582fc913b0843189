// Compiled translation catalogs, written byte by byte.
#pragma once

#include <map>
#include <string>

// Writes a catalog with these translations, UTF-8, and the directories on the way to it.
void maakCatalogus(std::string const& pad, std::map<std::string, std::string> const& teksten);
