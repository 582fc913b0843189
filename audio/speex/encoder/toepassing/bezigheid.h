// What a handler of the window holds while it may show a dialog or play.
#pragma once

// weakref.h wants it, and does not say so.
#include <type_traits>

#include <wx/weakref.h>
#include <wx/window.h>

// A progress dialog disables the window, and with it goes the keyboard's place. At its end this
// gives the focus back to the control that had it, unless that is gone or cannot be used.
class Bezigheid {
 public:
  // Counts itself in `aantal`, which must outlive it.
  explicit Bezigheid(int& aantal);
  ~Bezigheid();

  Bezigheid(Bezigheid const&) = delete;
  Bezigheid& operator=(Bezigheid const&) = delete;
  Bezigheid(Bezigheid&&) = delete;
  Bezigheid& operator=(Bezigheid&&) = delete;

 private:
  int& teller;
  wxWeakRef<wxWindow> hadFocus;
};
