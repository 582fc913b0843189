// The run: from recordings to one text, in any of the four ways of output. The run opens no window.
// The caller follows it through a RunToezicht.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>
#include <optional>

#include "audio/uitvoer/kestrolinConfig.h"

class FragmentMaker;
class wxOutputStream;

// The input of a run. The objects it refers to must live until voerRunUit returns.
struct RunOpdracht {
  wxSortedArrayString const& wavBestanden;  // the paths, in the order of the text
  KestrolinConfig const& instellingen;
  wxString const& klasse;  // the class that owns the arrays, where the language has classes
};

// Follows a run. This one says nothing.
class RunToezicht {
 public:
  RunToezicht() = default;
  virtual ~RunToezicht() = default;

  RunToezicht(RunToezicht const&) = delete;
  RunToezicht& operator=(RunToezicht const&) = delete;
  RunToezicht(RunToezicht&&) = delete;
  RunToezicht& operator=(RunToezicht&&) = delete;

  // Whether the next array has its header. The run asks before each recording.
  virtual bool metHeader(KestrolinConfig const& instellingen) { return instellingen.IncludeHeader; }
  // The array of this recording lacks a part of it. The run goes on.
  virtual void meldNietHeel(wxString const& /*wav*/) {}
  // The text of the recording of this number, from 1 on, is complete.
  virtual void meldGedaan(std::size_t /*nummer*/) {}
};

// Appends the text to `uit`: UTF-8 with "\n" line ends. A stream that fails gets no more text; the
// caller asks the stream. Passes std::bad_alloc on.
//
// Returns the path of the recording that the maker could not make: the text ends at that one's
// start mark. Nothing where all are done.
std::optional<wxString> voerRunUit(RunOpdracht const& opdracht, FragmentMaker& maker,
                                   wxOutputStream& uit, RunToezicht& toezicht);
