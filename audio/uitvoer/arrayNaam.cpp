#include "audio/uitvoer/arrayNaam.h"

#include <algorithm>
#include <array>

#include "audio/codec/uitvoerTaal.h"

namespace {

// Of both languages, with what <stddef.h> and main() take.
constexpr std::array<std::string_view, 51> gedeeldeWoorden{
    "NULL",        "alignas",       "alignof",   "auto",     "bool",         "break",   "case",
    "char",        "const",         "constexpr", "continue", "default",      "do",      "double",
    "else",        "enum",          "extern",    "false",    "float",        "for",     "goto",
    "if",          "inline",        "int",       "long",     "main",         "nullptr", "offsetof",
    "ptrdiff_t",   "register",      "return",    "short",    "signed",       "size_t",  "sizeof",
    "static",      "static_assert", "struct",    "switch",   "thread_local", "true",    "typedef",
    "union",       "unsigned",      "void",      "volatile", "wchar_t",      "while",   "asm",
    "max_align_t", "typeof"};

// C17 and C23.
constexpr std::array<std::string_view, 2> woordenVanC{"restrict", "typeof_unqual"};

// C++20.
constexpr std::array<std::string_view, 49> woordenVanCPP{
    "and",       "and_eq",       "bitand",      "bitor",     "catch",     "char16_t",
    "char32_t",  "char8_t",      "class",       "co_await",  "co_return", "co_yield",
    "compl",     "concept",      "const_cast",  "consteval", "constinit", "decltype",
    "delete",    "dynamic_cast", "explicit",    "export",    "friend",    "mutable",
    "namespace", "new",          "noexcept",    "not",       "not_eq",    "operator",
    "or",        "or_eq",        "private",     "protected", "public",    "reinterpret_cast",
    "std",       "requires",     "static_cast", "template",  "this",      "throw",
    "try",       "typeid",       "typename",    "using",     "virtual",   "xor",
    "xor_eq"};

template <typename Woorden>
bool heeft(Woorden const& woorden, std::string_view naam) {
  return std::find(woorden.begin(), woorden.end(), naam) != woorden.end();
}

constexpr bool isHoofdletter(char teken) {
  return teken >= 'A' && teken <= 'Z';
}

constexpr bool isCijfer(char teken) {
  return teken >= '0' && teken <= '9';
}

constexpr bool isNaamTeken(char teken) {
  return (teken >= 'a' && teken <= 'z') || isHoofdletter(teken) || isCijfer(teken) || teken == '_';
}

bool isVanCompiler(std::string_view naam) {
  return naam.find("__") != std::string_view::npos ||
         (naam.size() > 1 && naam[0] == '_' && isHoofdletter(naam[1]));
}

}  // namespace

bool isBruikbareNaam(std::string_view naam, int taal) {
  if (naam.empty() || isCijfer(naam.front()) ||
      !std::all_of(naam.begin(), naam.end(), isNaamTeken) || isVanCompiler(naam) ||
      heeft(gedeeldeWoorden, naam)) {
    return false;
  }
  return taal == UitvoerTaalC ? !heeft(woordenVanC, naam) : !heeft(woordenVanCPP, naam);
}
