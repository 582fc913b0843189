// What has to hold of recordings before one text is made of them. Each fault is told in a line of
// its own that names the file and the remedy.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/encodeerOpties.h"
#include "opdrachtregel/opname.h"

// All recordings have one rate: that of the first.
bool keurFrequenties(std::vector<Opname> const& opnamen);

// The names of the arrays, which are those of the files, are names of the output language, and
// differ. With `metHeader` a header declares them, for C++ too: then they are names there as well,
// and those of their sizes differ from them all.
bool keurNamen(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen, bool metHeader);

// The generated text at `pad`, to which theirs is appended, has no array of such a name yet.
bool keurAanvulling(EncodeerVraag const& vraag, std::vector<Opname> const& opnamen,
                    std::string const& pad);
