/* What the example wants of the board, tried on the board itself: the start-up code, the timer's
 * rate, and that nothing which goes wrong is passed over. Returns 7 where all is well: another
 * status than any other way of ending has.
 */
#include "board.h"
#include "player.h"

enum { ALL_IS_WELL = 7, RATE = 32000 };

/* 25 MHz by 44100 Hz is 566.9. */
enum { ODD_RATE = 44100, ODD_PERIOD = 567, INTERRUPTS = 400 };

/* Timer 1 of the board, which counts down at 25 MHz. Its reload register keeps what it is told
 * across a start, which no variable does. */
static volatile uint32_t* const timer_control = (volatile uint32_t*)0x40001000;
static volatile uint32_t* const timer_value = (volatile uint32_t*)0x40001004;
static volatile uint32_t* const timer_reload = (volatile uint32_t*)0x40001008;

void reset_handler(void);

static volatile int initialised = 1234;
static volatile int cleared;
static volatile int interrupts;
static volatile uint32_t first;
static volatile uint32_t last;

/* What C++ makes of an object outside functions. */
static volatile int constructed;
static void construct(void) __attribute__((constructor));
static void construct(void) {
  constructed = constructed + 1;
}

/* Memory is all zeros when the emulator starts, so variables are looked at after a second start. */
static int variables_are_set_up(void) {
  if (*timer_reload != UINT32_MAX) {
    *timer_reload = UINT32_MAX;
    initialised = 1;
    cleared = 1;
    reset_handler();
  }
  return initialised == 1234 && cleared == 0 && constructed == 1;
}

static void count_interrupt(void) {
  last = *timer_value;
  if (interrupts == 0) {
    first = last;
  }
  interrupts = interrupts + 1;
}

static int timer_has_the_rate(void) {
  *timer_value = UINT32_MAX;
  *timer_control = 1;
  interrupts = 0;
  board_start_timer(ODD_RATE, count_interrupt);
  while (interrupts <= INTERRUPTS) {
    board_wait();
  }
  board_stop_timer();
  board_wait(); /* for nothing, where the timer stands still */
  const uint32_t clocks = first - last;
  const uint32_t expected = (uint32_t)(interrupts - 1) * ODD_PERIOD;
  return clocks + ODD_PERIOD / 10 > expected && clocks < expected + ODD_PERIOD / 10;
}

static volatile int broken_into;

/* Lasts until the timer's interrupt has come three times, or for some 50 ms. */
static void outlast_interrupts(void) {
  const int seen = interrupts;
  for (volatile uint32_t turns = 0; turns < 1000000 && interrupts < seen + 3;) {
    turns = turns + 1U;
  }
  broken_into = interrupts - seen;
}

static void defer_once(void) {
  if (interrupts == 0) {
    board_defer(outlast_interrupts);
  }
  interrupts = interrupts + 1;
}

static int deferred_call_has_lower_priority(void) {
  interrupts = 0;
  board_start_timer(RATE, defer_once);
  board_wait();
  board_stop_timer();
  return broken_into == 3;
}

static size_t read_tone(void* left, int16_t* samples, size_t room) {
  size_t* const remaining = left;
  const size_t count = room < *remaining ? room : *remaining;
  for (size_t i = 0; i < count; ++i) {
    samples[i] = (int16_t)(i % 2 == 0 ? 100 : -100);
  }
  *remaining -= count;
  return count;
}

/* Takes longer, some 50 ms, than the codes in the queue last. */
static size_t read_too_slowly(void* left, int16_t* samples, size_t room) {
  for (volatile uint32_t turns = 0; turns < 1000000;) {
    turns = turns + 1U;
  }
  return read_tone(left, samples, room);
}

static int play(const char* name, size_t count, player_read read) {
  const player_sound sound = {RATE, KESTROLIN_DAC_12, read, &count};
  return player_play(name, &sound, KESTROLIN_DAC_12);
}

static void write_much(void) {
  for (int i = 0; i < 5000; ++i) {
    board_write_dac(0);
  }
  interrupts = interrupts + 1;
}

/* More codes between two waits than are kept. */
static int overflow_is_noticed(void) {
  board_open_dac("overflow");
  interrupts = 0;
  board_start_timer(100, write_much);
  board_wait();
  board_stop_timer();
  return board_close_dac() != 0;
}

int main(void) {
  if (!variables_are_set_up()) {
    return 1;
  }
  if (!timer_has_the_rate()) {
    return 2;
  }
  if (!deferred_call_has_lower_priority()) {
    return 8;
  }
  if (play("tone", 3000, read_tone) != 0 || play("short", 5, read_tone) != 0 ||
      play("nothing", 0, read_tone) != 0) {
    return 3;
  }
  if (play("slow", 1100, read_too_slowly) == 0) {
    return 4;
  }
  if (!overflow_is_noticed()) {
    return 5;
  }
  if (board_open_dac("no such folder/tone") == 0 ||
      play("no such folder/tone", 5, read_tone) == 0 || play("/dev/full", 5, read_tone) == 0) {
    return 6;
  }
  return ALL_IS_WELL;
}
