#include "opdrachtregel/programma.h"

int main(int aantal, char** woorden) {
  return voerProgrammaUit(aantal, woorden);
}
