// A directory of a test's own, gone with all that is in it when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

class TijdelijkeMap {
 public:
  TijdelijkeMap()
      : plaats((std::filesystem::temp_directory_path() / "kestrolinProefXXXXXX").string()) {
    if (mkdtemp(plaats.data()) == nullptr) {
      std::abort();
    }
  }
  ~TijdelijkeMap() {
    std::error_code fout;
    std::filesystem::remove_all(plaats, fout);
  }
  TijdelijkeMap(TijdelijkeMap const&) = delete;
  TijdelijkeMap& operator=(TijdelijkeMap const&) = delete;
  TijdelijkeMap(TijdelijkeMap&&) = delete;
  TijdelijkeMap& operator=(TijdelijkeMap&&) = delete;

  // The full path of the directory, without a separator at its end.
  std::string const& pad() const { return plaats; }
  // The full path of a name in it.
  std::string pad(std::string const& naam) const { return plaats + "/" + naam; }

 private:
  std::string plaats;
};
