// The roads that audio and settings take through the program, for tests that let each call on one
// of them fail: what comes before a road, the road itself, and what it leaves.
//
// A further road is a row of `wegen` in foutWegen.cpp, and the functions that the row names.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/speelProef.h"

class FoutWegen;

// What can be told of a road's result, in pieces: a text, a sound, a line of the status bar.
using Uitkomst = std::vector<std::string>;
// Files by name, with what is in them.
using Bestanden = std::map<std::string, std::string>;

struct Weg {
  char const* naam;
  void (FoutWegen::*voor)();          // brings the program to where the road begins
  void (FoutWegen::*doe)();           // the road
  Uitkomst (FoutWegen::*uitkomst)();  // what is there behind it
  // The file that grows, by its name in the test's directory: its earlier content stays in front.
  char const* groeit = "";
  // The file that is replaced, the old one by the whole new one: a failure is told and leaves the
  // old one as it is.
  char const* vervangt = "";
  // What cannot be had is passed over without a word: then pieces of the result are missing.
  bool slaatOver = false;
  // The smallest block, in bytes, whose allocation fails. A destructor lets no exception through: a
  // road through one ends the program for want of the memory for a word.
  std::size_t kleinsteBlok = 0;
};

// For the names of tests that fail.
void PrintTo(Weg const& weg, std::ostream* uit);

extern std::vector<Weg> const wegen;

class FoutWegen : public SpeelProef {
 public:
  // What is saved to: nothing, and a file with text in it.
  static constexpr char const* nieuw = "nieuw.c";
  static constexpr char const* vol = "vol.c";

  void voorLaden();
  void doeLaden();
  Uitkomst naLaden();

  void voorSpeex();
  void voorAdpcm();
  void voorPcm();
  void doeCoderen();
  Uitkomst naCoderen();

  void voorBewaren();
  void doeBewaren();
  void doeAanvullen();
  void voorInbedden();
  void doeInbedden();
  void doeBijInbedden();
  Uitkomst naBewaren();

  void voorSpelen();
  void doeSpelen();
  void voorResultaat();
  void voorAdpcmResultaat();
  void doeResultaat();
  Uitkomst naSpelen();

  void voorStoppen();
  void doeStoppen();
  Uitkomst naStoppen();

 protected:
  // The files that each road finds in the test's directory.
  void maakBestanden();
  Bestanden bestaande() const;

 private:
  void laadTwee();
  // The text of a file without its moments.
  std::string inhoudVan(std::string const& naam) const;

  wxArrayString geladen;
  std::string doel;
};
