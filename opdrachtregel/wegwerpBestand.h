// Files that go when their owner goes, and when a signal ends the program.
#pragma once

#include <csignal>
#include <string>

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

  // One of the files that a signal removes.
  struct Knoop {
    std::string pad;
    Knoop* volgende = nullptr;
  };

 private:
  bool vergeet();

  Knoop knoop;
  int handvat = -1;
};

// The folder for files that go before the program ends: $TMPDIR, or "/tmp".
std::string tijdelijkeMap();

// Tells that no file can be made there, with the reason in errno.
void meldGeenTijdelijk();

// From here on the signals by which a user or a build ends the program remove all files of this
// kind first. A signal that is ignored stays so.
void ruimOpBijSignaal();

// Keeps these signals waiting while it lives.
class SignaalPauze {
 public:
  SignaalPauze();
  ~SignaalPauze();
  SignaalPauze(SignaalPauze const&) = delete;
  SignaalPauze& operator=(SignaalPauze const&) = delete;
  SignaalPauze(SignaalPauze&&) = delete;
  SignaalPauze& operator=(SignaalPauze&&) = delete;

 private:
  sigset_t vorige{};
};
