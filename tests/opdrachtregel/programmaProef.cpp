#include "tests/opdrachtregel/programmaProef.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "tests/steun/bytes.h"

namespace fs = std::filesystem;

namespace {

// In the child: a file in the place of one of its channels.
void leidOm(std::string const& pad, int kanaal) {
  constexpr mode_t rechten = 0600;
  dup2(open(pad.c_str(), O_WRONLY | O_CREAT | O_TRUNC, rechten), kanaal);
}

}  // namespace

ProgrammaProef::ProgrammaProef() : omgeving{{"SOURCE_DATE_EPOCH", ""}, {"TMPDIR", map.pad("tmp")}} {
  fs::create_directory(map.pad("tmp"));
}

Afloop ProgrammaProef::voer(std::vector<std::string> const& woorden) const {
  std::vector<char const*> argumenten{"kestrolin-cli"};
  std::transform(woorden.begin(), woorden.end(), std::back_inserter(argumenten),
                 [](std::string const& woord) { return woord.c_str(); });
  argumenten.push_back(nullptr);
  std::string const uit = kanalen.pad("uit");
  std::string const fouten = kanalen.pad("fouten");
  pid_t const kind = fork();
  if (kind == 0) {
    leidOm(uit, STDOUT_FILENO);
    leidOm(fouten, STDERR_FILENO);
    for (auto const& [naam, waarde] : omgeving) {
      waarde.empty() ? unsetenv(naam.c_str()) : setenv(naam.c_str(), waarde.c_str(), 1);
    }
    if (zonderVoorrecht) {
      prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
    }
    if (chdir(map.pad().c_str()) == 0) {
      // The call takes the words as they are, and changes none.
      execv(KESTROLIN_CLI, const_cast<char* const*>(argumenten.data()));
    }
    _exit(127);
  }
  int status = 0;
  waitpid(kind, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, WIFSIGNALED(status) ? WTERMSIG(status) : 0,
          leesTekst(uit), leesTekst(fouten)};
}

std::string ProgrammaProef::tekst(std::string const& naam) const {
  return leesTekst(map.pad(naam));
}

std::vector<std::string> ProgrammaProef::inhoud() const {
  std::vector<std::string> namen;
  for (fs::directory_entry const& deel : fs::recursive_directory_iterator(map.pad())) {
    std::string const naam = deel.path().lexically_relative(map.pad()).string();
    std::error_code lus;
    if (naam != "tmp" || !fs::is_empty(deel.path())) {
      namen.push_back(deel.is_directory(lus) ? naam + "/" : naam);
    }
  }
  std::sort(namen.begin(), namen.end());
  return namen;
}
