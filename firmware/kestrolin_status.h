/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* What the readers answer, and what all of them share.
 *
 * The readers need C99 and nothing else: they allocate nothing, call memset at most, keep no state
 * but the caller's, and read no byte outside the array whose size they were given, whatever that
 * array holds. An array has to stay in place for as long as a reader stands over it. Two readers
 * may stand over one array.
 *
 * Interrupts. A reader is a plain structure without a lock: it belongs to one context at a time,
 * the main program or one interrupt. To open, start, resume or rewind a reader while an interrupt
 * reads from it is a race. Open a second reader in the main program, and hand it over by one store
 * that the processor does in one piece, such as the byte that tells which of the two is played:
 * firmware/example/prompts.c does so. Most operations take a time that depends on the number of
 * samples asked for alone. Those that walk the whole array say so; they have no place in an
 * interrupt.
 *
 * The target needs a char of 8 bits, and with it uint8_t, int16_t, uint16_t and uint32_t: a
 * signal processor that addresses 16 bits at a time has none. Integers may have 16 bits. Where
 * size_t has 16 bits, an array with more samples than size_t counts is KESTROLIN_UNSUPPORTED.
 *
 * On "size": give `sizeof array`. Where the array is only declared, as in a header file, its size
 * has to come from the file that defines it; docs/firmware.md shows how.
 */
#ifndef KESTROLIN_STATUS_H
#define KESTROLIN_STATUS_H

#include <stdint.h>
#include <string.h> /* size_t */

/* The version of the readers, as numbers and as one that can be compared. */
#define KESTROLIN_READERS_MAJOR 1U
#define KESTROLIN_READERS_MINOR 1U
#define KESTROLIN_READERS_PATCH 0U
#define KESTROLIN_READERS_VERSION \
  ((KESTROLIN_READERS_MAJOR * 10000UL) + (KESTROLIN_READERS_MINOR * 100U) + KESTROLIN_READERS_PATCH)

/* A header of yours, such as -DKESTROLIN_CONFIG='"kestrolin_config.h"', may define the macros below
 * its own way. */
#ifdef KESTROLIN_CONFIG
#include KESTROLIN_CONFIG
#endif

/* How a reader gets the byte of an array that this pointer to unsigned char leads to. By default
 * that is a plain read. AVR has its flash in an address space of its own; there a plain read of an
 * array in flash gives whatever lies in RAM under that number.
 *
 * KESTROLIN_FLASH is what the declaration of an array needs to lie where the readers read:
 *
 *     extern const unsigned char ready[] KESTROLIN_FLASH;
 *
 * in front of the generated text: the definition of the array there takes the attribute over. It is
 * empty where the read is plain. On AVR it is PROGMEM; arrays have to lie in the first 64 KiB of
 * flash, where the linker puts them. KESTROLIN_TABLE and KESTROLIN_TABLE_WORD are the same for
 * tables of the readers themselves.
 *
 * To read arrays from elsewhere, define KESTROLIN_READ_BYTE and KESTROLIN_FLASH both. */
#ifdef __AVR__
#include <avr/pgmspace.h>
#define KESTROLIN_TABLE PROGMEM
#define KESTROLIN_TABLE_WORD(address) pgm_read_word(address)
#ifndef KESTROLIN_READ_BYTE
#define KESTROLIN_READ_BYTE(address) pgm_read_byte(address)
#define KESTROLIN_FLASH PROGMEM
#endif
#else
#define KESTROLIN_TABLE
#define KESTROLIN_TABLE_WORD(address) (*(address))
#ifndef KESTROLIN_READ_BYTE
#define KESTROLIN_READ_BYTE(address) (*(address))
#define KESTROLIN_FLASH
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef enum kestrolin_status {
  KESTROLIN_OK = 0,
  KESTROLIN_END,        /* there is nothing left to give */
  KESTROLIN_TRUNCATED,  /* the array ends before what it says that it holds */
  KESTROLIN_CORRUPT,    /* the array holds what no encoder writes */
  KESTROLIN_UNSUPPORTED /* a sound array, but of a kind or size that the reader does not decode */
} kestrolin_status;

/* Unsigned numbers of 2 and 4 bytes of an array, low byte first, at any address. */
static inline uint16_t kestrolin_u16(const unsigned char* bytes) {
  const uint16_t low = KESTROLIN_READ_BYTE(&bytes[0]);
  const uint16_t high = KESTROLIN_READ_BYTE(&bytes[1]);
  return (uint16_t)(low | ((uint32_t)high << 8U));
}

static inline uint32_t kestrolin_u32(const unsigned char* bytes) {
  const uint32_t low = kestrolin_u16(&bytes[0]);
  const uint32_t high = kestrolin_u16(&bytes[2]);
  return low | (high << 16U);
}

/* A signed number of 2 bytes, low byte first, by arithmetic: C leaves a cast of numbers above 32767
 * to the compiler. */
static inline int16_t kestrolin_s16(const unsigned char* bytes) {
  const int32_t number = (int32_t)kestrolin_u16(bytes);
  return (int16_t)((number < 32768) ? number : (number - 65536));
}

#ifdef __cplusplus
}
#endif

#endif
