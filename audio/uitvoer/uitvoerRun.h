// The run: from recordings to one text, in any of the four ways of output. It asks nothing and
// shows nothing; who starts it can watch.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>

class FragmentMaker;
class wxOutputStream;
struct KestrolinConfig;

// What a run is about. It must outlive the run.
struct RunOpdracht {
  wxArrayString const& wavBestanden;  // the paths, in the order of the text
  KestrolinConfig const& instellingen;
  wxString const& klasse;  // the class that owns the arrays, where the language has classes
};

// Who watches a run.
class RunToezicht {
 public:
  RunToezicht() = default;
  virtual ~RunToezicht() = default;

  RunToezicht(RunToezicht const&) = delete;
  RunToezicht& operator=(RunToezicht const&) = delete;
  RunToezicht(RunToezicht&&) = delete;
  RunToezicht& operator=(RunToezicht&&) = delete;

  // Whether the next array has its header; asked for each.
  virtual bool metHeader() = 0;
  // The array of this recording does not hold all of it. The run goes on.
  virtual void meldNietHeel(wxString const& wav) = 0;
  // The text of the file of this number, from 1 on, is complete.
  virtual void meldGedaan(std::size_t nummer) = 0;
};

// Appends the text to `uit`: UTF-8 with "\n" line ends. The settings count as they are at the
// start. Returns the number of recordings that are done: fewer than there are where the maker gave
// up at the next one, and the text ends there.
std::size_t voerRunUit(RunOpdracht const& opdracht, FragmentMaker& maker, wxOutputStream& uit,
                       RunToezicht& toezicht);
