// The processor on which a tool or its firmware runs, as an abstract base, and the desktop's own.
#pragma once

// A real-time operating system. Only ever named: the desktop has none.
class VelmoraRTOS;

class VelmoraMicrocontroller {
 public:
  // Runs this operating system, which may be null and is not owned. The clock frequency is 0 until
  // it is set.
  explicit VelmoraMicrocontroller(VelmoraRTOS* besturingssysteem);
  virtual ~VelmoraMicrocontroller() = default;

  VelmoraMicrocontroller(VelmoraMicrocontroller const&) = delete;
  VelmoraMicrocontroller& operator=(VelmoraMicrocontroller const&) = delete;
  VelmoraMicrocontroller(VelmoraMicrocontroller&&) = delete;
  VelmoraMicrocontroller& operator=(VelmoraMicrocontroller&&) = delete;

  // Multiply and accumulate: adds a x b to `som`.
  virtual void mac(double a, double b, double& som) const = 0;
  // The same in 16 bits, where product and sum wrap.
  virtual void mac(short a, short b, short& som) const = 0;

  VelmoraRTOS* geefOS() const { return os; }
  // The clock frequency in Hz. The name is the one that operating systems for such processors
  // expect.
  unsigned int OS_CPU_SysTickClkFreq() const { return klokFreq; }
  void zetKlokFreq(unsigned int freq) { klokFreq = freq; }

 private:
  VelmoraRTOS* os;
  unsigned int klokFreq = 0;
};

class IntelProcessor : public VelmoraMicrocontroller {
 public:
  IntelProcessor();

  void mac(double a, double b, double& som) const override;
  void mac(short a, short b, short& som) const override;
};
