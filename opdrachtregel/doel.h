// A file that a command writes: beside its place first, and put there in one step.
#pragma once

#include <wx/stream.h>

#include <memory>
#include <string>

#include "opdrachtregel/wegwerpBestand.h"

class Doel : public wxOutputStream {
 public:
  // The name of standard output.
  static constexpr char const* standaardUitvoer = "-";

  // Prepares to write the file at `pad`, UTF-8, or standard output. With `aanvullen` its content of
  // now comes first. Null where that cannot be, which was told.
  static std::unique_ptr<Doel> open(std::string const& pad, bool aanvullen);

  // As the user gave it.
  std::string const& geefNaam() const { return naam; }
  // Where it will be: behind symbolic links, which stay.
  std::string const& geefPad() const { return pad; }
  // The folder of that place.
  std::string geefMap() const;
  // Standard output, a device or a pipe: what was written is copied to it in the end.
  bool isToestel() const { return soort != Soort::bestand; }
  // Whether there is a file at its place now.
  bool bestaat() const { return isEr; }

  // Ends the writing, once. False where not all of it is on the disk, which was told.
  bool sluit();
  // Copies what was written to the device. False where it does not take all, which was told.
  bool lever();
  // Puts the closed file in its place. False where that fails, which was told.
  bool plaats();

 protected:
  // Goes on after a short write. Writes nothing more once a write has failed.
  size_t OnSysWrite(void const* buffer, size_t bytes) override;

 private:
  enum class Soort { bestand, toestel, standaardUitvoer };

  explicit Doel(std::string const& gegeven);
  bool bereidVoor();
  bool maakNieuw(std::string const& map);
  bool neemInhoudOver();
  bool meldFout(int code) const;

  std::string naam;
  std::string pad;
  Soort soort = Soort::bestand;
  bool isEr = false;
  std::unique_ptr<WegwerpBestand> nieuw;
  int fout = 0;  // the errno of the first write that failed
};
