// An element that counts how often one of its kind was released.
#pragma once

class TeldeOp {
 public:
  explicit TeldeOp(int& vernietigd) : teller(&vernietigd) {}
  ~TeldeOp() { ++*teller; }
  TeldeOp(TeldeOp const&) = delete;
  TeldeOp& operator=(TeldeOp const&) = delete;
  TeldeOp(TeldeOp&&) = delete;
  TeldeOp& operator=(TeldeOp&&) = delete;

 private:
  int* teller;
};
