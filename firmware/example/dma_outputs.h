/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The registers that sound is brought to by DMA, each as dma_stream.h wants it. */
#ifndef KESTROLIN_EXAMPLE_DMA_OUTPUTS_H
#define KESTROLIN_EXAMPLE_DMA_OUTPUTS_H

#include "dma_stream.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A DAC of 12 bits that takes codes in the low bits, and one of up to 16 that takes them in the
 * high ones: its own width plays no part then. */
extern const dma_output dma_right_12, dma_left_16;

/* A DAC of 8 bits. */
extern const dma_output dma_bytes;

/* The compare register of a timer that counts from 0 to DMA_PWM_TOP. */
enum { DMA_PWM_TOP = 999 };
extern const dma_output dma_pwm;

/* An I2S port: left and right alike. */
extern const dma_output dma_i2s;

#ifdef __cplusplus
}
#endif

#endif
