/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Walks the frames of a Speex array, for the decoder of libspeex to decode.
 *
 *   byte  0     1     2     3     4      5      ...     5+n0   6+n0   ...
 *       +-----+-----+-----+-----+------+------+-- ... --+------+------+-- ... --+--
 *       | frequency | number of |  n0  | n0 bytes of    |  n1  | n1 bytes of    |
 *       | in Hz     | samples   |      | frame 0        |      | frame 1        |
 *       +-----+-----+-----+-----+------+------+-- ... --+------+------+-- ... --+--
 *
 * docs/manual.md defines this layout ("The arrays, byte by byte").
 *
 * Both numbers are unsigned and have their low byte first. The second one is the low 16 bits of the
 * number of samples; the comment in the array calls it a number of frames, which it is not. The
 * size bytes n0, n1 and so on are unsigned, 0 to 200. Nothing marks the end of the array: its size
 * does. An array that was made without header has n0 in byte 0.
 *
 * A frame gives 160 samples at 8000 Hz, 320 at 16000 Hz and 640 at 32000 Hz, 20 ms each time.
 * Decoded with libspeex:
 *
 *     kestrolin_speex speex;
 *     const char* frame;
 *     int size;
 *     if (kestrolin_speex_open(&speex, array, array_size) == KESTROLIN_OK) {
 *       while (kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_OK) {
 *         speex_bits_read_from(&bits, frame, size);
 *         if (size == 0 || speex_decode_int(decoder, &bits, samples) != 0) {
 *           speex_decode_int(decoder, NULL, samples);
 *         }
 *         ... play speex.frame_samples samples ...
 *       }
 *     }
 *
 * where the decoder is speex_decoder_init of speex_lib_get_mode(speex.mode), with SPEEX_SET_ENH on.
 * A decoder that is given no bits makes up 20 ms out of what it has heard. It has to for a frame of
 * which nothing was kept, and for a damaged one, of which speex_decode_int returns a negative
 * number.
 *
 * The encoder of the tool runs on from file to file, and so may the decoder, over the fragments in
 * the order of the text. A decoder made for one fragment starts from another state than the encoder
 * was in, and settles in some milliseconds. Where that can be heard, begin recordings with silence.
 *
 * What comes out is signed and lies around zero, at the width of the DAC that the array was made
 * for, or a little beyond; kestrolin_dac.h turns it into what the DAC's register takes.
 */
#ifndef KESTROLIN_SPEEX_H
#define KESTROLIN_SPEEX_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A place in an array. The fields are for reading. It belongs to one context at a time: see
 * kestrolin_status.h, "Interrupts". */
typedef struct kestrolin_speex {
  const signed char* next; /* the size byte of the next frame */
  size_t left;             /* bytes from there to the end of the array */
  size_t size;             /* bytes of all frames, with their size bytes */
  uint32_t frames;         /* number of frames in the array */
  uint32_t samples;        /* number of samples in the fragment; without header frames x 160, ... */
  uint16_t rate;           /* samples a second */
  uint16_t frame_samples;  /* samples in a frame */
  uint8_t mode;            /* SPEEX_MODEID_NB, _WB or _UWB: 0, 1 or 2 */
} kestrolin_speex;

/* Opens an array with header, of `size` bytes, exactly: nothing else marks its end. It is walked
 * once from end to end, so that an error shows before the first sound; that has no place in an
 * interrupt.
 *
 * KESTROLIN_TRUNCATED: the array is shorter than its header, or ends within a frame.
 * KESTROLIN_CORRUPT: a frequency that is none of the three; a frame of more than 200 bytes; a
 * number of samples that does not fit the number of frames, or has more than 32 bits.
 *
 * Whatever is returned, the reader is usable: after an error it has no frames. */
kestrolin_status kestrolin_speex_open(kestrolin_speex* speex, const signed char* array,
                                      size_t size);

/* Opens an array that was made without header; `rate` is the sampling frequency in the comment
 * before the array, in Hz. Errors are those of kestrolin_speex_open. */
kestrolin_status kestrolin_speex_open_headerless(kestrolin_speex* speex, const signed char* array,
                                                 size_t size, uint16_t rate);

/* Goes back to the first frame. The decoder of libspeex goes back by SPEEX_RESET_STATE. */
void kestrolin_speex_rewind(kestrolin_speex* speex);

/* Points `frame` at the bytes of the next frame and tells their number, 0 to 200, as
 * speex_bits_read_from takes both. A frame of no bytes stands for 20 ms of which nothing was kept;
 * libspeex makes them up when it is given no bits. On AVR, where arrays lie in flash of its own
 * address space, the bytes have to be copied by KESTROLIN_READ_BYTE.
 *
 * KESTROLIN_END: there are no more; `frame` and `size` stay as they are. The errors of opening
 * cannot come here, unless the fields were changed. */
kestrolin_status kestrolin_speex_next(kestrolin_speex* speex, const char** frame, int* size);

/* The samples that come late by the codec's own delay: so many can be dropped at the start, and the
 * fragment ends where speex->samples have followed them, if the frames go that far. Measured with
 * libspeex 1.2.1. */
uint16_t kestrolin_speex_delay(const kestrolin_speex* speex);

#ifdef __cplusplus
}
#endif

#endif
