// What the tests of the converters share: the text that comes out of a stream, and the text that is
// expected, put together here by other means than the writer's.
#pragma once

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <string>
#include <vector>

#include "tests/steun/bytes.h"
#include "tests/steun/wavMaker.h"

wxString wxTekst(std::string const& utf8);
wxFileName bestandsnaam(std::string const& pad);

// `aantal` values over the whole 16-bit range.
std::vector<int> golf(std::size_t aantal);

std::string tekstVan(wxMemoryOutputStream const& stroom);

// The text with its one line of date and time replaced by momentRegel; the test fails where that
// line is not there, or has another shape than "2024-01-31 : 09:05:00".
std::string zonderMoment(std::string const& tekst);
// The same for a text of any number of fragments. A line of another shape stays.
std::string zonderMomenten(std::string const& tekst);
extern std::string const momentRegel;

// Compares whole texts; the failure shows the first line that differs and not all of both.
testing::AssertionResult zelfdeTekst(std::string const& gevonden, std::string const& verwacht);

// The bytes that an array holds: the six of the header, or six zeros behind the samples.
Bytes verwachtBeeld(std::vector<int> const& samples, int rate, bool metHeader);

// Runs a line of shell in a directory; what it says goes into the failure.
testing::AssertionResult luktIn(std::string const& map, std::string const& opdracht);

// Each value divided by `deler`, toward zero.
std::vector<int> gedeeld(std::vector<int> waarden, int deler);

struct VerwachteTekst {
  int taal = 0;
  bool metHeader = true;
  std::string klasse;
  std::string naam = "toon";
  std::string bestand = "toon.wav";
  int rate = 8000;
  int frames = 0;
  std::vector<int> samples;  // as they stand in a PCM array
};

// A line of its own with a count, under the array's name with `achtervoegsel` behind it.
struct VerwachteTelling {
  std::string achtervoegsel;
  std::size_t aantal;
};

// The text of one fragment with momentRegel in it: with these counts and these bytes in its array,
// or those of PCM.
std::string maakVerwachteTekst(VerwachteTekst const& gegevens,
                               std::vector<VerwachteTelling> const& tellingen, Bytes const& beeld);
std::string maakVerwachteTekst(VerwachteTekst const& gegevens);

// The seconds of a fragment, in whole hundredths with the half going up: no test has a tie.
std::string verwachteDuur(int frames, int rate);

// The rows of an array.
std::string verwachteRijen(Bytes const& bytes);
