/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Reads PCM arrays.
 *
 *   byte  0     1     2     3     4     5     6     7     8     9    ...
 *       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
 *       | number of samples     | frequency | sample 0  | sample 1  |
 *       | unsigned              | in Hz     | signed    | signed    |
 *       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
 *
 * docs/manual.md defines this layout ("The arrays, byte by byte").
 *
 * All numbers have their low byte first. An array that was made without header has sample 0 in
 * bytes 0 and 1, and ends in six zeros that belong to no sample.
 *
 * Samples are signed and lie around zero, at the width of the DAC that the array was made for;
 * kestrolin_dac.h turns them into what its register takes.
 */
#ifndef KESTROLIN_PCM_H
#define KESTROLIN_PCM_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A place in an array. The fields are for reading. It belongs to one context at a time: see
 * kestrolin_status.h, "Interrupts". */
typedef struct kestrolin_pcm {
  const unsigned char* next; /* low byte of the next sample */
  size_t left;               /* samples not read yet; right after opening, all of them */
  size_t count;              /* samples in the fragment */
  uint16_t rate;             /* samples a second */
} kestrolin_pcm;

/* Opens an array with header, of `size` bytes, which has to be its size exactly.
 *
 * KESTROLIN_TRUNCATED: the array is shorter than its header, or than the header's count asks for.
 * KESTROLIN_CORRUPT: it is longer than that; a frequency of 0, which the tool writes for a file
 * that it could not read.
 *
 * Whatever is returned, the reader is usable: after an error it has no samples. */
kestrolin_status kestrolin_pcm_open(kestrolin_pcm* pcm, const unsigned char* array, size_t size);

/* Opens an array that was made without header. The number of samples follows from `size`; `rate` is
 * the sampling frequency in the comment before the array, in Hz, and is passed on unchecked.
 *
 * KESTROLIN_TRUNCATED: the array is shorter than the six bytes at its end, or ends within a sample.
 */
kestrolin_status kestrolin_pcm_open_headerless(kestrolin_pcm* pcm, const unsigned char* array,
                                               size_t size, uint16_t rate);

/* Goes back to the first sample, so that the fragment can be played again. */
void kestrolin_pcm_rewind(kestrolin_pcm* pcm);

/* Copies the next samples, `room` at most, and returns how many; 0 at the end. */
size_t kestrolin_pcm_read(kestrolin_pcm* pcm, int16_t* samples, size_t room);

#ifdef __cplusplus
}
#endif

#endif
