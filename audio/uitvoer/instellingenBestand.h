// The settings of an output as the configuration file of the window keeps them.
#pragma once

#include <wx/confbase.h>

#include "audio/uitvoer/kestrolinConfig.h"

// Where they stand in that file.
inline constexpr char const* instellingenPad = "/Gebruikersinstellingen/Speex";
inline constexpr char const* vensterPad = "/Configuratie";
inline constexpr char const* encoderSoortSleutel = "Convertertype";  // an EncoderSoort
inline constexpr char const* klasseNaamSleutel = "klasseNaam";

// Reads the settings below the current path of `config`. One that is missing, or is no number,
// stays as it is in `record`.
void leesInstellingen(wxConfigBase const& config, KestrolinConfig& record);

// Writes them all below the current path of `config`.
void schrijfInstellingen(KestrolinConfig const& record, wxConfigBase& config);
