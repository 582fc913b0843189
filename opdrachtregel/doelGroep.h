// The files that a command writes: all of them, or none.
#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "opdrachtregel/doel.h"

// Whether the place is none of these files, by whatever path it is reached: what is read is not
// written. One that is was told, with what else to give. Empty paths are none.
bool isGeenInvoer(std::string const& pad, std::vector<std::string> const& invoer, char const* raad);

class DoelGroep {
 public:
  // Adds a file, as Doel::open takes it. The group owns it. Null where it cannot be written, or is
  // in the group already, which was told.
  Doel* voegToe(std::string const& pad, bool aanvullen = false);

  // Puts all files in their places. False where that failed, which was told: then they all are as
  // they were, but for devices, which come first, since nothing can be taken back from them.
  // A signal waits until this is done. Whoever never calls it leaves all files as they are.
  bool legVast();

 private:
  bool plaatsAlle();

  std::vector<std::unique_ptr<Doel>> doelen;
  std::set<std::filesystem::path> plaatsen;
};
