// Files that go when their owner goes, and when a signal ends the program.
#pragma once

#include <memory>
#include <string>
#include <vector>

// One of the files and folders that a signal removes.
struct WegwerpKnoop {
  std::string pad;
  bool isMap = false;
  WegwerpKnoop* volgende = nullptr;
};

class WegwerpBestand {
 public:
  // Makes a new, empty file in the folder `map`, for this user alone. Where that fails the file is
  // not open, and errno tells why.
  explicit WegwerpBestand(std::string const& map);
  ~WegwerpBestand();
  WegwerpBestand(WegwerpBestand const&) = delete;
  WegwerpBestand& operator=(WegwerpBestand const&) = delete;
  WegwerpBestand(WegwerpBestand&&) = delete;
  WegwerpBestand& operator=(WegwerpBestand&&) = delete;

  bool isOpen() const { return handvat >= 0; }
  // The open file, to read and to write.
  int geefHandvat() const { return handvat; }
  std::string const& geefPad() const { return knoop.pad; }

  // Closes the file, which stays. False, with errno, where the disk tells only now that it has not
  // taken all.
  bool sluit();
  // Gives the closed file the name `doel`, in place of what has it, in one step. It is the owner's
  // no more then. False, with errno, where that fails.
  bool hernoem(std::string const& doel);

 private:
  WegwerpKnoop knoop;
  int handvat = -1;
};

// A folder for what is to come. Where it is missing it is made, with those above it.
class WegwerpMap {
 public:
  explicit WegwerpMap(std::string const& pad);
  // Removes what it made and nothing was put into.
  ~WegwerpMap();
  WegwerpMap(WegwerpMap const&) = delete;
  WegwerpMap& operator=(WegwerpMap const&) = delete;
  WegwerpMap(WegwerpMap&&) = delete;
  WegwerpMap& operator=(WegwerpMap&&) = delete;

  bool isEr() const { return fout == 0; }
  // The errno that tells why it is not there.
  int geefFout() const { return fout; }

 private:
  WegwerpMap() = default;

  // One folder of it. False where it is not there then.
  bool maak(std::string const& pad);

  // Outermost first.
  std::vector<std::unique_ptr<WegwerpKnoop>> gemaakt;
  int fout = 0;
};

// Tells that no file can be made there, with the reason in errno.
void meldGeenTijdelijk();

// Removes all of these files now, where the program ends without letting go of what it owns. False
// where one may not be removed yet: on Windows, another part of the program has it open.
bool ruimNuOp();
