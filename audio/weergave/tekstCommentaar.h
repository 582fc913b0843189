// What the comments of generated text tell of an array. These lines are English in every language
// of the program; what is translated stands in lines of its own, and is not looked at.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "audio/weergave/arrayBytes.h"

// What the comment, as it stands between its marks, is to a text as a whole.
enum class CommentaarSoort : std::uint8_t {
  run,       // the first line of a run
  fragment,  // the first line of a fragment
  anders
};
CommentaarSoort soortVan(std::string_view commentaar);

// The comments before one array, from the first line of its fragment on. Nothing stands where no
// comment told, or one told what is no number of 32 bits.
struct FragmentCommentaar {
  std::string_view wavBestand;
  std::optional<ArraySoort> soort;
  std::optional<std::uint32_t> frequentie;  // Hz
  // As the encoder counts them: where a count was printed as a signed number, it is unsigned here.
  std::optional<std::uint32_t> samples;
  std::optional<std::uint32_t> dacBits;

  // Takes in the next comment.
  void neem(std::string_view commentaar);

 private:
  void neemTelling(std::string_view regel);
};
