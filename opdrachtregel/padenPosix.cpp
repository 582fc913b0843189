#include "opdrachtregel/paden.h"

#include <system_error>

namespace fs = std::filesystem;

std::size_t lengteVanBegin(std::string const& /*pad*/) {
  return 0;
}

fs::path volledigPad(std::string const& pad) {
  std::error_code fout;
  return fs::absolute(fs::u8path(pad), fout).lexically_normal();
}

std::string achterLinks(std::string const& naam) {
  constexpr int meesteLinks = 40;
  fs::path pad = naam;
  std::error_code fout;
  for (int i = 0; i < meesteLinks && fs::is_symlink(fs::symlink_status(pad, fout)); ++i) {
    fs::path const doel = fs::read_symlink(pad, fout);
    pad = doel.is_absolute() ? doel : pad.parent_path() / doel;
  }
  return pad.string();
}

fs::path plaatsVan(std::string const& map, std::string const& pad) {
  std::error_code fout;
  return fs::canonical(map, fout) / fs::path(pad).filename();
}
