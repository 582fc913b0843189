// A translation catalog that the process uses for the length of a block.
#pragma once

#include <map>
#include <string>

// Texts by their originals, UTF-8.
using Vertalingen = std::map<std::string, std::string>;

class CatalogusInGebruik {
 public:
  // The test fails where the toolkit does not take them.
  explicit CatalogusInGebruik(Vertalingen const& vertalingen);
  // The compiled catalog at this path.
  explicit CatalogusInGebruik(std::string const& mo);
  ~CatalogusInGebruik();
  CatalogusInGebruik(CatalogusInGebruik const&) = delete;
  CatalogusInGebruik& operator=(CatalogusInGebruik const&) = delete;
  CatalogusInGebruik(CatalogusInGebruik&&) = delete;
  CatalogusInGebruik& operator=(CatalogusInGebruik&&) = delete;
};
