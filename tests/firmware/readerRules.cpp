#include "tests/firmware/readerRules.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <vector>

#include "kestrolin_adpcm.h"
#include "kestrolin_pcm.h"
#include "kestrolin_wav.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/firmware/readerHelp.h"

namespace {

char const* const wrongCount = "other numbers of samples than the reader says";

// What has to hold where an array is refused.
template <typename Reader>
char const* refusedRules(Reader& reader, std::size_t (*read)(Reader*, std::int16_t*, std::size_t),
                         kestrolin_status status, std::initializer_list<kestrolin_status> errors) {
  if (std::find(errors.begin(), errors.end(), status) == errors.end()) {
    return "an answer that opening does not have";
  }
  return isEmpty(reader, read) ? nullptr : "samples after an error";
}

Bytes part(Bytes const& bytes, std::size_t at, std::size_t count) {
  auto const begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
  return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

}  // namespace

char const* pcmRules(Attempt const& attempt) {
  constexpr std::size_t overhead = 6;
  ExactCopy const array(attempt.array);
  kestrolin_pcm pcm;
  kestrolin_status const status =
      openAsAsked(attempt, pcm, array.data(), kestrolin_pcm_open, kestrolin_pcm_open_headerless);
  if (status != KESTROLIN_OK) {
    return refusedRules(pcm, kestrolin_pcm_read, status, {KESTROLIN_TRUNCATED, KESTROLIN_CORRUPT});
  }
  std::size_t const count =
      attempt.headerless ? (array.size() - overhead) / 2 : numberAt(attempt.array, 0, 4);
  if (pcm.left != count || array.size() != overhead + 2 * count) {
    return "more or fewer samples than the array has";
  }
  std::size_t const begin = attempt.headerless ? 0 : overhead;
  std::optional<std::vector<int>> const samples = readAll(pcm, kestrolin_pcm_read, attempt.room);
  if (!samples) {
    return wrongCount;
  }
  if (pcm.next != array.data() + begin + 2 * count) {
    return "the reader does not stand behind the last sample";
  }
  return *samples == samplesAt(attempt.array, begin, count) ? nullptr : "other samples";
}

char const* adpcmRules(Attempt const& attempt) {
  constexpr std::size_t overhead = 9;
  ExactCopy const array(attempt.array);
  kestrolin_adpcm adpcm;
  kestrolin_status const status = openAsAsked(attempt, adpcm, array.data(), kestrolin_adpcm_open,
                                              kestrolin_adpcm_open_headerless);
  if (status != KESTROLIN_OK) {
    return refusedRules(adpcm, kestrolin_adpcm_read, status,
                        {KESTROLIN_TRUNCATED, KESTROLIN_CORRUPT});
  }
  std::size_t const count =
      attempt.headerless ? array.size() - overhead : numberAt(attempt.array, 0, 4);
  if (adpcm.left != 2 * count || array.size() != overhead + count) {
    return "more or fewer samples than the array has";
  }
  std::size_t const begin = attempt.headerless ? 0 : overhead;
  AdpcmStand state;
  if (!attempt.headerless) {
    state = {attempt.array.at(8), sampleAt(attempt.array, 6)};
  }
  std::optional<std::vector<int>> const samples =
      readAll(adpcm, kestrolin_adpcm_read, attempt.room);
  if (!samples) {
    return wrongCount;
  }
  if (adpcm.next != array.data() + begin + count) {
    return "the reader does not stand behind the last code";
  }
  bool const same = *samples == modelSamples(state, part(attempt.array, begin, count));
  return same && adpcm.ima.predictor == state.voorspelling && adpcm.ima.index == state.index
             ? nullptr
             : "other samples, or another state at the end";
}

std::vector<int> imaSamples(Bytes const& data, ImaLayout const& layout) {
  constexpr std::size_t unit = 4;  // bytes a channel
  std::size_t const round = unit * layout.channels;
  std::size_t const frames = 1 + 2 * (layout.blockSize - round) / layout.channels;
  std::vector<int> samples(data.size() / layout.blockSize * frames * layout.channels);
  for (std::size_t nr = 0; nr < data.size() / layout.blockSize * layout.channels; ++nr) {
    std::size_t const channel = nr % layout.channels;
    std::size_t const block = nr / layout.channels;
    std::size_t const head = block * layout.blockSize + unit * channel;
    AdpcmStand state{data.at(head + 2), sampleAt(data, head)};
    Bytes codes;
    for (std::size_t at = head + round; at < (block + 1) * layout.blockSize; at += round) {
      Bytes const group = part(data, at, unit);
      codes.insert(codes.end(), group.begin(), group.end());
    }
    std::vector<int> own = modelSamples(state, codes);
    own.insert(own.begin(), sampleAt(data, head));
    for (std::size_t i = 0; i < frames; ++i) {
      samples.at((block * frames + i) * layout.channels + channel) = own.at(i);
    }
  }
  return samples;
}

char const* wavRules(Attempt const& attempt) {
  ExactCopy const array(attempt.array);
  kestrolin_wav wav;
  kestrolin_status const status = kestrolin_wav_open(&wav, array.data(), array.size());
  if (status != KESTROLIN_OK) {
    return refusedRules(wav, kestrolin_wav_read, status,
                        {KESTROLIN_TRUNCATED, KESTROLIN_CORRUPT, KESTROLIN_UNSUPPORTED});
  }
  bool const ima = wav.format == KESTROLIN_WAV_IMA_ADPCM;
  if ((!ima && wav.format != KESTROLIN_WAV_PCM) || wav.channels == 0 || wav.rate == 0 ||
      (ima && wav.channels > KESTROLIN_WAV_IMA_CHANNELS)) {
    return "a format that there is not";
  }
  auto const begin = static_cast<std::size_t>(wav.next - array.data());
  std::size_t const perBlock = std::size_t{wav.block_frames} * wav.channels;
  std::size_t const size = wav.left / perBlock * wav.block_size;
  if (wav.left % perBlock != 0 || begin > array.size() || size > array.size() - begin) {
    return "more samples than the array has";
  }
  std::optional<std::vector<int>> const samples = readAll(wav, kestrolin_wav_read, attempt.room);
  if (!samples) {
    return wrongCount;
  }
  if (wav.next != array.data() + begin + size) {
    return "the reader does not stand behind the last sample";
  }
  Bytes const data = part(attempt.array, begin, size);
  return *samples == (ima ? imaSamples(data, {wav.channels, wav.block_size})
                          : samplesAt(data, 0, size / 2))
             ? nullptr
             : "other samples";
}
