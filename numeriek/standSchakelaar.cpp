#include "numeriek/standSchakelaar.h"

namespace {

constexpr Schakelaar stand(bool aan) {
  return aan ? Schakelaar::Aan : Schakelaar::Uit;
}

}  // namespace

StandSchakelaar::StandSchakelaar(Schakelaar s) : stand_(stand(s == Schakelaar::Aan)) {}

// On for 0: the reverse of the assignment of a number. It has to stay.
StandSchakelaar::StandSchakelaar(unsigned long long v) : stand_(stand(v == 0)) {}

StandSchakelaar::StandSchakelaar(bool b) : stand_(stand(b)) {}

StandSchakelaar& StandSchakelaar::operator=(unsigned int v) {
  return *this = stand(v != 0);
}

StandSchakelaar& StandSchakelaar::operator=(Schakelaar s) {
  if (s == Schakelaar::Om) {
    om();
  } else if (!geblokkeerd_) {
    stand_ = stand(s == Schakelaar::Aan);
  }
  return *this;
}

void StandSchakelaar::om() {
  if (!geblokkeerd_) {
    stand_ = stand(omgekeerd());
  }
}
