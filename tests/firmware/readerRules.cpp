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

template <typename Reader>
using Read = std::size_t (*)(Reader*, std::int16_t*, std::size_t);
template <typename Reader>
using Rewind = void (*)(Reader*);

// What has to hold where an array is refused.
template <typename Reader>
char const* refusedRules(Reader& reader, Read<Reader> read, Rewind<Reader> rewind,
                         kestrolin_status status, std::initializer_list<kestrolin_status> errors) {
  if (std::find(errors.begin(), errors.end(), status) == errors.end()) {
    return "an answer that opening does not have";
  }
  unsigned char const* const next = reader.next;
  rewind(&reader);
  return reader.next == next && reader.count == 0 && isEmpty(reader, read)
             ? nullptr
             : "samples after an error";
}

// A reader that stands at its end goes back to `begin` from there and from other places.
template <typename Reader>
char const* rewindRules(Reader& reader, Read<Reader> read, Rewind<Reader> rewind,
                        unsigned char const* begin, std::vector<int> const& samples,
                        std::size_t room) {
  std::size_t const count = samples.size();
  for (std::size_t const place : {count, std::size_t{0}, std::min(room, count), count / 2}) {
    rewind(&reader);
    std::vector<std::int16_t> piece(place);
    if (read(&reader, piece.data(), place) != place ||
        !std::equal(piece.begin(), piece.end(), samples.begin())) {
      return "other samples after going back";
    }
    rewind(&reader);
    if (reader.next != begin || reader.left != count || reader.count != count) {
      return "the reader does not go back to the first sample";
    }
  }
  return readAll(reader, read, room) == samples ? nullptr : "other samples once more";
}

Bytes part(Bytes const& bytes, std::size_t at, std::size_t count) {
  auto const begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
  return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

bool isState(kestrolin_ima const& ima, AdpcmStand const& state) {
  return ima.predictor == state.voorspelling && ima.index == state.index;
}

// Any three bytes as the start of a reader over `codes`: those that the array ends in.
char const* startRules(kestrolin_adpcm& adpcm, ExactCopy const& array, Bytes const& codes,
                       std::size_t room) {
  Bytes const bytes(array.end() - 3, array.end());
  kestrolin_adpcm_rewind(&adpcm);
  kestrolin_adpcm const before = adpcm;
  AdpcmStand state{bytes.at(2), sampleAt(bytes, 0)};
  kestrolin_status const status = kestrolin_adpcm_start(&adpcm, array.end() - 3);
  if (status != (state.index > KESTROLIN_IMA_INDEX_MAX ? KESTROLIN_CORRUPT : KESTROLIN_OK)) {
    return "another answer to a start";
  }
  if (status != KESTROLIN_OK) {
    state = {before.start.index, before.start.predictor};
  }
  if (!isState(adpcm.ima, state) || !isState(adpcm.start, state) || adpcm.next != before.next ||
      adpcm.left != before.left || adpcm.count != before.count || adpcm.rate != before.rate) {
    return "another start";
  }
  std::vector<int> const samples = modelSamples(state, codes);
  if (readAll(adpcm, kestrolin_adpcm_read, room) != samples || !isState(adpcm.ima, state)) {
    return "other samples from a start";
  }
  return rewindRules(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind, before.next, samples,
                     room);
}

}  // namespace

char const* pcmRules(Attempt const& attempt) {
  constexpr std::size_t overhead = 6;
  ExactCopy const array(attempt.array);
  kestrolin_pcm pcm;
  kestrolin_status const status =
      openAsAsked(attempt, pcm, array.data(), kestrolin_pcm_open, kestrolin_pcm_open_headerless);
  if (status != KESTROLIN_OK) {
    return refusedRules(pcm, kestrolin_pcm_read, kestrolin_pcm_rewind, status,
                        {KESTROLIN_TRUNCATED, KESTROLIN_CORRUPT});
  }
  std::size_t const count =
      attempt.headerless ? (array.size() - overhead) / 2 : numberAt(attempt.array, 0, 4);
  if (pcm.left != count || pcm.count != count || array.size() != overhead + 2 * count) {
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
  if (*samples != samplesAt(attempt.array, begin, count)) {
    return "other samples";
  }
  return rewindRules(pcm, kestrolin_pcm_read, kestrolin_pcm_rewind, array.data() + begin, *samples,
                     attempt.room);
}

char const* adpcmRules(Attempt const& attempt) {
  constexpr std::size_t overhead = 9;
  ExactCopy const array(attempt.array);
  kestrolin_adpcm adpcm;
  kestrolin_status const status = openAsAsked(attempt, adpcm, array.data(), kestrolin_adpcm_open,
                                              kestrolin_adpcm_open_headerless);
  if (status != KESTROLIN_OK) {
    return refusedRules(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind, status,
                        {KESTROLIN_TRUNCATED, KESTROLIN_CORRUPT});
  }
  std::size_t const count =
      attempt.headerless ? array.size() - overhead : numberAt(attempt.array, 0, 4);
  if (adpcm.left != 2 * count || adpcm.count != adpcm.left || array.size() != overhead + count) {
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
  Bytes const codes = part(attempt.array, begin, count);
  if (*samples != modelSamples(state, codes) || !isState(adpcm.ima, state)) {
    return "other samples, or another state at the end";
  }
  char const* const broken = rewindRules(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind,
                                         array.data() + begin, *samples, attempt.room);
  return broken != nullptr ? broken : startRules(adpcm, array, codes, attempt.room);
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
    return refusedRules(wav, kestrolin_wav_read, kestrolin_wav_rewind, status,
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
  if (wav.left % perBlock != 0 || wav.count != wav.left || begin > array.size() ||
      size > array.size() - begin) {
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
  if (*samples !=
      (ima ? imaSamples(data, {wav.channels, wav.block_size}) : samplesAt(data, 0, size / 2))) {
    return "other samples";
  }
  return rewindRules(wav, kestrolin_wav_read, kestrolin_wav_rewind, array.data() + begin, *samples,
                     attempt.room);
}
