// Paths as each system reads them. Names are UTF-8.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

// The bytes at the start that name no folder which could be made: on Windows a drive, or a machine
// and its share.
std::size_t lengteVanBegin(std::string const& pad);

// From the root on, without dots.
std::filesystem::path volledigPad(std::string const& pad);

// Where a file of this name will be: the end of a chain of links. On Linux also where nothing is
// there yet.
std::string achterLinks(std::string const& naam);
// The same for two names of one place in a folder that is there.
std::filesystem::path plaatsVan(std::string const& map, std::string const& pad);
