/* The program on an AVR: the stream goes byte by byte to a register without a purpose of its own,
 * which avr_board.c watches. */
#include <avr/interrupt.h>
#include <avr/io.h>
#include <avr/sleep.h>

#include "runner.h"

void runner_emit(const void* bytes, size_t count) {
  const unsigned char* const all = bytes;
  for (size_t i = 0; i < count; ++i) {
    GPIOR0 = all[i];
  }
}

int main(void) {
  runner_run();
  /* Asleep without interrupts: the end of the program, for the emulator. */
  cli();
  sleep_enable();
  sleep_cpu();
  return 0;
}
