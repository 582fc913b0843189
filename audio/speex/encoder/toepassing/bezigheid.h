// The work of a handler that may show a dialog, or play: what the window must not do meanwhile, and
// what it does behind it.
#pragma once

// weakref.h wants it, and does not say so.
#include <type_traits>

#include <wx/event.h>
#include <wx/weakref.h>
#include <wx/window.h>

#include <memory>
#include <vector>

class BezigStand {
 public:
  // `doel` must outlive this object.
  explicit BezigStand(wxEvtHandler& doel) : ontvanger(doel) {}

  bool isBezig() const { return handlers > 0; }
  // Whether a run has begun, whose settings must stay as they are.
  bool isInRun() const { return inRun; }
  // Sends a copy to the receiver again when the last handler has ended.
  void stelUit(wxEvent const& event);

 private:
  friend class Bezigheid;

  wxEvtHandler& ontvanger;
  int handlers = 0;
  bool inRun = false;
  std::vector<std::unique_ptr<wxEvent>> uitgesteld;
};

// What such a handler holds. A progress dialog disables the window, and with it goes the keyboard's
// place. At its end this gives the focus back to the control that had it, unless that is gone or
// cannot be used.
class Bezigheid {
 public:
  // `bezig` must outlive this object.
  explicit Bezigheid(BezigStand& bezig);
  ~Bezigheid();

  // The run begins: its dialog stands. That has disabled the window, and so made a field in which
  // the user was typing tell its value.
  void beginRun() { stand.inRun = true; }

  Bezigheid(Bezigheid const&) = delete;
  Bezigheid& operator=(Bezigheid const&) = delete;
  Bezigheid(Bezigheid&&) = delete;
  Bezigheid& operator=(Bezigheid&&) = delete;

 private:
  BezigStand& stand;
  wxWeakRef<wxWindow> hadFocus;
};
