// The text of one encoded frame in a generated Speex array: a line with its size, then its bytes as
// signed numbers, eight to the line.
#pragma once

#include <wx/string.h>

#include <cstddef>

// Frame `nummer`, counted from 0, of `aantal` bytes, at most 200. A frame whose size is a multiple
// of eight ends in a line that holds a tab alone.
wxString frameTekst(unsigned long long nummer, char const* bytes, std::size_t aantal);
