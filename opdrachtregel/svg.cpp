#include "opdrachtregel/svg.h"

#include <array>
#include <cstdio>

#include "opdrachtregel/melding.h"

std::string svgGetal(double pixels) {
  std::array<char, 32> tekst{};
  static_cast<void>(std::snprintf(tekst.data(), tekst.size(), "%.1f", pixels));
  return tekst.data();
}

std::string svgInhoud(std::string const& tekst) {
  std::string uit;
  for (char const teken : opEenRegel(tekst)) {
    switch (teken) {
      case '&':
        uit += "&amp;";
        break;
      case '<':
        uit += "&lt;";
        break;
      case '>':
        uit += "&gt;";
        break;
      default:
        uit += teken;
    }
  }
  return uit;
}

std::string svgTekst(Plek plek, std::string const& tekst, std::string const& opmaak) {
  return "<text x=\"" + svgGetal(plek.x) + "\" y=\"" + svgGetal(plek.y) + "\" " + opmaak + ">" +
         svgInhoud(tekst) + "</text>\n";
}

std::string svgLijn(std::vector<Plek> const& punten, std::string const& opmaak) {
  std::string uit = "<polyline fill=\"none\" " + opmaak + " points=\"";
  for (Plek const& punt : punten) {
    uit.append(svgGetal(punt.x)).append(",").append(svgGetal(punt.y)).append(" ");
  }
  return uit + "\"/>\n";
}

std::string svgVorm(Plek plek, std::string const& pad, std::string const& opmaak) {
  return "<path transform=\"translate(" + svgGetal(plek.x) + "," + svgGetal(plek.y) + ")\" d=\"" +
         pad + "\" " + opmaak + "/>\n";
}
