#include "bench/xxd.h"

#include <unistd.h>

int draaiXxd(std::string const& bestand, std::string const& uit) {
  execlp("xxd", "xxd", "-i", bestand.c_str(), uit.c_str(), nullptr);
  return 1;
}
