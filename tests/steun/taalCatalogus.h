// The texts of a language as its translators wrote them, read from the catalog's source and not
// through the toolkit.
#pragma once

#include <map>
#include <string>

// Translations by their originals, UTF-8. The head of the catalog stands under the empty text.
using Catalogus = std::map<std::string, std::string>;

// Reads a catalog without plurals and contexts; the test fails where the file is not there.
Catalogus leesCatalogus(std::string const& pad);
