// The sound device, by a module that is loaded when something is to be played.
#pragma once

#include <wx/dynlib.h>

#include <memory>
#include <optional>
#include <string>

#include "opdrachtregel/geluidSpelen.h"

struct DoelGeluid;

// What else there is to do for who hears nothing.
inline constexpr char const* geluidRemedie =
    "; have decode write WAV files, for another program to play";

class GeluidModule {
 public:
  // Nothing where the module is missing, as in a build without SDL, or cannot be loaded, which was
  // told.
  static std::optional<GeluidModule> laad();

  // Returns when all of it was heard. False where it cannot be, which was told.
  bool speel(DoelGeluid const& geluid) const;

 private:
  explicit GeluidModule(std::string const& pad);

  std::unique_ptr<wxDynamicLibrary> module;
  // Null where the system plays by itself.
  [[maybe_unused]] GeluidFunctie functie = nullptr;
};
