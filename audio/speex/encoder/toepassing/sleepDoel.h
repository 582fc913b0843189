// What takes files that are dropped on the window.
#pragma once

#include <wx/dnd.h>

#include <functional>

class SleepDoel : public wxFileDropTarget {
 public:
  // Hands the paths to `neem`, in their order; its answer tells whether they were taken.
  explicit SleepDoel(std::function<bool(wxArrayString const& paden)> neem);

  bool OnDropFiles(wxCoord x, wxCoord y, wxArrayString const& paden) override;

 private:
  std::function<bool(wxArrayString const& paden)> neemPaden;
};
