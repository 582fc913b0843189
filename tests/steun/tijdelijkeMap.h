// A directory of a test's own, gone with all that is in it when the test ends.
#pragma once

#include <filesystem>
#include <random>
#include <string>

class TijdelijkeMap {
 public:
  TijdelijkeMap() {
    std::random_device toeval;
    std::filesystem::path const map = std::filesystem::temp_directory_path();
    do {
      plaats = (map / ("kestrolinProef" + std::to_string(toeval()))).u8string();
    } while (!std::filesystem::create_directory(plaats));
  }
  ~TijdelijkeMap() {
    std::error_code fout;
    std::filesystem::remove_all(std::filesystem::u8path(plaats), fout);
  }
  TijdelijkeMap(TijdelijkeMap const&) = delete;
  TijdelijkeMap& operator=(TijdelijkeMap const&) = delete;
  TijdelijkeMap(TijdelijkeMap&&) = delete;
  TijdelijkeMap& operator=(TijdelijkeMap&&) = delete;

  // The full path of the directory, without a separator at its end.
  std::string const& pad() const { return plaats; }
  // The full path of a name in it.
  std::string pad(std::string const& naam) const { return plaats + scheiding + naam; }

 private:
  static constexpr char scheiding = std::filesystem::path::preferred_separator;

  std::string plaats;
};
