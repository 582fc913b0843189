// Hands the files named on the command line, and all files of the folders named, to the fuzz target
// once: every build replays the corpus so, without a fuzzing engine.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <vector>

#include "tests/steun/bytes.h"
#include "tests/steun/fuzzDoel.h"

namespace {

std::vector<std::filesystem::path> bestanden(std::filesystem::path const& pad) {
  if (!std::filesystem::is_directory(pad)) {
    return {pad};
  }
  std::vector<std::filesystem::path> gevonden;
  std::copy(std::filesystem::directory_iterator(pad), {}, std::back_inserter(gevonden));
  std::sort(gevonden.begin(), gevonden.end());
  return gevonden;
}

}  // namespace

int main(int aantal, char** woorden) {
  std::vector<std::filesystem::path> paden;
  std::for_each(woorden + 1, woorden + aantal, [&](char const* woord) {
    std::vector<std::filesystem::path> const deel = bestanden(woord);
    paden.insert(paden.end(), deel.begin(), deel.end());
  });
  for (std::filesystem::path const& pad : paden) {
    // Before the call: it may be the last.
    std::cout << pad.filename().string() << std::endl;
    Bytes const bytes = leesBytes(pad.string());
    if (bytes.empty()) {
      std::cerr << "nothing to read\n";
      return 1;
    }
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::cout << paden.size() << " inputs\n";
  return paden.empty() ? 1 : 0;
}
