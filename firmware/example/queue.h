/* DAC codes on their way from the main program, which decodes them a block at a time, to the
 * interrupt, which takes one at a time. One side writes `in`, the other one `out`. On a processor
 * of 32 bits both are read and written in one piece, so that no lock is needed; a smaller one wants
 * counters of its own width.
 */
#ifndef QUEUE_H
#define QUEUE_H

#include <stdint.h>

enum { QUEUE_SIZE = 1024 }; /* a power of two; 32 ms at 32000 Hz */

typedef struct queue {
  volatile uint32_t in;  /* codes put since the start */
  volatile uint32_t out; /* codes taken since the start */
  volatile uint16_t codes[QUEUE_SIZE];
} queue;

static inline uint32_t queue_count(const queue* q) {
  return q->in - q->out;
}

/* Returns 0 where there is no room. */
static inline int queue_put(queue* q, uint16_t code) {
  if (queue_count(q) == QUEUE_SIZE) {
    return 0;
  }
  q->codes[q->in % QUEUE_SIZE] = code;
  ++q->in;
  return 1;
}

/* Returns 0 where there is none. */
static inline int queue_take(queue* q, uint16_t* code) {
  if (queue_count(q) == 0) {
    return 0;
  }
  *code = q->codes[q->out % QUEUE_SIZE];
  ++q->out;
  return 1;
}

#endif
