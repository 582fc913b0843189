// The output languages, a row each. The row has all that differs from language to language in the
// generated text; the comments and the end of an array are the same in each. A further language is
// a further row, with its number.
#pragma once

#include <wx/string.h>

#include <array>

// The languages by their row in the language choice of the window. The setting that the
// configuration keeps and the encoders' own language types use these values.
enum UitvoerTaal : int { UitvoerTaalC = 0, UitvoerTaalCPP = 1, UitvoerTaalPython = 2 };

// Patterns have these words in them, and are filled by vulIn: $klasse, the class that owns the
// arrays; $naam, the array; $type, of its elements; $aantal, a number.
struct UitvoerTaalRij {
  UitvoerTaal nummer;
  char const* keuze;     // the label in the window, with its trailing blank
  char const* extensie;  // of a file of source text, without a point
  bool vraagtKlasse;     // nothing is made without the name of a class
  bool krijgtKlasse;     // the options of an encoder have the name of the class in them
  // Patterns. Empty ones leave their line out: a text without an arrayKop has no declarations, no
  // counts, and no comment on the header of an array.
  char const* declaratiesBegin;
  char const* declaratie;  // a line for each array
  char const* declaratiesEinde;
  char const* telling;
  char const* arrayKop;
};

// By their number.
inline constexpr std::array uitvoerTalen{
    UitvoerTaalRij{UitvoerTaalC, "C ", "c", false, false, "", "// extern const $type $naam[];\n",
                   "", "/* const unsigned int $naam=$aantal; */\n", "const $type $naam[] = \n{\n"},
    UitvoerTaalRij{UitvoerTaalCPP, "C++", "cpp", true, true,
                   "// class $klasse\n//{\n\t//private:\n", "// static const $type $naam[];\n",
                   "//};\n", "//const unsigned int $klasse::$naam=$aantal;\n",
                   "const $type $klasse::$naam[] = \n{\n"},
    // Declined where it is chosen; an edited configuration can hold it.
    UitvoerTaalRij{UitvoerTaalPython, "Python", "py", true, true, "", "", "", "", ""},
};

// The row of that number, or null.
UitvoerTaalRij const* zoekUitvoerTaal(int nummer);

// The same. A number that is no language, as an edited configuration can hold, has a row like
// Python's that asks for no class.
UitvoerTaalRij const& uitvoerTaalRij(int nummer);

// True for a language in which arrays can be made.
constexpr bool heeftArrays(UitvoerTaalRij const& taal) {
  return *taal.arrayKop != '\0';
}

// What the words of a pattern stand for.
struct TaalWoorden {
  wxString klasse;
  wxString naam;
  wxString type;
  wxString aantal;
};

// The pattern with its words put in. Inserted text is not searched again: a file called "$naam"
// keeps its name.
wxString vulIn(char const* patroon, TaalWoorden const& woorden);
