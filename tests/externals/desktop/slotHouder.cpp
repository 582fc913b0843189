#include "tests/externals/desktop/slotHouder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

SlotHouder::SlotHouder(std::string const& naam) {
  std::array<int, 2> heen{};
  std::array<int, 2> terug{};
  if (pipe2(heen.data(), O_CLOEXEC) != 0 || pipe2(terug.data(), O_CLOEXEC) != 0) {
    return;
  }
  kind = fork();
  if (kind == 0) {
    dup2(heen[0], STDIN_FILENO);
    dup2(terug[1], STDOUT_FILENO);
    execl("/proc/self/exe", "slotHouder", slotOptie, naam.c_str(), static_cast<char*>(nullptr));
    _exit(1);
  }
  close(heen[0]);
  close(terug[1]);
  invoer = heen[1];
  char antwoord = slotBezet;
  genomen = read(terug[0], &antwoord, 1) == 1 && antwoord == slotGenomen;
  close(terug[0]);
}

SlotHouder::~SlotHouder() {
  close(invoer);
  if (kind > 0) {
    waitpid(kind, nullptr, 0);
  }
}
