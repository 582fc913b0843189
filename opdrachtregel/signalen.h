// The signals by which a user or a build ends the program.
#pragma once

// From here on they let ruimNuOp remove its files first. One that is ignored stays so.
void ruimOpBijSignaal();

// Keeps them waiting while one of these lives.
class SignaalPauze {
 public:
  SignaalPauze();
  ~SignaalPauze();
  SignaalPauze(SignaalPauze const&) = delete;
  SignaalPauze& operator=(SignaalPauze const&) = delete;
  SignaalPauze(SignaalPauze&&) = delete;
  SignaalPauze& operator=(SignaalPauze&&) = delete;
};
