/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Reads embedded WAV files: arrays that hold a whole file, as "Save As" writes them.
 *
 *   byte  0         4         8         12              20
 *       +---------+---------+---------+-------- ... ---+---- ... --+---- ... --+--
 *       | "RIFF"  | size    | "WAVE"  | "fmt ", size   | format    | chunks    |
 *       +---------+---------+---------+-------- ... ---+---- ... --+---- ... --+--
 *
 * docs/manual.md defines this layout ("The arrays, byte by byte").
 *
 * A chunk is four letters, a size of four bytes, so many bytes of content, and a byte more where
 * that is odd. "fmt " holds, from its byte 0 on
 *
 *   byte  0        2        4            8            12      14      16      18       20
 *       +--------+--------+------------+------------+-------+-------+-------+--------+
 *       | format |channels| frequency  | bytes      | block | bits a|   2   |samples |
 *       | 1, 17  |        | in Hz      | a second   | size  | sample|       |a block |
 *       +--------+--------+------------+------------+-------+-------+-------+--------+
 *
 * with the last two for IMA ADPCM alone, and "data" holds the sound. All numbers are unsigned but
 * for samples, with their low byte first. Format 1 with 16 bits is PCM: samples of two bytes, the
 * channels in turn. Format 17 with 4 bits is IMA ADPCM, in blocks:
 *
 *   byte  0     1     2     3     4      5            7     8
 *       +-----+-----+-----+-----+------+------+-- --+-----+--
 *       | predictor |index|  0  | code | code | ... |     |
 *       | signed    |0..88|     | 1, 2 | 3, 4 |     |     |
 *       +-----+-----+-----+-----+------+------+-- --+-----+--
 *
 * The predictor is sample 0 of the block. With two channels there are two such headers, and behind
 * them four bytes with 8 codes of the one channel, then of the other, in turn. A file has whole
 * blocks: the last one is filled up, mostly with zeros, and its filling is played like the rest.
 *
 * Samples are signed and lie around zero, at the width of the DAC that the array was made for;
 * kestrolin_dac.h turns them into what its register takes. Those of IMA ADPCM may lie a little
 * beyond it.
 */
#ifndef KESTROLIN_WAV_H
#define KESTROLIN_WAV_H

#include "kestrolin_ima.h"

#ifdef __cplusplus
extern "C" {
#endif

#define KESTROLIN_WAV_PCM 1
#define KESTROLIN_WAV_IMA_ADPCM 17
#define KESTROLIN_WAV_IMA_CHANNELS 2

/* A place in an image. The fields are for reading. It belongs to one context at a time: see
 * kestrolin_status.h, "Interrupts". */
typedef struct kestrolin_wav {
  const unsigned char* next; /* PCM: the next sample; IMA ADPCM: the block that it lies in */
  size_t left;               /* samples not read yet, of all channels together */
  size_t count;              /* samples in the sound, of all channels together */
  uint32_t rate;             /* samples a second and channel */
  uint16_t channels;
  uint16_t format;       /* KESTROLIN_WAV_PCM or KESTROLIN_WAV_IMA_ADPCM */
  uint16_t block_size;   /* bytes: of one sample of all channels, or of a block of IMA ADPCM */
  uint16_t block_frames; /* samples a channel in it */
  uint16_t frame;        /* the next of these */
  uint16_t channel;      /* and its channel */
  kestrolin_ima ima[KESTROLIN_WAV_IMA_CHANNELS];
} kestrolin_wav;

/* Finds format and sound in the image of `size` bytes. What lies behind the sound is passed over.
 * Of IMA ADPCM the header of every block is looked at: the time follows the length of the sound, so
 * that this has no place in an interrupt.
 *
 * KESTROLIN_TRUNCATED: the array ends within its header, or within a chunk that is needed or lies
 * before one, or holds no sound at all.
 * KESTROLIN_CORRUPT: no WAV file; no format before the sound; a format that contradicts itself; a
 * block or a sample that is not whole; an index above 88 at the start of a block.
 * KESTROLIN_UNSUPPORTED: neither PCM of 16 bits nor IMA ADPCM of 4; IMA ADPCM of more than two
 * channels; more samples than size_t counts, which may be where it has 16 bits. The tool embeds IMA
 * ADPCM and PCM of 16 bits alone.
 *
 * Whatever is returned, the reader is usable: after an error it has no samples. */
kestrolin_status kestrolin_wav_open(kestrolin_wav* wav, const unsigned char* array, size_t size);

/* Goes back to the first sample, so that the fragment can be played again. */
void kestrolin_wav_rewind(kestrolin_wav* wav);

/* Copies or decodes the next samples, `room` at most, the channels in turn, and returns how many; 0
 * at the end. */
size_t kestrolin_wav_read(kestrolin_wav* wav, int16_t* samples, size_t room);

#ifdef __cplusplus
}
#endif

#endif
