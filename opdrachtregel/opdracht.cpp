#include "opdrachtregel/opdracht.h"

#include <CLI/CLI.hpp>

bool Opdracht::isGevraagd() const {
  return app->parsed();
}
