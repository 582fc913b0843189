/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Says "ready" when the board starts, and again when the button is pressed.
 *
 * For an Uno, or another board with an ATmega328P.
 *
 *   pin 9 --- resistor of 1 kilohm ---+--- input of an amplifier
 *                                     |
 *                       capacitor of 47 nF to GND
 *
 *   pin 2 --- button --- GND
 *
 * Timer 1 makes the sound: pin 9 is high for a part of each period, and that part is the voltage
 * behind resistor and capacitor. Timer 2 tells when the next sample is due. So the sketch cannot
 * use what needs these timers too: Servo, tone(), and analogWrite() on pins 3, 9, 10 and 11.
 *
 * For a sound of your own: record 8000 samples a second, one channel. Bring it down to what ADPCM
 * takes, 8 bits, and save the text as a file of this sketch:
 *
 *   sox -D recording.wav ready.wav vol 0.00387
 *   kestrolin-cli encode --encoder adpcm -o ready.hpp ready.wav
 */
#include <Kestrolin.h>

#include "sounds.h"

static const uint8_t SOUND_PIN = 9;  // what timer 1 drives
static const uint8_t BUTTON_PIN = 2;

static const unsigned SAMPLE_BITS = 8;  // those of an ADPCM array
static const uint16_t PWM_TOP = 255;    // 16 MHz / 256: 62500 pulses a second, which nobody hears

// While `playing` is true these belong to the interrupt. Otherwise they are the main program's.
static kestrolin_adpcm sound;
static volatile bool playing = false;

// Timer 2: the next sample.
ISR(TIMER2_COMPA_vect) {
  int16_t sample = 0;  // silence, unless there is more
  const bool more = kestrolin_adpcm_read(&sound, &sample, 1) == 1;
  OCR1A = kestrolin_pwm_compare(sample, SAMPLE_BITS, PWM_TOP);
  if (!more) {
    TIMSK2 = 0;  // no more of these interrupts
    playing = false;
  }
}

// Timer 1: pulses on pin 9, at half of the period. That is silence; the pin stays there between
// sounds, so that nothing clicks.
static void startPwm() {
  OCR1A = kestrolin_pwm_compare(0, SAMPLE_BITS, PWM_TOP);
  TCCR1A = _BV(COM1A1) | _BV(WGM10);  // fast PWM of 8 bits
  TCCR1B = _BV(WGM12) | _BV(CS10);    // every cycle of the clock counts
  pinMode(SOUND_PIN, OUTPUT);
}

// Plays an ADPCM array from its beginning. Returns false where the array is not whole, or has fewer
// samples a second than timer 2 can be set to: it counts up to 255 at most.
static bool play(const unsigned char* array, size_t size) {
  // The interrupt is off: the reader is ours until it is on again.
  if (kestrolin_adpcm_open(&sound, array, size) != KESTROLIN_OK || sound.rate < F_CPU / 8 / 256) {
    return false;
  }
  playing = true;
  // Count from 0 up to OCR2A, once in 8 cycles of the clock: up to 249 for 8000 samples a second.
  TCCR2A = _BV(WGM21);
  TCCR2B = _BV(CS21);
  OCR2A = F_CPU / 8 / sound.rate - 1;
  TCNT2 = 0;
  TIFR2 = _BV(OCF2A);  // an interrupt that waits is an old one
  // The compiler must not put off what it writes to the reader until the interrupt is on.
  __asm__ volatile("" ::: "memory");
  TIMSK2 = _BV(OCIE2A);
  return true;
}

void setup() {
  pinMode(LED_BUILTIN, OUTPUT);
  pinMode(BUTTON_PIN, INPUT_PULLUP);
  startPwm();
  // The light tells of a sound that cannot be played.
  digitalWrite(LED_BUILTIN, play(ready, ready_size) ? LOW : HIGH);
}

void loop() {
  if (!playing && digitalRead(BUTTON_PIN) == LOW) {
    play(ready, ready_size);
  }
}
