// The roads through kestrolin-cli for the tests that let each call on one of them fail: the command
// line, and the files that it finds and writes.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

// The files of a folder and all below it, by their paths in it; folders end in a slash and have no
// content.
using Bestanden = std::map<std::string, std::string>;

struct FoutWeg {
  char const* naam;
  std::vector<std::string> woorden;  // each that begins with ./ is a path in the folder of the test
  // What is there before, beside the recordings and texts that every road finds.
  Bestanden voor{};
};

// For the names of tests that fail.
void PrintTo(FoutWeg const& weg, std::ostream* uit);

extern std::vector<FoutWeg> const foutWegen;

// Makes `map` what a road finds.
void maakVoor(FoutWeg const& weg, std::string const& map);
Bestanden leesBestanden(std::string const& map);
