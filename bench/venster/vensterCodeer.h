// What Encode costs in the window, from the click to the message of success, against a bare window
// that loads the same text.
#pragma once

class VensterProces;

// Prints a line a figure; false where a goal is missed. What is long is left out, with a word,
// where memory lacks.
bool meetVensterCodeer(VensterProces const& proces);
