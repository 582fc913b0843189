// The mean of the last values of a series, kept in a ring.
#pragma once

#include <cstddef>
#include <vector>

class LopendGemiddelde {
 public:
  // The mean of the last `aantal` values. Passes std::bad_alloc on.
  explicit LopendGemiddelde(std::size_t aantal) : ring(aantal + 1) {}

  void voegToe(double waarde);

  // The mean of the values so far, at most the last `aantal` of them; 0 where there are none.
  double geefGemiddelde() const;

 private:
  std::vector<double> ring;  // one place more than values count: the oldest is taken off from there
  std::size_t schrijfplaats = 0;
  std::size_t telling = 0;
  double som = 0.0;
};
