// What every program of benchmarks stands on: the toolkit, and a folder for its files.
#pragma once

#include <functional>
#include <string>

// Runs `meet` with the path of a new folder, which goes behind it, and returns the status to end
// with: 1 where `meet` returns false or there is no folder.
int inWerkMap(std::function<bool(std::string const&)> const& meet);
