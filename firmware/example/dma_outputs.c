/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "dma_outputs.h"

#include "../kestrolin_dac.h"
#include "../kestrolin_i2s.h"
#include "../kestrolin_pwm.h"

static void to_right(void* items, const int16_t* samples, size_t count, unsigned bits) {
  kestrolin_dac_codes_from(items, samples, count, bits, KESTROLIN_DAC_12);
}

static void to_left(void* items, const int16_t* samples, size_t count, unsigned bits) {
  kestrolin_dac_codes_from(items, samples, count, bits, KESTROLIN_DAC_16);
}

static void to_bytes(void* items, const int16_t* samples, size_t count, unsigned bits) {
  kestrolin_dac_bytes_from(items, samples, count, bits);
}

static void to_pwm(void* items, const int16_t* samples, size_t count, unsigned bits) {
  kestrolin_pwm_compares(items, samples, count, bits, DMA_PWM_TOP);
}

static void to_i2s(void* items, const int16_t* samples, size_t count, unsigned bits) {
  kestrolin_i2s_mono(items, samples, count, bits);
}

/* Bytes an item, items a sample, silence. */
const dma_output dma_right_12 = {2, 1, 2048, to_right};
const dma_output dma_left_16 = {2, 1, 32768, to_left};
const dma_output dma_bytes = {1, 1, 128, to_bytes};
const dma_output dma_pwm = {2, 1, (DMA_PWM_TOP + 1) / 2, to_pwm};
const dma_output dma_i2s = {2, 2, 0, to_i2s};
