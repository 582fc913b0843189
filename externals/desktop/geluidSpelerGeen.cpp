// Builds without SDL.
#include "externals/desktop/geluidSpeler.h"

void plaatsGeluidSpeler() {}
