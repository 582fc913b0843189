#include "kestrolin_dac.h"

uint16_t kestrolin_dac_code_from(int16_t sample, unsigned bits, kestrolin_dac_width width) {
  const unsigned narrow = kestrolin_dac_bits(bits);
  const int32_t mid = (int32_t)1 << (narrow - 1);
  int32_t code = sample + mid;
  if (code < 0) {
    code = 0;
  } else if (code > 2 * mid - 1) {
    code = 2 * mid - 1;
  }
  const unsigned wide = kestrolin_dac_bits(width);
  return (uint16_t)(wide > narrow ? (unsigned)code << (wide - narrow)
                                  : (unsigned)code >> (narrow - wide));
}

uint16_t kestrolin_dac_code(int16_t sample, kestrolin_dac_width width) {
  return kestrolin_dac_code_from(sample, (unsigned)width, width);
}

void kestrolin_dac_codes(uint16_t* codes, const int16_t* samples, size_t count,
                         kestrolin_dac_width width) {
  for (size_t i = 0; i < count; ++i) {
    codes[i] = kestrolin_dac_code(samples[i], width);
  }
}
