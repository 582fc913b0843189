/* Plays the fragments of a program as firmware would, the same on host and target: opens each with
 * its reader, reads it in pieces of uneven size, and emits all that it finds. Numbers of 2 and 4
 * bytes, low byte first:
 *
 *   stream      4  number of fragments
 *               .  the fragments
 *
 *   fragment    2  status of opening
 *               4  samples a second
 *               2  channels
 *               4  number of samples
 *               4  number of Speex frames
 *               2  samples in a Speex frame
 *               2  Speex mode
 *               2  Speex delay
 *               .  the pieces
 *               4  RUNNER_LAST
 *               4  what is left to read, of samples or of bytes of Speex
 *
 *   piece       .  bytes of a Speex frame
 *               .  samples
 *               .  codes for the DAC
 *
 * where the three rows of a piece are a count of 4 bytes and so many numbers of 2. What a fragment
 * does not have is 0.
 */
#ifndef RUNNER_H
#define RUNNER_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define RUNNER_LAST 0xFFFFFFFFU

typedef enum runner_kind { RUNNER_PCM, RUNNER_ADPCM, RUNNER_SPEEX, RUNNER_WAV } runner_kind;

typedef struct runner_fragment {
  runner_kind kind;
  int header;     /* the array has one */
  int resumed;    /* ADPCM: goes on from where the fragment before ended */
  unsigned width; /* of the DAC, in bits */
  uint16_t rate;  /* where the array has no header */
  const void* array;
  size_t size;
} runner_fragment;

/* The program's own. */
extern const runner_fragment runner_fragments[];
extern const size_t runner_count;

/* The host's or the target's own. */
void runner_emit(const void* bytes, size_t count);

void runner_run(void);

#ifdef __cplusplus
}
#endif

#endif
