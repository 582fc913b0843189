#include "tests/steun/catalogusMaker.h"

#include <cstdint>
#include <filesystem>
#include <fstream>

namespace {

void voegGetalToe(std::string& doel, std::size_t waarde) {
  constexpr unsigned bitsPerByte = 8;
  constexpr std::size_t masker = 0xFF;
  for (unsigned byte = 0; byte < sizeof(std::uint32_t); ++byte) {
    doel += static_cast<char>((waarde >> (byte * bitsPerByte)) & masker);
  }
}

}  // namespace

void maakCatalogus(std::string const& pad, std::map<std::string, std::string> const& teksten) {
  // Seven words of head, then for each original its length and place, for each translation the
  // same, then all texts, each with a zero behind it. Originals stand in the order of their bytes;
  // the empty one translates to the head of the catalog.
  constexpr std::size_t magie = 0x950412DE;
  constexpr std::size_t kopBytes = 28;
  constexpr std::size_t tabelRij = 8;
  std::map<std::string, std::string> alles = teksten;
  alles[""] = "Content-Type: text/plain; charset=UTF-8\n";

  std::size_t const origineelTabel = kopBytes;
  std::size_t const vertaalTabel = origineelTabel + tabelRij * alles.size();
  std::size_t const tekstPlaats = vertaalTabel + tabelRij * alles.size();
  std::string originelen;
  std::string vertalingen;
  std::string data;
  auto const voegTekstToe = [&data, tekstPlaats](std::string& tabel, std::string const& tekst) {
    voegGetalToe(tabel, tekst.size());
    voegGetalToe(tabel, tekstPlaats + data.size());
    data += tekst + '\0';
  };
  for (auto const& [origineel, vertaling] : alles) {
    voegTekstToe(originelen, origineel);
    voegTekstToe(vertalingen, vertaling);
  }

  std::string inhoud;
  for (std::size_t const getal : {magie, std::size_t{0}, alles.size(), origineelTabel, vertaalTabel,
                                  std::size_t{0}, tekstPlaats}) {
    voegGetalToe(inhoud, getal);
  }
  std::filesystem::create_directories(std::filesystem::path(pad).parent_path());
  std::ofstream(std::filesystem::u8path(pad), std::ios::binary)
      << inhoud << originelen << vertalingen << data;
}
