/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Starts prompts by events while the timer runs. The timer's interrupt never stops: it takes one
 * sample a call from the reader that plays, and gives mid-scale where none does. A prompt that
 * comes while another one plays replaces it, between two samples.
 *
 * The rules that make this safe without a lock:
 *
 *  - A reader belongs to one context. There are two readers: the byte `playing` tells from which
 *    one the interrupt reads, and the main program opens the other one.
 *  - The main program hands over by one store of that byte, which every processor does in one
 *    piece. board_publish keeps the opening before that store, and the next opening behind it.
 *  - The main program alone writes `playing`. A prompt that has ended gives no samples, so that the
 *    interrupt needs not tell of it.
 *  - Events come from the main program, or from interrupts whose priority is not above the timer's:
 *    one that breaks into the timer's interrupt could hand over twice, and open the reader that it
 *    reads from. Here an event sets a flag, and the main program does the rest.
 *  - To open an embedded WAV file or a Speex array takes a time that follows its length, which has
 *    no place in an interrupt. Speex is not decoded there either: for that see player.c.
 *
 * All prompts have the timer's rate. What the DAC got is left in the file "prompts".
 */
#include "../kestrolin_adpcm.h"
#include "../kestrolin_dac.h"
#include "../kestrolin_pcm.h"
#include "board.h"
#include "player.h"
#include "sounds.h"

static const kestrolin_dac_width DAC = KESTROLIN_DAC_12;
enum { RATE = 8000, ADPCM_BITS = 8, READERS = 2, NONE = 255 };

/* The reader of one prompt, of either kind. */
typedef struct prompt_reader {
  uint8_t is_adpcm;
  union {
    kestrolin_pcm pcm;
    kestrolin_adpcm adpcm;
  } as;
} prompt_reader;

static prompt_reader readers[READERS];
static volatile uint8_t playing = NONE; /* written by the main program */

/* For the interrupt. A sample of 0 is mid-scale. */
static uint16_t next_code(void) {
  const uint8_t which = playing;
  int16_t sample = 0;
  unsigned bits = DAC;
  if (which != NONE) {
    prompt_reader* const reader = &readers[which];
    if (reader->is_adpcm) {
      (void)kestrolin_adpcm_read(&reader->as.adpcm, &sample, 1);
      bits = ADPCM_BITS;
    } else {
      (void)kestrolin_pcm_read(&reader->as.pcm, &sample, 1);
    }
  }
  return kestrolin_dac_code_from(sample, bits, DAC);
}

/* The reader that the interrupt does not use. */
static uint8_t free_reader(void) {
  return (uint8_t)(playing == 0 ? 1 : 0);
}

static void hand_over(uint8_t which) {
  board_publish();
  playing = which;
  board_publish();
}

/* For the main program. What plays goes on where these fail. */
static int start_pcm(const unsigned char* array, size_t size) {
  const uint8_t which = free_reader();
  prompt_reader* const reader = &readers[which];
  if (kestrolin_pcm_open(&reader->as.pcm, array, size) != KESTROLIN_OK ||
      reader->as.pcm.rate != RATE) {
    return 1;
  }
  reader->is_adpcm = 0;
  hand_over(which);
  return 0;
}

static int start_adpcm(const unsigned char* array, size_t size) {
  const uint8_t which = free_reader();
  prompt_reader* const reader = &readers[which];
  if (kestrolin_adpcm_open(&reader->as.adpcm, array, size) != KESTROLIN_OK ||
      reader->as.adpcm.rate != RATE) {
    return 1;
  }
  reader->is_adpcm = 1;
  hand_over(which);
  return 0;
}

/* The buttons, and a hand that presses them at known moments, so that a test knows what the DAC
 * gets sample for sample. */
typedef enum button { BELL, ALARM, TOO_FAST, MUTE, BUTTONS } button;
typedef struct press {
  uint32_t at; /* the number of samples before */
  button which;
} press;
static const press script[] = {{100, BELL},      {2100, ALARM},  {8000, BELL}, {9000, BELL},
                               {9500, TOO_FAST}, {14500, ALARM}, {15000, MUTE}};
enum { PRESSES = sizeof script / sizeof script[0], END = 15200 };

static volatile uint8_t pressed[BUTTONS]; /* set by the interrupt, cleared by the main program */
static volatile uint8_t over;

static uint32_t moment;  /* of the timer's interrupt alone, as is the next one */
static uint32_t presses; /* of the script */
static volatile uint8_t finger;

/* The buttons' interrupt, of lower priority than the timer's. */
static void button_interrupt(void) {
  pressed[finger] = 1;
}

static void timer_interrupt(void) {
  if (over) {
    return;
  }
  board_write_dac(next_code());
  ++moment;
  if (presses < PRESSES && script[presses].at == moment) {
    finger = (uint8_t)script[presses].which;
    ++presses;
    board_defer(button_interrupt);
  }
  over = moment == END;
}

/* Clears the flag first: a press that comes meanwhile starts the prompt again. */
static int was_pressed(button which) {
  const int was = pressed[which];
  if (was) {
    pressed[which] = 0;
  }
  return was;
}

/* Returns how many prompts could not be started. */
static int answer_buttons(void) {
  int failures = 0;
  if (was_pressed(BELL)) {
    failures += start_pcm(ready_pcm, ready_pcm_size);
  }
  if (was_pressed(ALARM)) {
    failures += start_adpcm(ready_adpcm, ready_adpcm_size);
  }
  if (was_pressed(TOO_FAST)) {
    failures += start_pcm(chime_pcm, chime_pcm_size);
  }
  if (was_pressed(MUTE)) {
    hand_over(NONE);
  }
  return failures;
}

int main(void) {
  int failures = 0;
  if (board_open_dac("prompts") != 0) {
    return 1;
  }
  board_start_timer(RATE, timer_interrupt);
  while (!over) {
    board_wait();
    failures += answer_buttons();
  }
  board_stop_timer();
  /* The chime has 16000 samples a second, so it is turned down. */
  return player_report("prompts", board_close_dac() != 0 || failures != 1);
}
