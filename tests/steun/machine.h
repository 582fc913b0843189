// What the machine that tests run on has, where it stands in the way of a test that wants it
// missing.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

// Whether any of the folders that lie in these is as it is asked for.
template <typename Eis>
bool heeftMap(std::filesystem::path const& map, Eis const& eis) {
  std::error_code fout;
  std::filesystem::directory_iterator const mappen(map, fout);
  return std::any_of(begin(mappen), end(mappen), [&](std::filesystem::directory_entry const& deel) {
    return eis(deel.path());
  });
}

// Kestrolin is installed with this prefix: the toolkit looks for catalogs in /usr, and before those
// of a test in /usr/local, wherever the program lies.
inline bool heeftCatalogi(std::filesystem::path const& prefix) {
  return heeftMap(prefix / "share/locale", [](std::filesystem::path const& taal) {
    return std::filesystem::exists(taal / "LC_MESSAGES/Velmoradesktop.mo");
  });
}
inline bool heeftCatalogi() {
  return heeftCatalogi("/usr") || heeftCatalogi("/usr/local");
}

// Locales lie in folders, as of the package locales-all, and not in one archive: the C library
// finds them behind those of LOCPATH.
inline bool heeftLocaleMappen() {
  return heeftMap("/usr/lib/locale", [](std::filesystem::path const& locale) {
    return std::filesystem::exists(locale / "LC_CTYPE") &&
           locale.filename().string().rfind("C.", 0) != 0;
  });
}
