/* An emulated board with an ATmega1284P, whose program talks through its register GPIOR0: every
 * byte that is written there goes to the file STREAM. A write to GPIOR1 takes down the cycles that
 * the processor has run, which GPIOR2 gives byte by byte, low byte first. Ends with 0 when the
 * program has gone to sleep for good.
 *
 *     avr_board PROGRAM.elf STREAM
 */
#include <simavr/sim_avr.h>
#include <simavr/sim_elf.h>
#include <simavr/sim_io.h>
#include <stdio.h>
#include <string.h>

enum { GPIOR0_ADDRESS = 0x3E, GPIOR1_ADDRESS = 0x4A, GPIOR2_ADDRESS = 0x4B, CLOCK = 16000000 };

static void write_byte(avr_t* avr, avr_io_addr_t address, uint8_t byte, void* stream) {
  avr->data[address] = byte;
  (void)fputc(byte, stream); /* what fails shows when the file is closed */
}

static uint32_t cycles;

static void take_cycles(avr_t* avr, avr_io_addr_t address, uint8_t byte, void* unused) {
  (void)address;
  (void)byte;
  (void)unused;
  cycles = (uint32_t)avr->cycle;
}

static uint8_t give_cycles(avr_t* avr, avr_io_addr_t address, void* unused) {
  (void)avr;
  (void)address;
  (void)unused;
  const uint8_t low = (uint8_t)(cycles & 0xFFU);
  cycles >>= 8U;
  return low;
}

int main(int count, char** words) {
  elf_firmware_t firmware;
  memset(&firmware, 0, sizeof firmware);
  if (count != 3 || elf_read_firmware(words[1], &firmware) != 0) {
    return 2;
  }
  avr_t* const avr = avr_make_mcu_by_name("atmega1284p");
  if (avr == NULL || avr_init(avr) != 0) {
    return 2;
  }
  FILE* const stream = fopen(words[2], "wb");
  if (stream == NULL) {
    return 2;
  }
  firmware.frequency = CLOCK;
  avr_load_firmware(avr, &firmware);
  avr_register_io_write(avr, GPIOR0_ADDRESS, write_byte, stream);
  avr_register_io_write(avr, GPIOR1_ADDRESS, take_cycles, NULL);
  avr_register_io_read(avr, GPIOR2_ADDRESS, give_cycles, NULL);
  int state = cpu_Running;
  while (state != cpu_Done && state != cpu_Crashed) {
    state = avr_run(avr);
  }
  const int failed = ferror(stream);
  return fclose(stream) != 0 || failed || state != cpu_Done;
}
