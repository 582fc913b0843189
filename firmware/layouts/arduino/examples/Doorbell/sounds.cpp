/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Takes in the texts that Kestrolin made, each just as it was saved. Their sizes are told here,
 * since no other file knows them. */
#include "sounds.h"

#include "ready.hpp"

const size_t ready_size = sizeof ready;
