/* The program on the host: the stream goes to standard output. */
#include <stdio.h>

#include "runner.h"

void runner_emit(const void* bytes, size_t count) {
  (void)fwrite(bytes, 1, count, stdout);
}

int main(void) {
  runner_run();
  return fflush(stdout) != 0 || ferror(stdout);
}
