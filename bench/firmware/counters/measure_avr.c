// The emulated AVR of tests/firmware/texts/avr_board.c: it takes down the cycles of the processor
// when GPIOR1 is written, and gives them by GPIOR2, low byte first. Lines go to GPIOR0.
#include "measure_target.h"

#include <avr/interrupt.h>
#include <avr/io.h>
#include <avr/sleep.h>

int target_start(void) {
  return 0;
}

uint32_t target_count(void) {
  uint32_t count = 0;
  GPIOR1 = 0;
  for (uint8_t shift = 0; shift < 32; shift += 8) {
    count |= (uint32_t)GPIOR2 << shift;
  }
  return count;
}

void target_print(const char* text) {
  for (; *text != '\0'; ++text) {
    GPIOR0 = (uint8_t)*text;
  }
}

int target_end(int failed) {
  if (failed) {
    target_print("failed\n");
  }
  // Asleep without interrupts: the end of the program, for the emulator.
  cli();
  sleep_enable();
  sleep_cpu();
  return failed;
}
