#include "opdrachtregel/labelVakken.h"

#include <algorithm>

namespace {

// Of a label: that of its characters in a font of 11 pixels, the widest of them counted for all.
constexpr double tekenBreedte = 6.7;
constexpr double hoogte = 12;
constexpr double vrij = 9;  // from the middle of a sign

}  // namespace

void LabelVakken::houdVrij(Plek midden, double straal) {
  bezet.push_back({{midden.x - straal, midden.y - straal}, {midden.x + straal, midden.y + straal}});
}

bool LabelVakken::isVrij(Vak const& vak) const {
  bool const isBinnen =
      vak.linksBoven.x >= grens.linksBoven.x && vak.linksBoven.y >= grens.linksBoven.y &&
      vak.rechtsOnder.x <= grens.rechtsOnder.x && vak.rechtsOnder.y <= grens.rechtsOnder.y;
  return isBinnen && std::none_of(bezet.begin(), bezet.end(), [&vak](Vak const& ander) {
           return vak.linksBoven.x < ander.rechtsOnder.x &&
                  ander.linksBoven.x < vak.rechtsOnder.x &&
                  vak.linksBoven.y < ander.rechtsOnder.y && ander.linksBoven.y < vak.rechtsOnder.y;
         });
}

std::optional<Plek> LabelVakken::plaats(Plek midden, Kant kant, std::size_t tekens) {
  constexpr double stap = 4;
  constexpr int pogingen = 16;
  Plek const half{static_cast<double>(tekens) * tekenBreedte / 2, hoogte / 2};
  // From the sign to the middle of the label, and to where its text is hung up.
  double const naarMidden = kant == Kant::rechts ? half.x : kant == Kant::links ? -half.x : 0;
  double const naarHaak = kant == Kant::rechts ? vrij : kant == Kant::links ? -vrij : 0;
  for (int i = 0; i < pogingen; ++i) {
    // By turns to the one side and to the other.
    int const stappen = (i + 1) / 2;
    double const opzij = i % 2 == 0 ? stappen * stap : -stappen * stap;
    Plek const haak = kant == Kant::boven ? Plek{midden.x + opzij, midden.y - vrij - half.y}
                                          : Plek{midden.x + naarHaak, midden.y + opzij};
    Vak const vak{{haak.x + naarMidden - half.x, haak.y - half.y},
                  {haak.x + naarMidden + half.x, haak.y + half.y}};
    if (isVrij(vak)) {
      bezet.push_back(vak);
      return haak;
    }
  }
  return std::nullopt;
}
