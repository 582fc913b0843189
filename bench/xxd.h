// The peer of every text of bytes: `xxd -i`.
#pragma once

#include <string>

// Becomes xxd, which writes the text of the bytes of `bestand` to the file `uit`. Returns where
// there is no xxd.
int draaiXxd(std::string const& bestand, std::string const& uit);
