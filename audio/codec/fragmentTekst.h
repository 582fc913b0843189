// The writer of the text of one audio fragment: the comment lines, the head of the array, its data
// rows and its end, as far as the encoders have them in common. What it writes is compiled into
// firmware, so that every blank and tab of it counts.
#pragma once

#include <sndfile.h>
#include <wx/string.h>
#include <wx/txtstrm.h>

#include <initializer_list>

#include "audio/codec/array.h"

class wxFileName;
class wxOutputStream;

// Where a fragment's array belongs. The names go into the text as they stand: whether they are
// legal identifiers is the user's affair.
struct FragmentDoel {
  int taal;         // an UitvoerTaal, or any other value
  wxString klasse;  // the class that owns the arrays in C++
  wxString naam;    // the array: the file's name without path and extension
};

// A count that stands in a line of its own, under the name of the array with `achtervoegsel` behind
// it.
struct FragmentTelling {
  wxString achtervoegsel;
  unsigned long long aantal;
};

// The elements of an array that is printed byte by byte.
inline constexpr char const* byteArrayType = "unsigned char";

class FragmentTekst {
 public:
  // Appends to `uit`, which must outlive this object, as UTF-8 with "\n" line ends.
  explicit FragmentTekst(wxOutputStream& uit);

  // Writes nothing more once a write has failed: the toolkit logs each one that does.
  void schrijf(wxString const& tekst);

  // The comment lines about the machine, the moment and the file's name, for a file that was
  // "Encoded" or "Embedded".
  void schrijfHerkomst(wxString const& werkwoord, wxFileName const& wav);
  void schrijfFrequentie(SF_INFO const& info);
  // The line about the width of the DAC that the samples were scaled to.
  void schrijfSchaal(int dacBits);

  // The comment lines about the machine, the moment and an encoded file: `info` is what libsndfile
  // tells of it, and all zeros for a file that is not there.
  void schrijfKop(wxFileName const& wav, SF_INFO const& info);

  // The whole text of a fragment that is printed byte by byte. With `metHeader` a comment on the
  // header stands before the array.
  void schrijfFragment(wxFileName const& wav, SF_INFO const& info, FragmentDoel const& doel,
                       std::initializer_list<FragmentTelling> tellingen,
                       VelmoraArray<unsigned char> const& array, bool metHeader);

  void schrijfTelling(FragmentDoel const& doel, FragmentTelling const& telling);

  // The comment on the header bytes, translated. It tells the PCM layout, and stands before ADPCM
  // arrays too, where it is wrong: their count is one of bytes, and their data starts at byte 9. It
  // stays, since what is generated must not change under the projects that hold it.
  void schrijfHeaderUitleg(FragmentDoel const& doel);

  // The line that opens the array, with elements of `elementType`.
  void schrijfArrayKop(FragmentDoel const& doel, wxString const& elementType);

  // All bytes of the array, eight to the row, in lower-case hexadecimal.
  void schrijfRijen(VelmoraArray<unsigned char> const& array);

  // Closes the array behind its rows and names the file once more.
  void schrijfEinde(wxFileName const& wav);

  // The same for an array without rows of this writer: its data ends its own last line.
  void sluitArray(wxFileName const& wav);

 private:
  wxOutputStream& stroom;
  wxTextOutputStream tekstStroom;
};

// The duration in seconds with two decimals. The decimal point stays a point in every locale: the
// text must not change with the user's language. No samples at no frequency last "nan", without the
// sign that a processor may give it.
wxString fragmentDuur(sf_count_t frames, int samplerate);
