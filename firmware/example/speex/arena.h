/* The memory of libspeex's decoders: a static block, of which pieces are taken from the start. It
 * is free again as a whole when all pieces have been given back.
 */
#ifndef ARENA_H
#define ARENA_H

/* A cleared piece of memory, or a null pointer where there is not enough. */
void* arena_take(int size);
void arena_give_back(void* block);

/* The most bytes that were taken at a time since this was last asked. */
unsigned arena_take_peak(void);

#endif
