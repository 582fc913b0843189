/* What integers and sizes of 16 bits could break, tried on an AVR itself. Emits the line of each
 * check that fails, two bytes low byte first, and at the end two zeros.
 */
#include "kestrolin_adpcm.h"
#include "kestrolin_dac.h"
#include "kestrolin_gain.h"
#include "kestrolin_i2s.h"
#include "kestrolin_pcm.h"
#include "kestrolin_pwm.h"
#include "kestrolin_wav.h"
#include "runner.h"

const size_t runner_count = 0;
const runner_fragment runner_fragments[1];

static void emit(unsigned number) {
  const unsigned char bytes[2] = {(unsigned char)(number & 0xFFU), (unsigned char)(number >> 8)};
  runner_emit(bytes, sizeof bytes);
}

#define CHECK(condition) \
  do {                   \
    if (!(condition)) {  \
      emit(__LINE__);    \
    }                    \
  } while (0)

/* Headers of ADPCM arrays, at 8000 Hz from 0 and 0: of 32767, 32768 and 40000 bytes of codes, of
 * which opening reads none. */
static const unsigned char fits[] KESTROLIN_FLASH = {0xFF, 0x7F, 0, 0, 0x40, 0x1F, 0, 0, 0};
static const unsigned char above[] KESTROLIN_FLASH = {0x00, 0x80, 0, 0, 0x40, 0x1F, 0, 0, 0};
static const unsigned char far_above[] KESTROLIN_FLASH = {0x40, 0x9C, 0, 0, 0x40, 0x1F, 0, 0, 0};

static void check_adpcm_sizes(void) {
  kestrolin_adpcm adpcm;
  CHECK(kestrolin_adpcm_open(&adpcm, fits, 32776U) == KESTROLIN_OK);
  CHECK(adpcm.left == 65534U && adpcm.count == 65534U);
  CHECK(kestrolin_adpcm_open(&adpcm, above, 32777U) == KESTROLIN_UNSUPPORTED);
  CHECK(adpcm.left == 0 && adpcm.count == 0);
  CHECK(kestrolin_adpcm_open(&adpcm, far_above, 40009U) == KESTROLIN_UNSUPPORTED);
  CHECK(adpcm.left == 0 && adpcm.count == 0);
  CHECK(kestrolin_adpcm_open(&adpcm, above, 32776U) == KESTROLIN_TRUNCATED);
  CHECK(kestrolin_adpcm_open_headerless(&adpcm, fits, 32776U, 8000) == KESTROLIN_OK);
  CHECK(adpcm.left == 65534U);
  CHECK(kestrolin_adpcm_open_headerless(&adpcm, fits, 32777U, 8000) == KESTROLIN_UNSUPPORTED);
  CHECK(adpcm.left == 0 && adpcm.count == 0);
}

/* IMA ADPCM of one channel in blocks of 256 bytes, 505 samples each: 130 of them have more samples
 * than 65535, 129 have not. */
#define IMAGE(low, high)                                                                           \
  {                                                                                                \
    'R', 'I', 'F', 'F', 0, 0, 0, 0, 'W', 'A', 'V', 'E', 'f', 'm', 't', ' ', 20, 0, 0, 0, 17, 0, 1, \
        0, 0x40, 0x1F, 0, 0, 0, 0, 0, 0, 0, 1, 4, 0, 2, 0, 0xF9, 0x01, 'd', 'a', 't', 'a', (low),  \
        (high), 0, 0                                                                               \
  }
static const unsigned char blocks_130[] KESTROLIN_FLASH = IMAGE(0x00, 0x82);
static const unsigned char blocks_129[] KESTROLIN_FLASH = IMAGE(0x00, 0x81);

static void check_wav_sizes(void) {
  kestrolin_wav wav;
  CHECK(kestrolin_wav_open(&wav, blocks_130, sizeof blocks_130 + 130U * 256U) ==
        KESTROLIN_UNSUPPORTED);
  CHECK(wav.left == 0 && wav.count == 0);
  /* These blocks are looked at, whatever lies in flash there. */
  const kestrolin_status status =
      kestrolin_wav_open(&wav, blocks_129, sizeof blocks_129 + 129U * 256U);
  CHECK(status == KESTROLIN_OK || status == KESTROLIN_CORRUPT);
  CHECK(wav.block_frames == 505 && wav.rate == 8000);
}

/* By hand: index 10 has step 19, of which code 0 gives the eighth, 2. */
static const unsigned char two_codes[] KESTROLIN_FLASH = {1, 0, 0, 0, 0x40, 0x1F, 0, 0, 0, 0x00};
static const unsigned char state[] KESTROLIN_FLASH = {0x18, 0xFC, 10}; /* -1000 */
static const unsigned char no_state[] KESTROLIN_FLASH = {0, 0, 89};

static void check_start(void) {
  kestrolin_adpcm adpcm;
  int16_t samples[2] = {0, 0};
  CHECK(kestrolin_adpcm_open(&adpcm, two_codes, sizeof two_codes) == KESTROLIN_OK);
  CHECK(kestrolin_adpcm_start(&adpcm, no_state) == KESTROLIN_CORRUPT);
  CHECK(kestrolin_adpcm_start(&adpcm, state) == KESTROLIN_OK);
  for (int turn = 0; turn < 2; ++turn) {
    CHECK(kestrolin_adpcm_read(&adpcm, samples, 2) == 2);
    CHECK(samples[0] == -998 && samples[1] == -996);
    kestrolin_adpcm_rewind(&adpcm);
  }
}

static const unsigned char two_samples[] KESTROLIN_FLASH = {2,    0,    0,    0,    0x40,
                                                            0x1F, 0x00, 0x80, 0xFF, 0x7F};

static void check_pcm(void) {
  kestrolin_pcm pcm;
  int16_t samples[2] = {0, 0};
  CHECK(kestrolin_pcm_open(&pcm, two_samples, sizeof two_samples) == KESTROLIN_OK);
  for (int turn = 0; turn < 2; ++turn) {
    CHECK(kestrolin_pcm_read(&pcm, samples, 2) == 2);
    CHECK(samples[0] == INT16_MIN && samples[1] == INT16_MAX);
    kestrolin_pcm_rewind(&pcm);
  }
}

static void check_output(void) {
  const int16_t samples[2] = {-100, 100};
  int16_t words[4];
  uint8_t bytes[2];
  CHECK(kestrolin_dac_code(INT16_MIN, KESTROLIN_DAC_16) == 0);
  CHECK(kestrolin_dac_code(INT16_MAX, KESTROLIN_DAC_16) == 65535U);
  CHECK(kestrolin_dac_mid(KESTROLIN_DAC_16) == 32768U);
  CHECK(kestrolin_dac_code_from(127, 8, KESTROLIN_DAC_16) == 65280U);
  kestrolin_dac_bytes_from(bytes, samples, 2, 8);
  CHECK(bytes[0] == 28 && bytes[1] == 228);
  CHECK(kestrolin_pwm_compare(0, 8, 65535U) == 32768U);
  CHECK(kestrolin_pwm_compare(127, 8, 255) == 255);
  CHECK(kestrolin_pwm_compare(-128, 8, 255) == 0);
  CHECK(kestrolin_i2s_word(-2048, 12) == INT16_MIN);
  kestrolin_i2s_mono(words, samples, 2, 12);
  CHECK(words[0] == -1600 && words[1] == -1600 && words[2] == 1600 && words[3] == 1600);
  CHECK(kestrolin_gain(INT16_MIN, 32768U) == INT16_MIN);
  CHECK(kestrolin_gain(20000, 32768U) == INT16_MAX);
  CHECK(kestrolin_gain(-3, 8192) == -2);
}

void runner_run(void) {
  CHECK(sizeof(int) == 2 && sizeof(size_t) == 2);
  check_adpcm_sizes();
  check_wav_sizes();
  check_start();
  check_pcm();
  check_output();
  emit(0);
}
