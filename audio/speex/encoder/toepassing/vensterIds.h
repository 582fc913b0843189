// The ids of the main window's controls and menu items. The values have gaps, and 1 to 3 are each
// shared by a menu item and controls of other kinds: the toolkit keys an event on its type and id
// together.
#pragma once

enum VensterId : int {
  ID_SPEEL_BRON = 1,
  ID_SPEEL_RESULTAAT = 2,
  ID_CODEER = 3,
  ID_FORMAAT = 3,
  ID_DENOISE = 4,
  ID_QUALITY = 5,
  ID_COMPLEXITY = 6,
  ID_VAD = 7,
  ID_AGC = 8,
  ID_BITRATE_TYPE = 11,
  ID_PERPENH = 12,
  ID_MAX_RATE = 13,
  ID_KLASSE = 14,
  ID_INCL_HEADER = 16,
  ID_DAC_TYPE = 17,
  ID_ENCODER_TYPE = 18,
  ID_LANG_IMPL = 19,
  ID_TEKST = 20,
  ID_RECENT_MENU = 21,
  ID_TAAL = 22,
  ID_RECENT_KOP = 28
};
