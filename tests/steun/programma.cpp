#include "tests/steun/programma.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace {

std::string naamVan(std::string const& variabele) {
  return variabele.substr(0, variabele.find('=') + 1);
}

std::vector<std::string> omgevingMet(std::vector<std::string> const& eigen) {
  std::vector<std::string> alle = eigen;
  for (char* const* een = environ; *een != nullptr; ++een) {
    std::string const naam = naamVan(*een);
    if (std::none_of(eigen.begin(), eigen.end(),
                     [&naam](std::string const& ander) { return naamVan(ander) == naam; })) {
      alle.emplace_back(*een);
    }
  }
  return alle;
}

std::vector<char*> wijzers(std::vector<std::string>& teksten) {
  std::vector<char*> rij(teksten.size() + 1, nullptr);
  std::transform(teksten.begin(), teksten.end(), rij.begin(),
                 [](std::string& tekst) { return tekst.data(); });
  return rij;
}

}  // namespace

Programma::Programma(ProgrammaVraag const& vraag) : uit(std::tmpfile()), fout(std::tmpfile()) {
  posix_spawn_file_actions_t daden{};
  posix_spawn_file_actions_init(&daden);
  posix_spawn_file_actions_addopen(&daden, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&daden, vraag.uitvoer < 0 ? fileno(uit.get()) : vraag.uitvoer,
                                   STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&daden, fileno(fout.get()), STDERR_FILENO);
  posix_spawn_file_actions_addchdir_np(&daden, vraag.map.c_str());
  // The test's own answers to signals are not the program's.
  posix_spawnattr_t aard{};
  posix_spawnattr_init(&aard);
  sigset_t alle;
  sigset_t geen;
  sigfillset(&alle);
  sigemptyset(&geen);
  posix_spawnattr_setsigdefault(&aard, &alle);
  posix_spawnattr_setsigmask(&aard, &geen);
  posix_spawnattr_setflags(&aard, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);

  std::vector<std::string> woorden = vraag.woorden;
  std::vector<std::string> omgeving = omgevingMet(vraag.omgeving);
  int const code = posix_spawnp(&pid, woorden.at(0).c_str(), &daden, &aard, wijzers(woorden).data(),
                                wijzers(omgeving).data());
  isGeeindigd = code != 0;
  EXPECT_EQ(code, 0) << vraag.woorden[0] << ": " << std::strerror(code);
  posix_spawnattr_destroy(&aard);
  posix_spawn_file_actions_destroy(&daden);
}

Programma::~Programma() {
  if (!isGeeindigd) {
    stuur(SIGKILL);
    wacht();
  }
}

void Programma::stuur(int signaal) const {
  EXPECT_EQ(kill(pid, signaal), 0) << std::strerror(errno);
}

bool Programma::loopt() {
  isGeeindigd = isGeeindigd || waitpid(pid, &einde, WNOHANG) == pid;
  return !isGeeindigd;
}

ProgrammaEinde Programma::wacht() {
  while (!isGeeindigd) {
    isGeeindigd = waitpid(pid, &einde, 0) == pid || errno != EINTR;
  }
  return {WIFEXITED(einde) ? WEXITSTATUS(einde) : -1, WIFSIGNALED(einde) ? WTERMSIG(einde) : 0,
          inhoud(uit), inhoud(fout)};
}

std::string Programma::inhoud(Bestand const& bestand) {
  std::string gelezen;
  std::rewind(bestand.get());
  for (int teken = std::fgetc(bestand.get()); teken != EOF; teken = std::fgetc(bestand.get())) {
    gelezen += static_cast<char>(teken);
  }
  return gelezen;
}

ProgrammaEinde draai(ProgrammaVraag const& vraag) {
  return Programma(vraag).wacht();
}
