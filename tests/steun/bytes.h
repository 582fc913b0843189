// Rows of bytes in tests: made from numbers, and read from files.
#pragma once

#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

// The lowest `aantal` bytes of `waarde`, low byte first.
Bytes laagEerst(unsigned long long waarde, unsigned int aantal);

// The whole of a file; empty where there is none.
std::string leesTekst(std::string const& pad);
Bytes leesBytes(std::string const& pad);
