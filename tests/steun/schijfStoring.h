// Files that fail on purpose: the calls of the C library by which the whole program, its shared
// libraries included, opens, reads, writes, closes, renames, links and makes files and folders.
//
// A program that links with schijfStoring.cpp exports its symbols (ENABLE_EXPORTS), so that the
// libraries find these calls before those of the C library. Streams of the C library (fopen) come
// down to the same calls while a storing lives. The calls from maakMap to zetRechten, and zoek,
// fail where the program links with schijfPlaatsen.cpp too.
#pragma once

#include <string>

enum class SchijfOproep {
  open,
  lees,
  schrijf,
  sluit,
  hernoem,
  maakTijdelijk,
  maakMap,
  koppel,      // a hard link
  verdubbel,   // dup
  zetRechten,  // fchmod
  bewaar,      // fsync
  zoek         // lseek
};

struct SchijfFout {
  SchijfOproep oproep;
  int code = 0;  // the errno; 0: half of what was asked for, and no error
  // Every write behind the one that failed finds no space, as on a disk that is full.
  bool daarnaVol = false;
};

// While it lives, the `nummer`-th such call on a file below the directory `map`, counted from 1,
// fails; 0 lets all succeed. A read or write of one byte cannot be short, and succeeds. A file that
// could not be closed has lost a part of what was written to it since it was opened, or brought to
// the disk by fsync, but for one whose closing was only interrupted. One storing lives at a time,
// and only the calls of the thread that made it count.
class SchijfStoring {
 public:
  SchijfStoring(std::string const& map, SchijfFout const& fout, int nummer);
  ~SchijfStoring();
  SchijfStoring(SchijfStoring const&) = delete;
  SchijfStoring& operator=(SchijfStoring const&) = delete;
  SchijfStoring(SchijfStoring&&) = delete;
  SchijfStoring& operator=(SchijfStoring&&) = delete;

  // Of the storing that lives or lived last: whether its call came, and on which file.
  static bool isGebleken();
  static std::string waar();
  // The calls of its kind so far.
  static int geteld();
};
