#include "kestrolin_wav.h"

/* Bytes, but for the last one: channels x block header = channels x group of codes. */
enum { RIFF_HEADER = 12, CHUNK_HEADER = 8, FMT_SIZE = 16, FMT_IMA_SIZE = 20, IMA_UNIT = 4 };

static kestrolin_status set_pcm(kestrolin_wav* wav, const unsigned char* fmt) {
  if (kestrolin_u16(fmt + 14) != 16) {
    return KESTROLIN_UNSUPPORTED;
  }
  wav->block_frames = 1;
  return wav->block_size == 2 * (uint32_t)wav->channels ? KESTROLIN_OK : KESTROLIN_CORRUPT;
}

static kestrolin_status set_ima(kestrolin_wav* wav, const unsigned char* fmt, size_t length) {
  if (kestrolin_u16(fmt + 14) != 4 || wav->channels > KESTROLIN_WAV_IMA_CHANNELS) {
    return KESTROLIN_UNSUPPORTED;
  }
  if (length < FMT_IMA_SIZE) {
    return KESTROLIN_CORRUPT;
  }
  const uint32_t unit = IMA_UNIT * (uint32_t)wav->channels;
  if (wav->block_size < unit || wav->block_size % unit != 0) {
    return KESTROLIN_CORRUPT;
  }
  /* The header holds one sample of each channel, and each unit behind it eight. */
  const uint32_t frames = 1 + 8 * (wav->block_size / unit - 1);
  wav->block_frames = kestrolin_u16(fmt + 18);
  return wav->block_frames == frames ? KESTROLIN_OK : KESTROLIN_CORRUPT;
}

/* Reads the content of "fmt ", of `length` bytes. */
static kestrolin_status set_format(kestrolin_wav* wav, const unsigned char* fmt, size_t length) {
  if (length < FMT_SIZE) {
    return KESTROLIN_CORRUPT;
  }
  wav->format = kestrolin_u16(fmt);
  wav->channels = kestrolin_u16(fmt + 2);
  wav->rate = kestrolin_u32(fmt + 4);
  wav->block_size = kestrolin_u16(fmt + 12);
  if (wav->channels == 0 || wav->rate == 0) {
    return KESTROLIN_CORRUPT;
  }
  switch (wav->format) {
    case KESTROLIN_WAV_PCM:
      return set_pcm(wav, fmt);
    case KESTROLIN_WAV_IMA_ADPCM:
      return set_ima(wav, fmt, length);
    default:
      return KESTROLIN_UNSUPPORTED;
  }
}

/* Whether the header of every block of IMA ADPCM can be decoded from. */
static int blocks_are_sound(const kestrolin_wav* wav, const unsigned char* data, size_t length) {
  for (size_t block = 0; block < length; block += wav->block_size) {
    for (size_t channel = 0; channel < wav->channels; ++channel) {
      if (data[block + IMA_UNIT * channel + 2] > KESTROLIN_IMA_INDEX_MAX) {
        return 0;
      }
    }
  }
  return 1;
}

/* Stands at the start of the sound, `length` bytes at `data`. */
static kestrolin_status set_data(kestrolin_wav* wav, const unsigned char* data, size_t length) {
  if (wav->format == 0 || length % wav->block_size != 0) {
    return KESTROLIN_CORRUPT;
  }
  if (wav->format == KESTROLIN_WAV_IMA_ADPCM && !blocks_are_sound(wav, data, length)) {
    return KESTROLIN_CORRUPT;
  }
  wav->next = data;
  wav->left = length / wav->block_size * wav->block_frames * wav->channels;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_wav_open(kestrolin_wav* wav, const unsigned char* array, size_t size) {
  memset(wav, 0, sizeof *wav);
  wav->next = array;
  if (size < RIFF_HEADER) {
    return KESTROLIN_TRUNCATED;
  }
  if (memcmp(array, "RIFF", 4) != 0 || memcmp(array + 8, "WAVE", 4) != 0) {
    return KESTROLIN_CORRUPT;
  }
  size_t at = RIFF_HEADER;
  while (size - at >= CHUNK_HEADER) {
    const unsigned char* chunk = array + at;
    const uint32_t claimed = kestrolin_u32(chunk + 4);
    at += CHUNK_HEADER;
    if (size - at < claimed) {
      return KESTROLIN_TRUNCATED;
    }
    const size_t length = (size_t)claimed;
    if (memcmp(chunk, "data", 4) == 0) {
      return set_data(wav, array + at, length);
    }
    if (memcmp(chunk, "fmt ", 4) == 0) {
      const kestrolin_status status = set_format(wav, array + at, length);
      if (status != KESTROLIN_OK) {
        return status;
      }
    }
    at += length;
    at += length % 2 != 0 && at < size;
  }
  return KESTROLIN_TRUNCATED;
}

/* Decodes the next sample of a block. */
static int16_t next_of_block(kestrolin_wav* wav) {
  const unsigned unit = IMA_UNIT * (unsigned)wav->channels;
  const unsigned char* mine = wav->next + (size_t)IMA_UNIT * wav->channel;
  kestrolin_ima* ima = &wav->ima[wav->channel];
  if (wav->frame == 0) {
    ima->predictor = kestrolin_s16(mine);
    ima->index = mine[2];
  } else {
    const unsigned code = wav->frame - 1U;
    const unsigned char byte = mine[unit * (1 + code / 8) + code % 8 / 2];
    kestrolin_ima_decode(ima, (unsigned)byte >> (code % 2 * 4));
  }
  if (++wav->channel == wav->channels) {
    wav->channel = 0;
    if (++wav->frame == wav->block_frames) {
      wav->frame = 0;
      wav->next += wav->block_size;
    }
  }
  return ima->predictor;
}

size_t kestrolin_wav_read(kestrolin_wav* wav, int16_t* samples, size_t room) {
  const size_t count = room < wav->left ? room : wav->left;
  for (size_t i = 0; i < count; ++i) {
    if (wav->format == KESTROLIN_WAV_IMA_ADPCM) {
      samples[i] = next_of_block(wav);
    } else {
      samples[i] = kestrolin_s16(wav->next);
      wav->next += 2;
    }
  }
  wav->left -= count;
  return count;
}
