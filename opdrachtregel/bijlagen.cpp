#include "opdrachtregel/bijlagen.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "audio/codec/uitvoerTaal.h"
#include "opdrachtregel/paden.h"

namespace fs = std::filesystem;

namespace {

constexpr char const* herkomst = "/* Made by kestrolin-cli; changes are lost. */\n";

bool isCPP(Omgeving const& omgeving) {
  return omgeving.taal == UitvoerTaalCPP;
}

constexpr bool isLetterOfCijfer(char teken) {
  return (teken >= 'a' && teken <= 'z') || (teken >= 'A' && teken <= 'Z') ||
         (teken >= '0' && teken <= '9');
}

// The name of the file in capitals, and what it declares: headers of one name in two folders can be
// included both.
std::string wachter(std::string const& bestand, std::string const& inhoud) {
  std::string naam = fs::u8path(bestand).filename().u8string();
  std::transform(naam.begin(), naam.end(), naam.begin(), [](char teken) {
    if (!isLetterOfCijfer(teken)) {
      return '_';
    }
    return teken >= 'a' ? static_cast<char>(teken - 'a' + 'A') : teken;
  });
  return "KESTROLIN_" + naam + "_" + inhoud;
}

// What stands behind the name of an array, so that it lies where the readers read.
char const* plaats(Omgeving const& omgeving) {
  return omgeving.metFlash ? " KESTROLIN_FLASH;\n" : ";\n";
}

// Compilers for AVR have no header of C++'s own library.
char const* grootteType(Omgeving const& omgeving) {
  return isCPP(omgeving) && !omgeving.metFlash ? "std::size_t " : "size_t ";
}

// Where that comes from.
char const* plaatsKop(Omgeving const& omgeving) {
  return omgeving.metFlash ? "#include \"kestrolin_status.h\"\n\n" : "";
}

std::string standDeclaratie(Omgeving const& omgeving, std::string const& opslag,
                            std::string const& array) {
  return omgeving.metStanden
             ? opslag + " const unsigned char " + standNaam(array) + "[3]" + plaats(omgeving)
             : std::string();
}

std::string declaratiesVanC(Omgeving const& omgeving, std::vector<Declaratie> const& arrays) {
  std::string tekst = std::string("#include <stddef.h>\n\n") + plaatsKop(omgeving) +
                      "#ifdef __cplusplus\nextern \"C\" {\n#endif\n";
  for (Declaratie const& een : arrays) {
    tekst += "\n/* " + een.uitleg + " */\nextern const " + een.type + " " + een.naam + "[]" +
             plaats(omgeving) + "extern const size_t " + grootteNaam(een.naam) + ";\n" +
             standDeclaratie(omgeving, "extern", een.naam);
  }
  return tekst + "\n#ifdef __cplusplus\n}\n#endif\n";
}

std::string declaratiesVanCPP(Omgeving const& omgeving, std::vector<Declaratie> const& arrays) {
  std::string tekst = std::string("#include <") + (omgeving.metFlash ? "stddef.h" : "cstddef") +
                      ">\n\n" + plaatsKop(omgeving) + "class " + omgeving.klasse + " {\n public:\n";
  char const* scheiding = "";
  for (Declaratie const& een : arrays) {
    tekst += scheiding;
    tekst += "  // " + een.uitleg + "\n  static const " + een.type + " " + een.naam + "[]" +
             plaats(omgeving) + "  static const " + grootteType(omgeving) + grootteNaam(een.naam) +
             ";\n" + standDeclaratie(omgeving, "  static", een.naam);
    scheiding = "\n";
  }
  return tekst + "};\n";
}

// Low byte, high byte and index.
std::string standBytes(CoderStand const& stand) {
  auto const bits = static_cast<std::uint16_t>(stand.voorspelling);
  return "{" + std::to_string(bits & 0xFFU) + ", " + std::to_string(bits >> 8U) + ", " +
         std::to_string(stand.index) + "}";
}

// With slashes alone, which are separators on each system.
std::string metSchuineStrepen(std::string pad) {
  std::replace(pad.begin(), pad.end(), static_cast<char>(fs::path::preferred_separator), '/');
  return pad;
}

// As make and ninja both read a name: blanks and # behind a backslash, and a dollar sign twice.
std::string maakNaam(std::string const& pad) {
  std::string naam;
  for (char const teken : metSchuineStrepen(pad)) {
    if (teken == ' ' || teken == '#') {
      naam += '\\';
    }
    naam += teken;
    if (teken == '$') {
      naam += '$';
    }
  }
  return naam;
}

}  // namespace

std::string grootteNaam(std::string const& array) {
  return array + "_size";
}

std::string standNaam(std::string const& array) {
  return array + "_state";
}

std::string declaratieTekst(std::string const& bestand, Omgeving const& omgeving,
                            std::vector<Declaratie> const& arrays) {
  std::string const inhoud = isCPP(omgeving) ? omgeving.klasse : arrays.front().naam;
  std::string const naam = wachter(bestand, inhoud);
  return herkomst + ("#ifndef " + naam) + "\n#define " + naam + "\n\n" +
         (isCPP(omgeving) ? declaratiesVanCPP(omgeving, arrays)
                          : declaratiesVanC(omgeving, arrays)) +
         "\n#endif\n";
}

std::string bronTekst(std::string const& declaraties, std::string const& tekst,
                      Omgeving const& omgeving, std::vector<Declaratie> const& arrays,
                      std::vector<CoderStand> const& standen) {
  std::string bron =
      herkomst + ("#include \"" + declaraties) + "\"\n\n#include \"" + tekst + "\"\n\n";
  std::string const lid = isCPP(omgeving) ? omgeving.klasse + "::" : std::string();
  for (Declaratie const& een : arrays) {
    // Within the initialiser of a member, names are looked up in its class.
    bron += std::string("const ") + grootteType(omgeving) + lid + grootteNaam(een.naam) +
            " = sizeof " + een.naam + ";\n";
  }
  for (std::size_t i = 0; i < std::min(arrays.size(), standen.size()); ++i) {
    bron += "const unsigned char " + lid + standNaam(arrays[i].naam) +
            "[3] = " + standBytes(standen[i]) + ";\n";
  }
  return bron;
}

std::string insluitPad(std::string const& doel, std::string const& bron) {
  fs::path const geheel = volledigPad(doel);
  fs::path const deel = geheel.lexically_relative(volledigPad(bron).parent_path());
  // From one drive to another there is no other way.
  return metSchuineStrepen((deel.empty() ? geheel : deel).u8string());
}

std::string afhankelijkheidTekst(std::string const& doel, std::vector<std::string> const& bronnen) {
  std::string regel = maakNaam(doel) + ":";
  std::string leeg;
  for (std::string const& bron : bronnen) {
    regel += " \\\n  " + maakNaam(bron);
    leeg += "\n" + maakNaam(bron) + ":\n";
  }
  return regel + "\n" + leeg;
}

bool pastInAfhankelijkheden(std::string const& pad) {
  // Both know the colon of a drive.
  std::size_t const schijf = fs::u8path(pad).root_name().u8string().size();
  return metSchuineStrepen(pad).find_first_of("\t\n\r\"'\\%&*:;<=>?[]`|", schijf) ==
         std::string::npos;
}

bool pastInInsluiting(std::string const& pad) {
  return pad.find_first_of("\"\\\n\r") == std::string::npos;
}
