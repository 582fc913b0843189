#include "tests/firmware/fuzzInput.h"
#include "tests/firmware/outputRules.h"
#include "tests/steun/fuzzDoel.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t aantal) {
  demand(outputRules, bytes, aantal);
  return 0;
}
