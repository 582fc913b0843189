/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "dma_stream.h"

#include "board.h"
#include "board_dma.h"

enum { ITEMS = 2, NONE = 255 };

/* Samples are read into the half itself and become items there, which may take twice the room. */
static int16_t buffer[BOARD_DMA_HALVES * DMA_STREAM_HALF * ITEMS];
/* Items of one byte are made beside it: the samples of a half would reach into the other one. */
static int16_t beside[DMA_STREAM_HALF];

static const player_sound* source;
static const dma_output* sink;
static dma_fill context;
static volatile uint8_t last; /* the half that the sound ends in, or NONE */
static volatile uint8_t wanted[BOARD_DMA_HALVES];
static volatile uint8_t playing;

static size_t read_samples(int16_t* samples) {
  size_t count = 0;
  size_t got = 1;
  while (got > 0 && count < DMA_STREAM_HALF) {
    got = source->read(source->reader, samples + count, DMA_STREAM_HALF - count);
    count += got;
  }
  return count;
}

static void put_silence(void* items, size_t from, size_t end) {
  for (size_t i = from; i < end; ++i) {
    if (sink->item_size == 1) {
      ((uint8_t*)items)[i] = (uint8_t)sink->silence;
    } else {
      ((uint16_t*)items)[i] = sink->silence;
    }
  }
}

/* A half that is not full is the last one. One that follows it holds silence alone: a controller
 * that goes on a little before it stops changes nothing. */
static void fill_half(uint8_t half) {
  const size_t items = (size_t)DMA_STREAM_HALF * sink->items_per_sample;
  unsigned char* const start = (unsigned char*)buffer + half * items * sink->item_size;
  size_t count = 0;
  if (last == NONE) {
    int16_t* const samples = sink->item_size == 1 ? beside : buffer + half * items;
    count = read_samples(samples);
    sink->convert(start, samples, count, source->bits);
  }
  put_silence(start, count * sink->items_per_sample, items);
  if (count < DMA_STREAM_HALF && last == NONE) {
    last = half;
  }
}

static void half_played(uint8_t half) {
  if (half == last) {
    board_stop_dma();
    playing = 0;
  } else if (context == DMA_FILL_IN_MAIN) {
    wanted[half] = 1;
  } else {
    fill_half(half);
    board_dma_filled(half);
  }
}

static void fill_wanted(uint8_t half) {
  if (wanted[half]) {
    wanted[half] = 0;
    fill_half(half);
    board_dma_filled(half);
  }
}

int dma_stream_play(const char* name, const player_sound* sound, const dma_output* output,
                    dma_fill fill) {
  if (board_open_dac(name) != 0) {
    return 1;
  }
  source = sound;
  sink = output;
  context = fill;
  last = NONE;
  wanted[0] = 0;
  wanted[1] = 0;
  playing = 1;
  fill_half(0);
  fill_half(1);
  const board_dma_transfer transfer = {buffer,
                                       (uint16_t)(DMA_STREAM_HALF * output->items_per_sample),
                                       output->item_size, half_played};
  board_start_dma(sound->rate * output->items_per_sample, &transfer);
  while (playing) {
    fill_wanted(0);
    fill_wanted(1);
    board_wait();
  }
  return board_close_dac() != 0 || board_dma_was_late();
}
