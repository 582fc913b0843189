/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Reads ADPCM arrays, decoding as many samples at a time as the caller has room for.
 *
 *   byte  0     1     2     3     4     5     6     7     8     9     10   ...
 *       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
 *       | number of code bytes  | frequency | predictor |index| code| code|
 *       | unsigned              | in Hz     | signed    |     | 0, 1| 2, 3|
 *       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
 *
 *   a byte of code:     bit 7       4 3       0
 *                          +---------+---------+
 *                          | sample  | sample  |
 *                          | 2n + 1  | 2n      |
 *                          +---------+---------+
 *
 * docs/manual.md defines this layout ("The arrays, byte by byte").
 *
 * All numbers have their low byte first. The comment before the array tells another layout, that of
 * PCM arrays; this one is right. An array that was made without header has its first code byte in
 * byte 0, and ends in nine zeros that belong to no sample.
 *
 * Predictor and index are what the decoder starts from. Every array says 0 and 0, which is true of
 * the first fragment that the tool encoded after its start: its encoder runs on from one fragment
 * to the next. For the others see kestrolin_adpcm_start and kestrolin_adpcm_resume, or end each
 * fragment with 96 samples of silence: they bring the encoder back to 0 and 0.
 *
 * Samples lie around zero, at the scale that the encoder worked at: it takes the low byte of each
 * sample of the file, and divides that down as the width of the DAC asks for. Made for a DAC of 16
 * bits they are 8 bits wide, for 12 bits 4, for 10 bits 2. kestrolin_dac.h turns them into what the
 * DAC's register takes.
 */
#ifndef KESTROLIN_ADPCM_H
#define KESTROLIN_ADPCM_H

#include "kestrolin_ima.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A place in an array; 24 bytes where pointers have four. The fields are for reading. It belongs to
 * one context at a time: see kestrolin_status.h, "Interrupts". */
typedef struct kestrolin_adpcm {
  const unsigned char* next; /* the byte of the next code */
  size_t left;               /* samples not decoded yet; right after opening, all of them */
  size_t count;              /* samples in the fragment */
  kestrolin_ima ima;         /* the decoder's state before the next code */
  kestrolin_ima start;       /* before the first one */
  uint16_t rate;             /* samples a second */
} kestrolin_adpcm;

/* Opens an array with header, of `size` bytes, which has to be its size exactly.
 *
 * KESTROLIN_TRUNCATED: the array is shorter than its header, or than the header's count asks for.
 * KESTROLIN_CORRUPT: it is longer than that; an index above 88; a frequency of 0, which the tool
 * writes for a file that it could not read.
 * KESTROLIN_UNSUPPORTED: more samples than size_t counts: above 32 KiB where it has 16 bits.
 *
 * Whatever is returned, the reader is usable: after an error it has no samples. */
kestrolin_status kestrolin_adpcm_open(kestrolin_adpcm* adpcm, const unsigned char* array,
                                      size_t size);

/* Opens an array that was made without header, to start from predictor 0 and index 0. The number of
 * samples follows from `size`; `rate` is the sampling frequency in the comment before the array, in
 * Hz, and is passed on unchecked.
 *
 * KESTROLIN_TRUNCATED: the array is shorter than the nine bytes at its end.
 * KESTROLIN_UNSUPPORTED: more samples than size_t counts: above 32 KiB where it has 16 bits. */
kestrolin_status kestrolin_adpcm_open_headerless(kestrolin_adpcm* adpcm, const unsigned char* array,
                                                 size_t size, uint16_t rate);

/* Lets a freshly opened reader start from a known state, so that a fragment can be played alone
 * which the tool did not encode first. `state` has three bytes, laid out as predictor and index in
 * an array's header, and lies where arrays lie. "kestrolin-cli encode --states" prints them.
 *
 * KESTROLIN_CORRUPT: an index above 88; the reader stays as it is. */
kestrolin_status kestrolin_adpcm_start(kestrolin_adpcm* adpcm, const unsigned char* state);

/* Lets a freshly opened reader go on from the state that another one ended in, as the encoder did.
 * `before` stands at the end of the fragment before this one in the text, and was itself resumed
 * from the one before that, back to the first fragment of the first run. */
void kestrolin_adpcm_resume(kestrolin_adpcm* adpcm, const kestrolin_adpcm* before);

/* Goes back to the first sample, and to the state that it starts from, so that the fragment can be
 * played again. */
void kestrolin_adpcm_rewind(kestrolin_adpcm* adpcm);

/* Decodes the next samples, `room` at most, and returns how many; 0 at the end. */
size_t kestrolin_adpcm_read(kestrolin_adpcm* adpcm, int16_t* samples, size_t room);

#ifdef __cplusplus
}
#endif

#endif
