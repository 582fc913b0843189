/* What the readers answer, and the few lines that all of them share.
 *
 * The readers need C99 and nothing else: they allocate nothing, call memcpy, memset and memcmp at
 * most, keep no state but the caller's, and read no byte outside the array whose size they were
 * given, whatever that array holds. An array has to stay in place for as long as a reader stands
 * over it. Two readers may stand over one array.
 *
 * Where size_t has 16 bits, an array of ADPCM above 32 KiB has more samples than can be counted: it
 * gives fewer.
 *
 * On "size": give `sizeof array`. Where the array is only declared, as in a header file, its size
 * has to come from the file that defines it; docs/firmware.md shows how.
 */
#ifndef KESTROLIN_STATUS_H
#define KESTROLIN_STATUS_H

#include <stdint.h>
#include <string.h> /* size_t */

#ifdef __cplusplus
extern "C" {
#endif

typedef enum kestrolin_status {
  KESTROLIN_OK = 0,
  KESTROLIN_END,        /* there is nothing left to give */
  KESTROLIN_TRUNCATED,  /* the array ends before what it says that it holds */
  KESTROLIN_CORRUPT,    /* the array holds what no encoder writes */
  KESTROLIN_UNSUPPORTED /* a sound array, but of a kind that the reader does not decode */
} kestrolin_status;

/* Unsigned numbers of 2 and 4 bytes, low byte first, at any address. */
static inline uint16_t kestrolin_u16(const unsigned char* bytes) {
  return (uint16_t)(bytes[0] | (unsigned)bytes[1] << 8);
}

static inline uint32_t kestrolin_u32(const unsigned char* bytes) {
  return kestrolin_u16(bytes) | (uint32_t)kestrolin_u16(bytes + 2) << 16;
}

/* A signed number of 2 bytes, low byte first. Copied, since C leaves a cast of numbers above 32767
 * to the compiler. */
static inline int16_t kestrolin_s16(const unsigned char* bytes) {
  const uint16_t bits = kestrolin_u16(bytes);
  int16_t number = 0;
  memcpy(&number, &bits, sizeof number);
  return number;
}

#ifdef __cplusplus
}
#endif

#endif
