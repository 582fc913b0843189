/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Tells simavr what to run a sketch on, and to write down what the compare register of timer 1
 * gets: see the script beside this file. */
#include <avr/io.h>

#include "avr_mcu_section.h"

AVR_MCU(F_CPU, "atmega328p");
AVR_MCU_VCD_FILE("codes.vcd", 1);
const struct avr_mmcu_vcd_trace_t traced[] _MMCU_ = {
    {AVR_MCU_VCD_SYMBOL("OCR1AL"), .what = (void*)&OCR1AL},
};
