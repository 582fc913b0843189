// What a windowless test program has around its tests: the toolkit started, an assertion of the
// toolkit that fails the test it happens in, and a log that is kept instead of shown.
#pragma once

#include <vector>

#include "tests/steun/logboek.h"

// What was logged since the last call; the call empties the record. Every test starts with an empty
// one.
std::vector<LogRegel> neemLog();
