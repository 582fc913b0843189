// An emulated RISC-V with `-icount shift=0`, where its counter counts instructions.
#include <semihost.h>

#include "measure_target.h"

uint32_t target_count(void) {
  uint32_t count;
  __asm__ volatile(".option push\n.option arch, +zicsr\nrdinstret %0\n.option pop" : "=r"(count));
  return count;
}

// A loop of a known length, two instructions a turn: whether the counter is what it is taken for.
int target_start(void) {
  enum { TURNS = 100000 };
  uint32_t turns = TURNS;
  uint32_t const start = target_count();
  __asm__ volatile("1: addi %0, %0, -1\n bnez %0, 1b\n" : "+r"(turns));
  uint32_t const counted = target_count() - start;
  return counted < 2 * TURNS || counted > 2 * TURNS + TURNS / 100;
}

void target_print(const char* text) {
  (void)sys_semihost_write0(text);
}

int target_end(int failed) {
  return failed;
}
