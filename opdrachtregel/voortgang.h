// The progress of a command, on a terminal.
#pragma once

#include <chrono>
#include <string>

#include "audio/uitvoer/uitvoerRun.h"

class Voortgang : public RunToezicht {
 public:
  // A run over `aantal` files, which the line calls `wat`, that begins now. The line shows how far
  // it is once it lasts for so long.
  Voortgang(std::size_t aantal, char const* wat,
            std::chrono::milliseconds langeDuur = std::chrono::milliseconds(500));
  // Takes the line away.
  ~Voortgang() override;
  Voortgang(Voortgang const&) = delete;
  Voortgang& operator=(Voortgang const&) = delete;
  Voortgang(Voortgang&&) = delete;
  Voortgang& operator=(Voortgang&&) = delete;

  void meldNietHeel(wxString const& wav) override;
  // Shows the line, where standard error is a terminal.
  void meldGedaan(std::size_t nummer) override;

 private:
  std::size_t totaal;
  char const* naam;
  std::chrono::milliseconds geduld;
  bool isTerminal;
  std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
};
