// What is told of comparisons: as tables for the eye, and as JSON for scripts.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/vergelijking.h"

// A table for each recording, and below them what the figures mean and do not mean.
std::string tabellen(std::vector<Vergelijking> const& vergelijkingen);

std::string json(std::vector<Vergelijking> const& vergelijkingen);

// In tenths of a dB, or "-" where there is no figure.
std::string decibel(std::optional<double> figuur);
