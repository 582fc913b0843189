/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_wav.h"

/* Bytes, but for the last one: channels x block header = channels x group of codes. */
#define RIFF_HEADER 12U
#define CHUNK_HEADER 8U
#define FMT_SIZE 16U
#define FMT_IMA_SIZE 20U
#define IMA_UNIT 4U

/* The four letters of a name, as kestrolin_u32 reads them. */
#define NAME_RIFF 0x46464952U
#define NAME_WAVE 0x45564157U
#define NAME_FMT 0x20746D66U
#define NAME_DATA 0x61746164U

static kestrolin_status set_pcm(kestrolin_wav* wav, const unsigned char* fmt) {
  if (kestrolin_u16(&fmt[14]) != 16U) {
    return KESTROLIN_UNSUPPORTED;
  }
  wav->block_frames = 1;
  return (wav->block_size == (2U * (uint32_t)wav->channels)) ? KESTROLIN_OK : KESTROLIN_CORRUPT;
}

static kestrolin_status set_ima(kestrolin_wav* wav, const unsigned char* fmt, size_t length) {
  if ((kestrolin_u16(&fmt[14]) != 4U) || (wav->channels > (unsigned)KESTROLIN_WAV_IMA_CHANNELS)) {
    return KESTROLIN_UNSUPPORTED;
  }
  if (length < FMT_IMA_SIZE) {
    return KESTROLIN_CORRUPT;
  }
  const uint32_t unit = IMA_UNIT * (uint32_t)wav->channels;
  if ((wav->block_size < unit) || ((wav->block_size % unit) != 0U)) {
    return KESTROLIN_CORRUPT;
  }
  /* The header holds one sample of each channel, and each unit behind it eight. */
  const uint32_t frames = 1U + (8U * ((wav->block_size / unit) - 1U));
  wav->block_frames = kestrolin_u16(&fmt[18]);
  return (wav->block_frames == frames) ? KESTROLIN_OK : KESTROLIN_CORRUPT;
}

/* Reads the content of "fmt ", of `length` bytes. */
static kestrolin_status set_format(kestrolin_wav* wav, const unsigned char* fmt, size_t length) {
  if (length < FMT_SIZE) {
    return KESTROLIN_CORRUPT;
  }
  wav->format = kestrolin_u16(&fmt[0]);
  wav->channels = kestrolin_u16(&fmt[2]);
  wav->rate = kestrolin_u32(&fmt[4]);
  wav->block_size = kestrolin_u16(&fmt[12]);
  if ((wav->channels == 0U) || (wav->rate == 0U)) {
    return KESTROLIN_CORRUPT;
  }
  if (wav->format == (unsigned)KESTROLIN_WAV_PCM) {
    return set_pcm(wav, fmt);
  }
  return (wav->format == (unsigned)KESTROLIN_WAV_IMA_ADPCM) ? set_ima(wav, fmt, length)
                                                            : KESTROLIN_UNSUPPORTED;
}

/* Whether the header of every block of IMA ADPCM can be decoded from. */
static int blocks_are_sound(const kestrolin_wav* wav, const unsigned char* data, size_t length) {
  for (size_t block = 0; block < length; block += wav->block_size) {
    for (size_t channel = 0; channel < wav->channels; ++channel) {
      const size_t index = block + (IMA_UNIT * channel) + 2U;
      if (KESTROLIN_READ_BYTE(&data[index]) > (unsigned)KESTROLIN_IMA_INDEX_MAX) {
        return 0;
      }
    }
  }
  return 1;
}

/* Stands at the start of the sound, `length` bytes at `data`. */
static kestrolin_status set_data(kestrolin_wav* wav, const unsigned char* data, size_t length) {
  if ((wav->format == 0U) || ((length % wav->block_size) != 0U)) {
    return KESTROLIN_CORRUPT;
  }
  const size_t blocks = length / wav->block_size;
  const uint32_t block_samples = (uint32_t)wav->block_frames * wav->channels;
  if (blocks > (SIZE_MAX / block_samples)) {
    return KESTROLIN_UNSUPPORTED;
  }
  if ((wav->format == (unsigned)KESTROLIN_WAV_IMA_ADPCM) &&
      (blocks_are_sound(wav, data, length) == 0)) {
    return KESTROLIN_CORRUPT;
  }
  wav->next = data;
  wav->left = blocks * (size_t)block_samples;
  wav->count = wav->left;
  return KESTROLIN_OK;
}

/* Walks the chunks of `array` from its byte 12 on. */
static kestrolin_status set_chunks(kestrolin_wav* wav, const unsigned char* array, size_t size) {
  size_t at = RIFF_HEADER;
  while ((size - at) >= CHUNK_HEADER) {
    const uint32_t name = kestrolin_u32(&array[at]);
    const uint32_t claimed = kestrolin_u32(&array[at + 4U]);
    at += CHUNK_HEADER;
    if ((size - at) < claimed) {
      return KESTROLIN_TRUNCATED;
    }
    const size_t length = (size_t)claimed;
    if (name == NAME_DATA) {
      return set_data(wav, &array[at], length);
    }
    if (name == NAME_FMT) {
      const kestrolin_status status = set_format(wav, &array[at], length);
      if (status != KESTROLIN_OK) {
        return status;
      }
    }
    at += length;
    if (((length % 2U) != 0U) && (at < size)) {
      at += 1U;
    }
  }
  return KESTROLIN_TRUNCATED;
}

kestrolin_status kestrolin_wav_open(kestrolin_wav* wav, const unsigned char* array, size_t size) {
  (void)memset(wav, 0, sizeof *wav);
  wav->next = array;
  if (size < RIFF_HEADER) {
    return KESTROLIN_TRUNCATED;
  }
  if ((kestrolin_u32(&array[0]) != NAME_RIFF) || (kestrolin_u32(&array[8]) != NAME_WAVE)) {
    return KESTROLIN_CORRUPT;
  }
  return set_chunks(wav, array, size);
}

void kestrolin_wav_rewind(kestrolin_wav* wav) {
  const size_t given = wav->count - wav->left;
  /* Where opening answered an error, a block may have no samples. */
  if (given > 0U) {
    size_t bytes = 2U * given;
    if (wav->format == (unsigned)KESTROLIN_WAV_IMA_ADPCM) {
      const size_t block_samples = (size_t)wav->block_frames * wav->channels;
      bytes = (given / block_samples) * wav->block_size;
    }
    wav->next -= bytes;
  }
  wav->left = wav->count;
  wav->frame = 0;
  wav->channel = 0;
}

/* Decodes the next sample of a block. */
static int16_t next_of_block(kestrolin_wav* wav) {
  const unsigned unit = IMA_UNIT * (unsigned)wav->channels;
  const unsigned char* mine = &wav->next[(size_t)IMA_UNIT * wav->channel];
  kestrolin_ima* ima = &wav->ima[wav->channel];
  if (wav->frame == 0U) {
    ima->predictor = kestrolin_s16(mine);
    ima->index = KESTROLIN_READ_BYTE(&mine[2]);
  } else {
    const unsigned code = wav->frame - 1U;
    const unsigned byte =
        KESTROLIN_READ_BYTE(&mine[(unit * (1U + (code / 8U))) + ((code % 8U) / 2U)]);
    (void)kestrolin_ima_decode(ima, byte >> ((code % 2U) * 4U));
  }
  wav->channel += 1U;
  if (wav->channel == wav->channels) {
    wav->channel = 0;
    wav->frame += 1U;
  }
  if (wav->frame == wav->block_frames) {
    wav->frame = 0;
    wav->next = &wav->next[wav->block_size];
  }
  return ima->predictor;
}

size_t kestrolin_wav_read(kestrolin_wav* wav, int16_t* samples, size_t room) {
  const size_t count = (room < wav->left) ? room : wav->left;
  for (size_t i = 0; i < count; ++i) {
    if (wav->format == (unsigned)KESTROLIN_WAV_IMA_ADPCM) {
      samples[i] = next_of_block(wav);
    } else {
      samples[i] = kestrolin_s16(wav->next);
      wav->next = &wav->next[2];
    }
  }
  wav->left -= count;
  return count;
}
