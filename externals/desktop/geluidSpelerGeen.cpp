// The build without SDL.
#include "externals/desktop/geluidSpeler.h"

void plaatsGeluidSpeler() {}
