// Waiting for what others do: the window manager, the server, another program.
#pragma once

#include <functional>

// Works events off until that is true, and returns whether it came about. The patience ends only
// where nothing comes any more: no machine is too busy for it.
bool wachtTot(std::function<bool()> const& gebeurd);
