// The output languages, by their index in the language choice of the window. The setting that the
// configuration keeps, the encoders' own language types and the writer of fragment text all use
// these values; every other value means a text without declarations and without heads of arrays.
#pragma once

enum UitvoerTaal : int { UitvoerTaalC = 0, UitvoerTaalCPP = 1, UitvoerTaalPython = 2 };
