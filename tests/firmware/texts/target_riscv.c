/* The program on a RISC-V: the stream goes to a file of the machine that plays the target, by the
 * semihosting of picolibc. */
#include <semihost.h>

#include "runner.h"

enum { WRITE_BINARY = 5 };

static int file;
static int failed;

void runner_emit(const void* bytes, size_t count) {
  /* Answers how many bytes are left. */
  if (sys_semihost_write(file, bytes, count) != 0) {
    failed = 1;
  }
}

int main(void) {
  file = sys_semihost_open("stream.bin", WRITE_BINARY);
  if (file < 0) {
    return 1;
  }
  runner_run();
  (void)sys_semihost_close(file);
  return failed;
}
