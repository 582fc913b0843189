// Another program that a test starts: its words and surroundings, the signals that it is sent, and
// its end.
#pragma once

#include <sys/types.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

struct ProgrammaVraag {
  std::vector<std::string> woorden;  // the program first, looked up in PATH
  std::string map = ".";             // where it runs
  // "NAME=value" beside the variables of the test, or in place of that one.
  std::vector<std::string> omgeving{};
  int uitvoer = -1;  // an open file for its standard output, which is kept where there is none
};

struct ProgrammaEinde {
  int status = -1;    // what it returned; -1 where a signal ended it
  int signaal = 0;    // the one that ended it
  std::string uit{};  // its standard output, where that was kept
  std::string fout{};
};

class Programma {
 public:
  explicit Programma(ProgrammaVraag const& vraag);
  // Ends it where it runs still.
  ~Programma();
  Programma(Programma const&) = delete;
  Programma& operator=(Programma const&) = delete;
  Programma(Programma&&) = delete;
  Programma& operator=(Programma&&) = delete;

  pid_t geefPid() const { return pid; }
  void stuur(int signaal) const;
  // Whether it has not ended yet.
  bool loopt();
  ProgrammaEinde wacht();

 private:
  struct Sluiter {
    void operator()(std::FILE* bestand) const { static_cast<void>(std::fclose(bestand)); }
  };
  using Bestand = std::unique_ptr<std::FILE, Sluiter>;

  static std::string inhoud(Bestand const& bestand);

  Bestand uit;
  Bestand fout;
  pid_t pid = -1;
  int einde = 0;
  bool isGeeindigd = true;
};

// From its start to its end.
ProgrammaEinde draai(ProgrammaVraag const& vraag);
