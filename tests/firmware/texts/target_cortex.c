/* The program on the target: the stream goes to a file of the machine that plays the target. */
#include "runner.h"
#include "semihosting.h"

static int file;
static int failed;

void runner_emit(const void* bytes, size_t count) {
  if (semihosting_write(file, bytes, count) != 0) {
    failed = 1;
  }
}

int main(void) {
  file = semihosting_open("stream.bin");
  if (file < 0) {
    return 1;
  }
  runner_run();
  semihosting_close(file);
  return failed;
}
