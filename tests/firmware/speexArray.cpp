#include "tests/firmware/speexArray.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"

namespace {

// Whatever lay in a reader that is refused, it has no frames then.
template <typename Open>
kestrolin_status answerOf(Bytes const& array, Open open) {
  ExactCopy const copy(array);
  kestrolin_speex speex;
  std::memset(&speex, 0xA5, sizeof speex);
  kestrolin_status const status = open(&speex, copy.signedData(), copy.size());
  if (status != KESTROLIN_OK) {
    EXPECT_EQ(speex.next, copy.signedData());
    EXPECT_EQ(speex.left, 0U);
    EXPECT_EQ(speex.frames, 0U);
    EXPECT_EQ(speex.samples, 0U);
    EXPECT_LT(speex.mode, 3);
    EXPECT_EQ(framesOf(speex), Frames{});
  }
  return status;
}

}  // namespace

Bytes speexFrames(Frames const& frames) {
  Bytes bytes;
  for (Bytes const& frame : frames) {
    bytes.push_back(static_cast<unsigned char>(frame.size()));
    bytes.insert(bytes.end(), frame.begin(), frame.end());
  }
  return bytes;
}

Bytes speexArray(int rate, std::size_t samples, Frames const& frames) {
  return joined({laagEerst(static_cast<unsigned long long>(rate), 2), laagEerst(samples, 2),
                 speexFrames(frames)});
}

signed char const* asSigned(Bytes const& array) {
  return reinterpret_cast<signed char const*>(array.data());
}

kestrolin_status speexOpening(Bytes const& array) {
  return answerOf(array, kestrolin_speex_open);
}

kestrolin_status speexOpening(Bytes const& array, std::uint16_t headerlessRate) {
  return answerOf(array, [=](kestrolin_speex* speex, signed char const* bytes, std::size_t size) {
    return kestrolin_speex_open_headerless(speex, bytes, size, headerlessRate);
  });
}

Frames framesOf(kestrolin_speex& speex) {
  Frames frames;
  char const* frame = nullptr;
  int size = 0;
  kestrolin_status status = KESTROLIN_OK;
  while ((status = kestrolin_speex_next(&speex, &frame, &size)) == KESTROLIN_OK) {
    frames.emplace_back(frame, frame + size);
  }
  EXPECT_EQ(status, KESTROLIN_END);
  return frames;
}
