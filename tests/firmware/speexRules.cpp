#include <array>

#include "kestrolin_speex.h"
#include "tests/firmware/readerHelp.h"
#include "tests/firmware/readerRules.h"

namespace {

// The one call that has to leave everything as it is.
bool staysAtEnd(kestrolin_speex& speex) {
  signed char const* const next = speex.next;
  std::size_t const left = speex.left;
  char const nothing = 0;
  char const* frame = &nothing;
  int size = -1;
  return kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_END && frame == &nothing &&
         size == -1 && speex.next == next && speex.left == left;
}

char const* refusedRules(kestrolin_speex& speex, kestrolin_status status) {
  if (status != KESTROLIN_TRUNCATED && status != KESTROLIN_CORRUPT) {
    return "an answer that opening does not have";
  }
  signed char const* const next = speex.next;
  kestrolin_speex_rewind(&speex);
  return speex.next == next && speex.size == 0 && speex.left == 0 && speex.frames == 0 &&
                 speex.samples == 0 && staysAtEnd(speex)
             ? nullptr
             : "frames after an error";
}

// Mode, frequency, and samples a frame belong together.
bool isRow(kestrolin_speex const& speex) {
  constexpr std::array<int, 3> rates{8000, 16000, 32000};
  return speex.mode < rates.size() && speex.rate == rates.at(speex.mode) &&
         speex.frame_samples == speex.rate / 50 && kestrolin_speex_delay(&speex) > 0;
}

// The number of samples ends in the last frame.
bool endsInLastFrame(kestrolin_speex const& speex) {
  std::uint64_t const full = std::uint64_t{speex.frames} * speex.frame_samples;
  return speex.samples <= full && (speex.frames == 0 || speex.samples + speex.frame_samples > full);
}

// From the first frame to the last; `at` is the place of the first size byte.
char const* walkRules(kestrolin_speex& speex, Bytes const& bytes, ExactCopy const& array,
                      std::size_t at) {
  for (std::uint32_t i = 0; i < speex.frames; ++i) {
    char const* frame = nullptr;
    int size = -1;
    if (kestrolin_speex_next(&speex, &frame, &size) != KESTROLIN_OK) {
      return "fewer frames than the reader says";
    }
    if (size != bytes.at(at) || size > 200 ||
        frame != static_cast<void const*>(array.data() + at + 1)) {
      return "another frame";
    }
    at += 1 + static_cast<std::size_t>(size);
    if (at + speex.left != bytes.size()) {
      return "another number of bytes left";
    }
  }
  return at == bytes.size() && staysAtEnd(speex) && staysAtEnd(speex) ? nullptr : "no end";
}

// A reader that stands at its end goes back from there, from the first frame, and from another.
char const* rewindRules(kestrolin_speex& speex, Attempt const& attempt, ExactCopy const& array,
                        std::size_t begin) {
  for (std::size_t const place : {std::size_t{0}, attempt.room}) {
    kestrolin_speex_rewind(&speex);
    for (std::size_t i = 0; i < place; ++i) {
      char const* frame = nullptr;
      int size = 0;
      kestrolin_speex_next(&speex, &frame, &size);
    }
    kestrolin_speex_rewind(&speex);
    if (speex.left != speex.size || speex.next != array.signedData() + begin) {
      return "the reader does not go back to the first frame";
    }
  }
  return walkRules(speex, attempt.array, array, begin);
}

}  // namespace

char const* speexRules(Attempt const& attempt) {
  constexpr std::size_t header = 4;
  ExactCopy const array(attempt.array);
  kestrolin_speex speex;
  kestrolin_status const status = openAsAsked(
      attempt, speex, array.signedData(), kestrolin_speex_open, kestrolin_speex_open_headerless);
  if (status != KESTROLIN_OK) {
    return refusedRules(speex, status);
  }
  if (!isRow(speex) || !endsInLastFrame(speex)) {
    return "fields that contradict each other";
  }
  std::size_t const rate = attempt.headerless ? attempt.rate : numberAt(attempt.array, 0, 2);
  if (speex.rate != rate ||
      (!attempt.headerless && speex.samples % 65536 != numberAt(attempt.array, 2, 2))) {
    return "fields that the header contradicts";
  }
  std::size_t const begin = attempt.headerless ? 0 : header;
  if (speex.size != array.size() - begin || speex.left != speex.size) {
    return "another number of bytes";
  }
  char const* const broken = walkRules(speex, attempt.array, array, begin);
  return broken != nullptr ? broken : rewindRules(speex, attempt, array, begin);
}
