// The toolchains of the targets.
#include "tests/firmware/texts/toolchain.h"

namespace {

// Quoted for the shell, since the tree may lie anywhere.
std::string const texts = "'" KESTROLIN_TEXTS "'";
std::string const example = "'" KESTROLIN_FIRMWARE "'/example";
std::string const flags = " -Os -Wall -Wextra -Werror";
char const* const plainCpp = " -fno-exceptions -fno-rtti";

// Where QEMU's board has its memory.
std::string memoryOfVirt() {
  return " -Wl,--defsym=__flash=0x80000000 -Wl,--defsym=__flash_size=0x200000"
         " -Wl,--defsym=__ram=0x80200000 -Wl,--defsym=__ram_size=0x200000";
}

}  // namespace

Toolchain cortexM4() {
  std::string const machine = " -mcpu=cortex-m4 -mthumb";
  Toolchain target;
  target.name = "cortex-m4";
  target.programs = {"arm-none-eabi-gcc", "arm-none-eabi-g++", "qemu-system-arm"};
  target.packages = {"gcc-arm-none-eabi", "libnewlib-arm-none-eabi", "qemu-system-arm"};
  target.c = "arm-none-eabi-gcc -ffreestanding" + machine + flags;
  target.cpp = std::string("arm-none-eabi-g++ -ffreestanding") + plainCpp + machine + flags;
  target.support = "-I" + example + " " + example + "/startup.c " + example + "/semihosting.c " +
                   texts + "/target_cortex.c";
  // With the compiler of C: the text needs nothing of the library of C++.
  target.link = "arm-none-eabi-gcc" + machine + " -nostartfiles -T " + example + "/mps2-an386.ld";
  target.run = example + "/emulate program";
  return target;
}

Toolchain avr() {
  std::string const machine = " -mmcu=atmega1284p -fdata-sections";
  Toolchain target;
  target.name = "avr";
  target.programs = {"avr-gcc",
                     "avr-g++",
                     "gcc",
                     "/usr/lib/avr/include/avr/pgmspace.h",
                     "/usr/include/simavr/sim_avr.h",
                     "/usr/include/libelf.h"};
  target.packages = {"gcc-avr", "avr-libc", "gcc", "libsimavr-dev", "libelf-dev"};
  target.c = "avr-gcc" + machine + flags;
  target.cpp = std::string("avr-g++") + plainCpp + machine + flags;
  target.support = texts + "/target_avr.c";
  // Only the first 64 KiB of flash can be read as the readers read: arrays that a part of the
  // program does not play are left out.
  target.link = "avr-gcc -mmcu=atmega1284p -Wl,--gc-sections";
  target.parts = 4;
  target.run =
      "gcc -O1 -o board " + texts + "/avr_board.c -lsimavr -lelf && ./board program stream.bin";
  return target;
}

Toolchain riscV() {
  std::string const machine = " --specs=picolibc.specs -march=rv32imac -mabi=ilp32";
  Toolchain target;
  target.name = "risc-v";
  target.programs = {"riscv64-unknown-elf-gcc", "riscv64-unknown-elf-g++", "qemu-system-riscv32",
                     "/usr/lib/picolibc/riscv64-unknown-elf/picolibc.specs"};
  target.packages = {"gcc-riscv64-unknown-elf", "picolibc-riscv64-unknown-elf", "qemu-system-misc"};
  target.c = "riscv64-unknown-elf-gcc" + machine + flags;
  target.cpp = std::string("riscv64-unknown-elf-g++") + plainCpp + machine + flags;
  target.support = texts + "/target_riscv.c";
  target.link =
      "riscv64-unknown-elf-gcc" + machine + " --oslib=semihost --crt0=hosted" + memoryOfVirt();
  target.run =
      "timeout 600 qemu-system-riscv32 -machine virt -bios none -display none -monitor none"
      " -serial none -semihosting-config enable=on,target=native -kernel program";
  return target;
}

Toolchain bigEndian() {
  Toolchain target;
  target.name = "s390x";
  target.demand = "KESTROLIN_PROCESSORS";  // as other tests of this processor
  target.programs = {"s390x-linux-gnu-gcc", "s390x-linux-gnu-g++", "qemu-s390x-static"};
  target.packages = {"g++-s390x-linux-gnu", "qemu-user-static"};
  target.c = "s390x-linux-gnu-gcc" + flags;
  target.cpp = "s390x-linux-gnu-g++" + flags;
  target.support = texts + "/host_main.c";
  target.link = "s390x-linux-gnu-gcc -static";
  target.run = "qemu-s390x-static ./program > stream.bin";
  return target;
}
