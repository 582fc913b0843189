// Pictures of the screen as another program sees it: over a connection of its own to the display,
// which the toolkit under test does not know of. What that has not sent yet is not in them.
#pragma once

#include <set>
#include <vector>

struct SchermDeel {
  int x;
  int y;
  int breedte;
  int hoogte;
};

// The pixels of one line each.
using SchermBeeld = std::vector<std::vector<unsigned long>>;

// Empty where there is no display.
SchermBeeld leesScherm(SchermDeel const& deel);

// The lines in which two pictures of one size differ.
std::set<int> andereLijnen(SchermBeeld const& een, SchermBeeld const& ander);
// True for a picture of one colour.
bool isEffen(SchermBeeld const& beeld);
