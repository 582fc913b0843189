// What the start of the window costs, against bare windows.
#pragma once

class VensterProces;

// Prints a line a figure; false where a goal is missed.
bool meetVensterStart(VensterProces const& proces);
