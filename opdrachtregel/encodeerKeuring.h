// What has to hold of recordings before one text is made of them. Each fault is told in a line of
// its own that names the file and the remedy.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/encodeerOpties.h"
#include "opdrachtregel/opname.h"

// All recordings have one rate: that of the first.
bool keurFrequenties(std::vector<Opname> const& opnamen);

// What is declared beside the text.
struct Declareert {
  bool metHeader;   // the arrays and their sizes, for C++ too
  bool metStanden;  // the states of the arrays
};

// The names of the arrays, which are those of the files, are names of the output language, and
// differ. Where a header declares them, they are names in C++ as well, and those of their sizes and
// states differ from them all.
bool keurNamen(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen, Declareert wat);

// The generated text at `pad`, to which theirs is appended, has no array of such a name yet.
bool keurAanvulling(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    std::string const& pad);
