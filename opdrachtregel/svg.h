// The elements of an SVG picture, one a line.
#pragma once

#include <string>
#include <vector>

// Pixels, with y downwards.
struct Plek {
  double x;
  double y;
};

// In tenths of a pixel.
std::string svgGetal(double pixels);
// Any UTF-8, as the content of an element.
std::string svgInhoud(std::string const& tekst);

// `opmaak` holds further attributes.
std::string svgTekst(Plek plek, std::string const& tekst, std::string const& opmaak);
std::string svgLijn(std::vector<Plek> const& punten, std::string const& opmaak);
// A path that is drawn around its own origin.
std::string svgVorm(Plek plek, std::string const& pad, std::string const& opmaak);
