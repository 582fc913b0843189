/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Files of the host and the end of the program, by Arm semihosting: the emulator (or a debug probe)
 * carries the call out when the processor stops at a breakpoint instruction with 0xAB. Operation
 * numbers and their blocks of parameters are those of Arm's "Semihosting for AArch32 and AArch64".
 */
#ifndef KESTROLIN_EXAMPLE_SEMIHOSTING_H
#define KESTROLIN_EXAMPLE_SEMIHOSTING_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Makes a file in the directory that the emulator runs in, or empties it. Returns a handle, or -1.
 */
int semihosting_open(const char* name);

/* Returns 0 when all bytes were written. */
int semihosting_write(int handle, const void* bytes, size_t count);

void semihosting_close(int handle);

/* A line on the emulator's standard error. */
void semihosting_print(const char* text);

/* Ends the program; `status` becomes the exit status of the emulator. */
void semihosting_exit(int status) __attribute__((noreturn));

#ifdef __cplusplus
}
#endif

#endif
